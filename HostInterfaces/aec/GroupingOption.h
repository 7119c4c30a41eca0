#pragma once

#include <string>

namespace aec
{

// One choosable grouping key for a menu: the key's text form and its display name.
struct GroupingOption
{
    std::wstring value;
    std::wstring displayName;

    friend bool operator==(const GroupingOption&, const GroupingOption&) = default;
};

} // namespace aec
