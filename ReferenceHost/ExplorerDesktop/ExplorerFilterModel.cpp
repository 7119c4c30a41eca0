#include "ExplorerDesktop/ExplorerFilterModel.h"

#include "ExplorerDesktop/ExplorerItemModel.h"
#include "ExplorerDesktop/ExplorerTreeNode.h"

namespace aec::desktop
{

CExplorerFilterModel::CExplorerFilterModel(QObject* parent) : QSortFilterProxyModel(parent)
{
    // A group or subgroup stays when any entity below it matches; its own name does not count.
    setRecursiveFilteringEnabled(true);
}

CExplorerFilterModel::~CExplorerFilterModel() = default;

void CExplorerFilterModel::setNameFilter(const QString& filter)
{
    // Qt 6.4 has no beginFilterChange; invalidateFilter re-reads every row once.
    matcher_.setFilter(filter);
    invalidateFilter();
}

bool CExplorerFilterModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    const QModelIndex index = sourceModel()->index(sourceRow, 0, sourceParent);
    const auto kind = static_cast<CExplorerTreeNode::Kind>(index.data(CExplorerItemModel::KindRole).toInt());
    return kind == CExplorerTreeNode::Kind::Entity && matcher_.matchesFolded(foldedName(index));
}

const QString& CExplorerFilterModel::foldedName(const QModelIndex& sourceIndex) const
{
    const QString name = sourceIndex.data(Qt::EditRole).toString();
    FoldedName& kept = foldedNames_[sourceIndex.internalPointer()];
    if (kept.folded.isNull() || kept.name != name)
        kept = FoldedName{name, CNameMatcher::fold(name)};
    return kept.folded;
}

} // namespace aec::desktop
