#pragma once

#include "aec/EntityId.h"

#include <QString>
#include <QStringList>
#include <memory>

class QMimeData;

namespace aec::desktop
{

// What a drag of entities out of the explorer's tree carries: their identifiers under the
// program's own MIME type, and their names as plain text for any other program the user drops
// them on. A drop finds the entities again only in the same project; others refuse it.
class CEntityDragData
{
public:
    static constexpr const char* mimeType = "application/x-explorer-desktop.entity-ids";

    static std::unique_ptr<QMimeData> make(const EntityIdList& entities, const QStringList& names);
    // Empty when the data carries no entities of this program.
    static EntityIdList read(const QMimeData& data);
};

} // namespace aec::desktop
