#pragma once

#include "aec/ObjectEvents.h"

#include "Common/Observable.h"

#include <cstdint>
#include <vector>

namespace aec::model::test
{

// Listens to a project's object events for as long as it lives and keeps what it heard.
class CObjectEventRecorder final : public IObjectEvents
{
public:
    struct Event
    {
        std::uint32_t code;
        std::uint32_t collections; // the event's value: the mask of the touched collections
        EntityIdSet changed;
        EntityIdSet removed;
    };

    explicit CObjectEventRecorder(common::CObservable<IObjectEvents>& source) : events_(source)
    {
        events_.addObserver(*this);
    }
    ~CObjectEventRecorder() override { events_.removeObserver(*this); }
    CObjectEventRecorder(const CObjectEventRecorder&) = delete;
    CObjectEventRecorder& operator=(const CObjectEventRecorder&) = delete;

    void onProjectOpened() override {}
    void onObjectsChanged(std::uint32_t code, std::uint32_t value, const EntityIdSet& changed,
                          const EntityIdSet& removed) override
    {
        events.push_back(Event{code, value, changed, removed});
    }
    void onProjectClosing() override {}

    std::vector<Event> events;

private:
    common::CObservable<IObjectEvents>& events_;
};

} // namespace aec::model::test
