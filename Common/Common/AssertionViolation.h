#pragma once

#include "Common/CommonApi.h"

#include <boost/static_string/static_string.hpp>

#include <cstdint>

namespace common
{

// Root of the contract-violation family. The message "Assertion violation: FILE(LINE)" lives in a
// fixed buffer inside the object, so a violation can be built and thrown when the heap is exhausted.
// The family deliberately does not derive from std::exception: a contract breach is not a run-time
// error to be handled with the others.
class COMMON_API EAssertionViolation
{
public:
    static constexpr std::size_t messageCapacity = 1024;
    using Message = boost::static_strings::static_string<messageCapacity>;

    // Throws std::length_error ("count > max_size() - size()") if the message does not fit.
    EAssertionViolation(const char* file, std::int32_t line);
    virtual ~EAssertionViolation();

    EAssertionViolation(const EAssertionViolation&) = default;
    EAssertionViolation& operator=(const EAssertionViolation&) = default;

    // The zero-terminated message text.
    const char* what() const noexcept { return message_.c_str(); }
    const Message& message() const noexcept { return message_; }

private:
    Message message_;
};

// A function's argument or calling state is not as required.
class COMMON_API EPreconditionViolation : public EAssertionViolation
{
public:
    using EAssertionViolation::EAssertionViolation;
};

// A function's result is not as promised.
class COMMON_API EPostconditionViolation : public EAssertionViolation
{
public:
    using EAssertionViolation::EAssertionViolation;
};

// An object's own invariant does not hold.
class COMMON_API EClassInvariantViolation : public EAssertionViolation
{
public:
    using EAssertionViolation::EAssertionViolation;
};

// An ordinary internal check failed.
class COMMON_API ECheckViolation : public EAssertionViolation
{
public:
    using EAssertionViolation::EAssertionViolation;
};

// A branch deliberately left unimplemented was reached.
class COMMON_API ENotImplemented : public EAssertionViolation
{
public:
    using EAssertionViolation::EAssertionViolation;
};

} // namespace common
