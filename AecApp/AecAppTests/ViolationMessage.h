#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace aecapp_tests
{

// The message of the violation that the function throws; an empty text, and a test failure, when
// it throws none.
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

// Whether the violation message names a check site in the file (a path from the repository root).
inline bool isSiteInFile(const std::string& message, std::string_view file)
{
    return message.rfind("Assertion violation: " + std::string(file) + "(", 0) == 0;
}

} // namespace aecapp_tests
