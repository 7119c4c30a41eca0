#include "QtTreePeer.h"

#include "aec/AttributeValueFormatter.h"
#include "aec/Entity.h"
#include "aec/Project.h"
#include "aec/ProjectExplorerGroupInfo.h"
#include "aec/PropertyAssignmentKey.h"

#include <QCollator>
#include <QHash>
#include <QList>
#include <QLocale>
#include <QStandardItem>
#include <QStandardItemModel>
#include <QUuid>
#include <algorithm>

namespace benchmarks
{

namespace
{

constexpr int entityIdRole = Qt::UserRole + 1;

QUuid toQUuid(const aec::EntityId& id)
{
    const common::UUID::Bytes& bytes = id.uuid().bytes();
    return QUuid::fromRfc4122(
        QByteArrayView(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())));
}

QStandardItem* groupItem(const aec::ProjectExplorerGroupInfo& group, const aec::IProject& project,
                         const aec::IAttributeValueFormatter& formatter, const QCollator& collator)
{
    auto* item = new QStandardItem(QString::fromStdWString(group.name));
    QHash<QString, QStandardItem*> topics;
    for (const aec::EntityId& id : project.getEntities(group.collection))
    {
        const aec::IEntity* const entity = project.findEntity(id);
        const QString topic = QString::fromStdWString(
            formatter.format(entity->getPropertyValue(aec::PropertyAssignmentKey::topic())));
        QStandardItem*& topicItem = topics[topic];
        if (topicItem == nullptr)
            topicItem = new QStandardItem(topic);
        auto* entityItem = new QStandardItem(QString::fromStdWString(entity->getName()));
        entityItem->setData(toQUuid(id), entityIdRole);
        topicItem->appendRow(entityItem);
    }

    QList<QStandardItem*> sorted = topics.values();
    std::sort(sorted.begin(), sorted.end(),
              [&collator](const QStandardItem* left, const QStandardItem* right)
              { return collator.compare(left->text(), right->text()) < 0; });
    item->appendRows(sorted);
    return item;
}

} // namespace

std::unique_ptr<QStandardItemModel> buildQtExplorerTree(const aec::IProject& project,
                                                        const aec::IAttributeValueFormatter& formatter)
{
    // An explicit locale: Qt compares plainly, without numeric mode, in the C locale of a bare process.
    QCollator collator(QLocale(QLocale::English, QLocale::UnitedStates));
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);

    auto model = std::make_unique<QStandardItemModel>();
    for (const aec::ProjectExplorerGroupInfo& group : aec::projectExplorerGroups())
        if (group.groupable)
            model->appendRow(groupItem(group, project, formatter, collator));
    return model;
}

} // namespace benchmarks
