#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace common::test
{

// The "file(line)" of the violation of type Violation that `action` throws ("" after failing the
// test when it throws none). Tests compare the file, or two sites with each other, never a line.
template <class Violation, class Action>
std::string violationSite(Action&& action)
{
    try
    {
        action();
    }
    catch (const Violation& violation)
    {
        return std::string(violation.what()).substr(std::string_view("Assertion violation: ").size());
    }
    ADD_FAILURE() << "no violation was thrown";
    return {};
}

inline std::string siteFile(const std::string& site)
{
    return site.substr(0, site.rfind('('));
}

} // namespace common::test
