#pragma once

#include <string_view>
#include <utility>

// What a fuzz target asserts about the code under test. A property that does not hold, or an
// exception that the code does not document, must end the run as a crash: that is the only
// outcome libFuzzer records together with the input that caused it.

namespace fuzz
{

// Prints the broken property and where it is stated, then aborts.
[[noreturn]] void failProperty(std::string_view property, const char* file, int line);

// Prints the escaped exception (its type and message where it has one) and aborts. Call it only
// from a catch block.
[[noreturn]] void failOnEscapedException();

// Runs one input. Any exception that leaves it is one the target did not expect: it is reported
// with its message and ends the run, rather than reaching std::terminate without a word.
template <class Body>
int runOneInput(Body&& body)
{
    try
    {
        std::forward<Body>(body)();
    }
    catch (...)
    {
        failOnEscapedException();
    }
    return 0;
}

} // namespace fuzz

#define FUZZ_CHECK(condition)                                                                                \
    do                                                                                                       \
    {                                                                                                        \
        if (!(condition))                                                                                    \
            ::fuzz::failProperty(#condition, __FILE__, __LINE__);                                            \
    } while (false)
