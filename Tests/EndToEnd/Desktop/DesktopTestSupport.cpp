#include "DesktopTestSupport.h"

#include "ExplorerDesktop/ExplorerItemModel.h"
#include "ExplorerDesktop/ExplorerTreeReader.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerSubgroup.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTreeView>

namespace aec::desktop
{

namespace
{

QString name(const QModelIndex& index)
{
    return index.data(Qt::EditRole).toString();
}

// Which entities the row shows against those of the subgroup; empty when they are the same.
QString entitiesMismatch(const CExplorerItemModel& model, const QModelIndex& shown,
                         const IProjectExplorerSubgroup& subgroup)
{
    EntityIdSet shownEntities;
    for (int row = 0; row < model.rowCount(shown); ++row)
    {
        const CExplorerTreeNode* const node = model.nodeAt(model.index(row, 0, shown));
        if (node->getKind() != CExplorerTreeNode::Kind::Entity)
            return QString("\"%1\" shows a subgroup among its entities").arg(name(shown));
        shownEntities.insert(node->getEntity());
    }
    const EntityIdSet entities(subgroup.getEntities().begin(), subgroup.getEntities().end());
    if (shownEntities != entities)
        return QString("\"%1\" shows %2 entities, not its %3")
            .arg(name(shown))
            .arg(shownEntities.size())
            .arg(entities.size());
    return {};
}

QString subgroupMismatch(const CExplorerItemModel& model, const QModelIndex& shown,
                         const IProjectExplorerSubgroup& subgroup)
{
    const QString expectedName = QString::fromStdWString(subgroup.getName());
    if (name(shown) != expectedName)
        return QString("subgroup \"%1\" is shown as \"%2\"").arg(expectedName, name(shown));
    if (model.isExpanded(shown) != subgroup.isExpanded())
        return QString("subgroup \"%1\" is shown %2")
            .arg(expectedName, subgroup.isExpanded() ? "folded" : "unfolded");
    if (const QString mismatch = entitiesMismatch(model, shown, subgroup); !mismatch.isEmpty())
        return mismatch;
    if (shown.data(CExplorerItemModel::EntityCountRole).toULongLong() !=
        static_cast<qulonglong>(std::ranges::distance(subgroup.getEntities())))
        return QString("subgroup \"%1\" counts wrong").arg(expectedName);
    return {};
}

} // namespace

QString explorerMismatch(const CExplorerItemModel& model, const IProjectExplorer& explorer)
{
    int groupRow = 0;
    for (const IProjectExplorerGroup& group : explorer.getGroups())
    {
        const QModelIndex shown = model.index(groupRow++, 0);
        const QString groupName = QString::fromStdWString(group.getName());
        if (name(shown) != groupName)
            return QString("group \"%1\" is shown as \"%2\"").arg(groupName, name(shown));
        if (model.isExpanded(shown) != group.isExpanded())
            return QString("group \"%1\" is shown %2")
                .arg(groupName, group.isExpanded() ? "folded" : "unfolded");
        int subgroupRow = 0;
        std::size_t entityCount = 0;
        if (showsFlat(group))
        {
            const IProjectExplorerSubgroup& subgroup = flatSubgroup(group);
            if (const QString mismatch = entitiesMismatch(model, shown, subgroup); !mismatch.isEmpty())
                return mismatch;
            subgroupRow = model.rowCount(shown);
            entityCount = static_cast<std::size_t>(std::ranges::distance(subgroup.getEntities()));
        }
        else
            for (const IProjectExplorerSubgroup& subgroup : group.getSubgroups())
            {
                const QString mismatch =
                    subgroupMismatch(model, model.index(subgroupRow++, 0, shown), subgroup);
                if (!mismatch.isEmpty())
                    return QString("%1: %2").arg(groupName, mismatch);
                entityCount += static_cast<std::size_t>(std::ranges::distance(subgroup.getEntities()));
            }
        if (model.rowCount(shown) != subgroupRow)
            return QString("group \"%1\" shows %2 rows, not %3")
                .arg(groupName)
                .arg(model.rowCount(shown))
                .arg(subgroupRow);
        if (shown.data(CExplorerItemModel::EntityCountRole).toULongLong() != entityCount)
            return QString("group \"%1\" counts wrong").arg(groupName);
    }
    if (model.rowCount() != groupRow)
        return QString("%1 groups are shown, not %2").arg(model.rowCount()).arg(groupRow);
    return {};
}

QString foldMismatch(const QTreeView& view, const CExplorerItemModel& model)
{
    for (int groupRow = 0; groupRow < model.rowCount(); ++groupRow)
    {
        const QModelIndex group = model.index(groupRow, 0);
        for (int row = -1; row < model.rowCount(group); ++row)
        {
            const QModelIndex index = row < 0 ? group : model.index(row, 0, group);
            if (view.isExpanded(index) != model.isExpanded(index))
                return QString("the view shows \"%1\" %2")
                    .arg(name(index), model.isExpanded(index) ? "folded" : "unfolded");
        }
    }
    return {};
}

IProjectExplorerGroup& groupAt(IProjectExplorer& explorer, int row)
{
    auto groups = explorer.getGroups();
    return *std::next(groups.begin(), row);
}

QModelIndex findEntityRow(const CExplorerItemModel& model, const std::wstring& name)
{
    for (const QModelIndex& index :
         model.match(model.index(0, 0), Qt::EditRole, QString::fromStdWString(name), -1,
                     Qt::MatchExactly | Qt::MatchRecursive | Qt::MatchWrap))
        if (model.nodeAt(index)->getKind() == CExplorerTreeNode::Kind::Entity)
            return index;
    return {};
}

QModelIndex entityRow(const CExplorerItemModel& model, const std::wstring& name)
{
    const QModelIndex index = findEntityRow(model, name);
    if (!index.isValid())
        qFatal("the tree shows no entity named %ls", name.c_str());
    return index;
}

QStringList subgroupNames(const CExplorerItemModel& model, int groupRow)
{
    const QModelIndex group = model.index(groupRow, 0);
    QStringList names;
    for (int row = 0; row < model.rowCount(group); ++row)
        names.append(name(model.index(row, 0, group)));
    return names;
}

QString writeTestFile(const QTemporaryDir& directory, const QString& name, const QByteArray& content)
{
    const QString path = directory.filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write the test file %s", qPrintable(path));
    return path;
}

} // namespace aec::desktop
