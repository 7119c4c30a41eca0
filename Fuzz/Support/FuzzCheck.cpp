#include "Support/FuzzCheck.h"

#include "Common/AssertionViolation.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <typeinfo>

namespace fuzz
{

void failProperty(std::string_view property, const char* file, int line)
{
    std::fprintf(stderr, "==fuzz== property does not hold: %.*s\n==fuzz== stated at %s:%d\n",
                 static_cast<int>(property.size()), property.data(), file, line);
    std::abort();
}

void failOnEscapedException()
{
    // The violations do not derive from std::exception, so each family is asked for on its own.
    try
    {
        throw;
    }
    catch (const common::EAssertionViolation& violation)
    {
        std::fprintf(stderr, "==fuzz== contract violation escaped: %s: %s\n", typeid(violation).name(),
                     violation.what());
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "==fuzz== exception escaped: %s: %s\n", typeid(error).name(), error.what());
    }
    catch (...)
    {
        std::fprintf(stderr, "==fuzz== exception of an unknown type escaped\n");
    }
    std::abort();
}

} // namespace fuzz
