#pragma once

#include "Common/Check.h"
#include "Common/Observable.h"

namespace common
{

// One observer's place in one observable for as long as this lives: it replaces a hand-written
// addObserver/removeObserver pair, so that the observer leaves the list also when its owner's
// construction fails after subscribing.
//
//     CScopedObservation<IObjectEvents> observation_{*this};
//     observation_.observe(objectEvents); // removed again when observation_ dies
template <class T>
class CScopedObservation
{
public:
    // The observer must outlive this.
    explicit CScopedObservation(T& observer) noexcept : observer_(observer) {}
    ~CScopedObservation() { reset(); }
    CScopedObservation(const CScopedObservation&) = delete;
    CScopedObservation& operator=(const CScopedObservation&) = delete;

    // Adds the observer to the source, which must outlive this; once, until reset.
    void observe(CObservable<T>& source)
    {
        COMMON_PRECONDITION(source_ == nullptr);
        source.addObserver(observer_);
        source_ = &source;
    }

    // Takes the observer out of its source; nothing when it observes none.
    void reset() noexcept
    {
        if (source_ == nullptr)
            return;
        // Only ever added by observe(), so the source holds it and removing cannot be refused.
        source_->removeObserver(observer_);
        source_ = nullptr;
    }

    bool isObserving() const noexcept { return source_ != nullptr; }

private:
    T& observer_;
    CObservable<T>* source_ = nullptr;
};

} // namespace common
