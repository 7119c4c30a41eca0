#pragma once

#include <QLabel>

class QAbstractItemModel;
class QItemSelectionModel;

namespace aec::desktop
{

// The lasting part of the status bar: how many entities the project holds and how many are
// selected, with the count of each group in its tooltip. Counting after every row that comes or
// goes would cost more than the change itself on a large project, so changes only mark the
// counts stale and they are counted once, when the event loop is next idle.
class CStatusCounts final : public QLabel
{
    Q_OBJECT

public:
    // The model is the explorer's item model, whose top rows are the groups with their counts.
    CStatusCounts(const QAbstractItemModel& model, const QItemSelectionModel& selection,
                  QWidget* parent = nullptr);
    ~CStatusCounts() override;

    // Counts now, rather than when the event loop is next idle.
    void recount();

private:
    void markStale();

    const QAbstractItemModel& model_;
    const QItemSelectionModel& selection_;
    bool stale_ = false;
};

} // namespace aec::desktop
