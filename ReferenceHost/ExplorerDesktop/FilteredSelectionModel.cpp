#include "ExplorerDesktop/FilteredSelectionModel.h"

#include <QSortFilterProxyModel>

namespace aec::desktop
{

CFilteredSelectionModel::CFilteredSelectionModel(QSortFilterProxyModel& proxy,
                                                 QItemSelectionModel& unfiltered, QObject* parent)
    : QItemSelectionModel(&proxy, parent), proxy_(proxy), unfiltered_(unfiltered)
{
    connect(this, &QItemSelectionModel::selectionChanged, this, &CFilteredSelectionModel::passOn);
    connect(this, &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current)
            {
                if (!showing_)
                    unfiltered_.setCurrentIndex(proxy_.mapToSource(current), QItemSelectionModel::NoUpdate);
            });
    connect(&unfiltered_, &QItemSelectionModel::selectionChanged, this,
            &CFilteredSelectionModel::showUnfilteredSelection);
    // Rows that the filter hides leave this selection, as removed rows do; that is no choice of
    // the user's, and the unfiltered selection keeps them.
    const auto hold = [this]
    {
        showing_ = true;
    };
    const auto release = [this]
    {
        showing_ = false;
        showUnfilteredSelection();
    };
    connect(&proxy_, &QAbstractItemModel::rowsAboutToBeRemoved, this, hold);
    connect(&proxy_, &QAbstractItemModel::rowsRemoved, this, release);
    connect(&proxy_, &QAbstractItemModel::layoutAboutToBeChanged, this, hold);
    connect(&proxy_, &QAbstractItemModel::layoutChanged, this, release);
    connect(&proxy_, &QAbstractItemModel::modelAboutToBeReset, this, hold);
    connect(&proxy_, &QAbstractItemModel::modelReset, this, release);
    connect(&proxy_, &QAbstractItemModel::rowsInserted, this,
            &CFilteredSelectionModel::showUnfilteredSelection);
    showUnfilteredSelection();
}

CFilteredSelectionModel::~CFilteredSelectionModel() = default;

void CFilteredSelectionModel::showUnfilteredSelection()
{
    if (showing_)
        return;
    const QItemSelection shown = proxy_.mapSelectionFromSource(unfiltered_.selection());
    if (shown == selection())
        return;
    showing_ = true;
    select(shown, QItemSelectionModel::ClearAndSelect);
    showing_ = false;
}

void CFilteredSelectionModel::passOn(const QItemSelection& selected, const QItemSelection& deselected)
{
    if (showing_)
        return;
    // The unfiltered selection model tells the explorer at each change, so the change goes in one.
    QItemSelection wanted = unfiltered_.selection();
    wanted.merge(proxy_.mapSelectionToSource(deselected), QItemSelectionModel::Deselect);
    wanted.merge(proxy_.mapSelectionToSource(selected), QItemSelectionModel::Select);
    showing_ = true;
    unfiltered_.select(wanted, QItemSelectionModel::ClearAndSelect);
    showing_ = false;
    // The explorer may have refused, or selected more than was asked.
    showUnfilteredSelection();
}

} // namespace aec::desktop
