#pragma once

#include "Common/CommonApi.h"

#include <stdexcept>
#include <string>

namespace common
{

// A run-time failure that is not a contract breach (a bad file, bad clipboard data, bad stored
// preferences); its message says what was wrong in words a user can act on.
class COMMON_API EException : public std::runtime_error
{
public:
    explicit EException(const std::string& message);
    explicit EException(const char* message);
    ~EException() override;
};

} // namespace common
