#pragma once

#include <string>

namespace aec::model
{

// The source location that a caller named as the origin of the project's next changes.
struct ChangeOrigin
{
    std::string file;
    int line = 0;

    friend bool operator==(const ChangeOrigin&, const ChangeOrigin&) = default;
};

} // namespace aec::model
