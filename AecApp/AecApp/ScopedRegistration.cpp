#include "AecApp/ScopedRegistration.h"

namespace aec
{

CScopedRegistration::CScopedRegistration() noexcept = default;

CScopedRegistration::CScopedRegistration(CScopedRegistration&& other) noexcept
    : release_(std::move(other.release_)), held_(std::exchange(other.held_, false))
{
}

CScopedRegistration& CScopedRegistration::operator=(CScopedRegistration&& other) noexcept
{
    if (this != &other)
    {
        releaseQuietly();
        release_ = std::move(other.release_);
        held_ = std::exchange(other.held_, false);
    }
    return *this;
}

CScopedRegistration::~CScopedRegistration()
{
    releaseQuietly();
}

void CScopedRegistration::release()
{
    if (!held_)
        return;
    release_();
    held_ = false;
}

void CScopedRegistration::releaseQuietly() noexcept
{
    // A host call may fail for a passing reason; the registration is asked for once more before
    // it is given up, since a handler left with the host would call into an object that is gone.
    for (int attempt = 0; attempt < 2 && held_; ++attempt)
    {
        try
        {
            release();
        }
        catch (...)
        {
            // The owner is going and has no way left to report it.
        }
    }
}

} // namespace aec
