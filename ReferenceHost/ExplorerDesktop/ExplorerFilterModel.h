#pragma once

#include "ExplorerDesktop/NameMatcher.h"

#include <QSortFilterProxyModel>

namespace aec::desktop
{

// The explorer's tree narrowed to the entities whose names match a filter, with the groups and
// subgroups that lead to them. The proxy sits between the tree view and the explorer's item model
// only while a filter is set: a project of 100,000 entities must not pay for mapping every row
// when nothing is filtered.
class CExplorerFilterModel final : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit CExplorerFilterModel(QObject* parent = nullptr);
    ~CExplorerFilterModel() override;

    void setNameFilter(const QString& filter);

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

private:
    CNameMatcher matcher_;
};

} // namespace aec::desktop
