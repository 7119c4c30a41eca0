#pragma once

#include "AecApp/AecAppApi.h"

#include <functional>
#include <utility>

namespace aec
{

// Owns one registration made with the host (a command handler, a button callback, a listener) and
// undoes it when destroyed, so that the host never keeps a handler of an object that is gone.
//
//     CScopedRegistration handler = CScopedRegistration::make(
//         [&] { gui.addCommandHandler(81, 0, [this] { copy(); }); },
//         [&gui] { gui.removeCommandHandler(81, 0); });
//     handler.release(); // now, passing a failure on; otherwise when `handler` dies
//
// A release that fails leaves the handle holding the registration, since the host may still hold
// it. The destructor releases what is still held, trying twice, and swallows a failure, since a
// destructor must not throw.
class AECAPP_API CScopedRegistration
{
public:
    using Release = std::function<void()>;

    // Holds nothing.
    CScopedRegistration() noexcept;
    // Makes the registration with `doRegister` and holds it, to be undone with `release`. Nothing is
    // held when registering fails; `release` is in place before the host is asked, so that no
    // allocation can fail between the two.
    template <class Register>
    [[nodiscard]] static CScopedRegistration make(Register&& doRegister, Release release)
    {
        CScopedRegistration registration;
        registration.release_ = std::move(release);
        std::forward<Register>(doRegister)();
        registration.held_ = true;
        return registration;
    }

    CScopedRegistration(CScopedRegistration&& other) noexcept;
    // Undoes what this one held first, swallowing a failure.
    CScopedRegistration& operator=(CScopedRegistration&& other) noexcept;
    ~CScopedRegistration();
    CScopedRegistration(const CScopedRegistration&) = delete;
    CScopedRegistration& operator=(const CScopedRegistration&) = delete;

    // Undoes the registration now; nothing when none is held. A failure passes on and the
    // registration stays held.
    void release();
    bool isHeld() const noexcept { return held_; }

private:
    void releaseQuietly() noexcept;

    Release release_;
    bool held_ = false;
};

} // namespace aec
