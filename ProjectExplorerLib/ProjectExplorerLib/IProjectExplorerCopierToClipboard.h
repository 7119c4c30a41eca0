#pragma once

#include "aec/EntityId.h"

namespace project_explorer
{

// Puts entities on the host clipboard as paste data. The entity controller owns one and copies
// through it, so that what copy and cut put on the clipboard is made in one place.
class IProjectExplorerCopierToClipboard
{
public:
    virtual ~IProjectExplorerCopierToClipboard() = default;

    // Replaces the clipboard's entity data with the data of the entities.
    virtual void copyToClipboard(const aec::EntityIdList& entities) const = 0;
};

} // namespace project_explorer
