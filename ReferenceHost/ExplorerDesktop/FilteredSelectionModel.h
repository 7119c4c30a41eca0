#pragma once

#include <QItemSelectionModel>

class QSortFilterProxyModel;

namespace aec::desktop
{

// The selection of a view that shows the explorer's tree through a filter, kept equal to the
// selection of the unfiltered tree, which is the one that talks to the explorer. What the user
// selects or deselects among the shown rows is passed on as a change, so that selected entities
// the filter hides stay selected; whatever the unfiltered selection becomes is shown. The current
// row is passed on too, since the window follows it to show the grouping of the current group.
class CFilteredSelectionModel final : public QItemSelectionModel
{
    Q_OBJECT

public:
    // The proxy's source must be the model of `unfiltered`; both must outlive this.
    CFilteredSelectionModel(QSortFilterProxyModel& proxy, QItemSelectionModel& unfiltered,
                            QObject* parent = nullptr);
    ~CFilteredSelectionModel() override;

    // Shows the unfiltered selection again, after the filter changed which rows are shown.
    void showUnfilteredSelection();

private:
    void passOn(const QItemSelection& selected, const QItemSelection& deselected);

    QSortFilterProxyModel& proxy_;
    QItemSelectionModel& unfiltered_;
    bool showing_ = false;
};

} // namespace aec::desktop
