#pragma once

#include "aec/AecApi.h"
#include "aec/EntityId.h"

#include <cstdint>

namespace aec
{

// Event codes of the project's object-change notifications.
inline constexpr std::uint32_t objectEventEntitiesChanged = 35;

// Observer of the project's object events.
class AEC_INTERFACE IObjectEvents
{
public:
    virtual ~IObjectEvents() = default;

    // A project was opened.
    virtual void onProjectOpened() = 0;
    // Objects changed: (event code, a host value, the entities added or changed, the entities removed).
    virtual void onObjectsChanged(std::uint32_t code, std::uint32_t value, const EntityIdSet& changed,
                                  const EntityIdSet& removed) = 0;
    // The project is about to close.
    virtual void onProjectClosing() = 0;
};

} // namespace aec
