#include "ExplorerDesktop/StatusCounts.h"

#include "ExplorerDesktop/ExplorerItemModel.h"

#include <QItemSelectionModel>
#include <QLocale>
#include <QStringList>
#include <QTimer>
#include <utility>

namespace aec::desktop
{

CStatusCounts::CStatusCounts(const QAbstractItemModel& model, const QItemSelectionModel& selection,
                             QWidget* parent)
    : QLabel(parent), model_(model), selection_(selection)
{
    setObjectName("statusCounts");
    connect(&model_, &QAbstractItemModel::rowsInserted, this, &CStatusCounts::markStale);
    connect(&model_, &QAbstractItemModel::rowsRemoved, this, &CStatusCounts::markStale);
    connect(&model_, &QAbstractItemModel::dataChanged, this, &CStatusCounts::markStale);
    connect(&model_, &QAbstractItemModel::modelReset, this, &CStatusCounts::markStale);
    connect(&model_, &QAbstractItemModel::layoutChanged, this, &CStatusCounts::markStale);
    connect(&selection_, &QItemSelectionModel::selectionChanged, this, &CStatusCounts::markStale);
    recount();
}

CStatusCounts::~CStatusCounts() = default;

void CStatusCounts::recount()
{
    stale_ = false;
    const QLocale locale;
    qulonglong entities = 0;
    QStringList perGroup;
    for (int row = 0; row < model_.rowCount(); ++row)
    {
        const QModelIndex group = model_.index(row, 0);
        const qulonglong count = group.data(CExplorerItemModel::EntityCountRole).toULongLong();
        entities += count;
        perGroup.append(tr("%1: %2").arg(group.data(Qt::EditRole).toString(), locale.toString(count)));
    }
    // Only entities are selectable, so the rows of the selection's ranges are its entities.
    qsizetype selected = 0;
    for (const QItemSelectionRange& range : selection_.selection())
        selected += range.height();
    setText(tr("%1 entities, %2 selected").arg(locale.toString(entities), locale.toString(selected)));
    setToolTip(perGroup.join(QLatin1Char('\n')));
}

void CStatusCounts::markStale()
{
    if (std::exchange(stale_, true))
        return;
    QTimer::singleShot(0, this, &CStatusCounts::recount);
}

} // namespace aec::desktop
