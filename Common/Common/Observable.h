#pragma once

#include "Common/Check.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <vector>

namespace common
{

// A list of observers of type T that an event source notifies in the order they were added.
//
// Observers may change the list while they are being notified:
// - an observer removed during a notification (itself or another) is not called afterwards, not
//   even later in the same notification;
// - an observer added during a notification is first called by the next notification;
// - notifications may nest (an observer that triggers another one); each sees the list as it was
//   when it started, minus the observers removed since.
// The list itself must outlive its notifications. Not thread-safe.
//
// @code
//   common::CObservable<IObjectEvents> observers;
//   observers.addObserver(panel);
//   observers.notify([&](IObjectEvents& observer) { observer.onProjectOpened(); });
//   observers.removeObserver(panel);   // safe also from inside a notification
// @endcode
template <class T>
class CObservable
{
public:
    CObservable() = default;
    CObservable(const CObservable&) = delete;
    CObservable& operator=(const CObservable&) = delete;

    // The observer must not be in the list already.
    void addObserver(T& observer)
    {
        COMMON_PRECONDITION(!hasObserver(observer));
        observers_.push_back(&observer);
    }

    // The observer must be in the list.
    void removeObserver(T& observer)
    {
        const auto position = std::find(observers_.begin(), observers_.end(), &observer);
        COMMON_PRECONDITION(position != observers_.end());
        if (activeNotifications_ == 0)
            observers_.erase(position);
        else
            // Running notifications index into the list, so it keeps its shape until they end.
            *position = nullptr;
    }

    bool hasObserver(const T& observer) const
    {
        return std::find(observers_.begin(), observers_.end(), &observer) != observers_.end();
    }

    // Calls notification(observer) for each observer.
    template <class F>
    void notify(F&& notification)
    {
        const NotificationScope scope(*this);
        const std::size_t count = observers_.size();
        for (std::size_t i = 0; i < count; ++i)
            if (T* const observer = observers_[i])
                std::invoke(notification, *observer);
    }

private:
    // Ends a notification even when an observer throws, and drops the places of removed observers
    // once no notification is running.
    class NotificationScope
    {
    public:
        explicit NotificationScope(CObservable& observable) : observable_(observable)
        {
            ++observable_.activeNotifications_;
        }
        ~NotificationScope()
        {
            if (--observable_.activeNotifications_ == 0)
                std::erase(observable_.observers_, nullptr);
        }
        NotificationScope(const NotificationScope&) = delete;
        NotificationScope& operator=(const NotificationScope&) = delete;

    private:
        CObservable& observable_;
    };

    std::vector<T*> observers_;
    std::size_t activeNotifications_ = 0;
};

} // namespace common
