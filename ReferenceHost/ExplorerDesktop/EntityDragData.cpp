#include "ExplorerDesktop/EntityDragData.h"

#include "Common/UUID.h"

#include <QMimeData>

namespace aec::desktop
{

std::unique_ptr<QMimeData> CEntityDragData::make(const EntityIdList& entities, const QStringList& names)
{
    QStringList identifiers;
    for (const EntityId& entity : entities)
        identifiers.append(QString::fromStdString(entity.uuid().toString()));
    auto data = std::make_unique<QMimeData>();
    data->setData(mimeType, identifiers.join(QLatin1Char('\n')).toUtf8());
    data->setText(names.join(QLatin1Char('\n')));
    return data;
}

EntityIdList CEntityDragData::read(const QMimeData& data)
{
    EntityIdList entities;
    const QString identifiers = QString::fromUtf8(data.data(mimeType));
    for (const QString& identifier : identifiers.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
    {
        // Anyone may put anything under any type; a drag that is not ours is simply not taken.
        const std::optional<common::UUID> uuid = common::UUID::tryParse(identifier.toStdString());
        if (!uuid)
            return {};
        entities.emplace_back(*uuid);
    }
    return entities;
}

} // namespace aec::desktop
