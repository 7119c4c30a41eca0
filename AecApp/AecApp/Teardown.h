#pragma once

#include <exception>

namespace aec
{

// Runs the steps of a teardown one after another, each even when one before it failed, so that one
// failing host call does not leave the rest of an object's bindings in place; the first failure
// passes on at the end:
//
//     CTeardown teardown;
//     teardown.run([&] { gui.enableCommand(81, false); });
//     teardown.run([&] { registrations.releaseAll(); });
//     teardown.finish(); // rethrows the first failure, if any
class CTeardown
{
public:
    template <class Step>
    void run(Step&& step) noexcept
    {
        try
        {
            step();
        }
        catch (...)
        {
            if (!firstFailure_)
                firstFailure_ = std::current_exception();
        }
    }

    // Passes the first failure of the steps on, if one failed.
    void finish() const
    {
        if (firstFailure_)
            std::rethrow_exception(firstFailure_);
    }

private:
    std::exception_ptr firstFailure_;
};

} // namespace aec
