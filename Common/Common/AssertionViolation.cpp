#include "Common/AssertionViolation.h"

#include <charconv>

namespace common
{

EAssertionViolation::EAssertionViolation(const char* file, std::int32_t line)
{
    // std::to_chars handles INT32_MIN without negating it; 11 characters hold any 32-bit value.
    char digits[11];
    const auto result = std::to_chars(digits, digits + sizeof digits, line);

    message_.append("Assertion violation: ");
    message_.append(file);
    message_.append("(");
    message_.append(digits, static_cast<std::size_t>(result.ptr - digits));
    message_.append(")");
}

EAssertionViolation::~EAssertionViolation() = default;

} // namespace common
