#pragma once

#include <gtest/gtest.h>
#include <string>

namespace aecapp_tests
{

// The message of the violation that the function throws; a test failure when it throws none.
template <class Violation, class Function>
std::string violationMessage(Function&& function)
{
    try
    {
        function();
    }
    catch (const Violation& violation)
    {
        return violation.what();
    }
    ADD_FAILURE() << "no violation was thrown";
    return {};
}

// Whether the message names a check site in the file (a path from the repository root).
inline bool isSiteInFile(const std::string& message, const std::string& file)
{
    return message.starts_with("Assertion violation: " + file + "(");
}

} // namespace aecapp_tests
