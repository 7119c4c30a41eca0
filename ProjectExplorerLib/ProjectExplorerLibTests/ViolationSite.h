#pragma once

#include <gtest/gtest.h>

#include <string>

namespace project_explorer::test
{

// The "file(line)" of the violation of type Violation that `action` throws; fails the test and
// returns "" when it throws none. Tests compare the file, or two sites with each other, never a
// line number.
template <class Violation, class Action>
std::string violationSite(Action&& action)
{
    static const std::string prefix = "Assertion violation: ";
    try
    {
        action();
    }
    catch (const Violation& violation)
    {
        return std::string(violation.what()).substr(prefix.size());
    }
    ADD_FAILURE() << "no violation was thrown";
    return {};
}

// The source file of a site made by violationSite.
inline std::string siteFile(const std::string& site)
{
    return site.substr(0, site.rfind('('));
}

} // namespace project_explorer::test
