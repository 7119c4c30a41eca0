#pragma once

#include "ExplorerDesktop/NameMatcher.h"

#include <QSortFilterProxyModel>
#include <unordered_map>

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
    struct FoldedName
    {
        QString name;
        QString folded;
    };

    const QString& foldedName(const QModelIndex& sourceIndex) const;

    CNameMatcher matcher_;
    // Folding a name costs far more than looking for the words in it, and every key the user types
    // asks about every name again (some twice, for the rows above them), so folded names are kept
    // by row for the filter's lifetime. Rows are told apart by their internal pointers, which
    // cost nothing to hash where names would; the name is compared, so a renamed entity, or a
    // new row where a removed one was, is folded again.
    mutable std::unordered_map<const void*, FoldedName> foldedNames_;
};

} // namespace aec::desktop
