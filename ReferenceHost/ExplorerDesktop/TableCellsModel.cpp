#include "ExplorerDesktop/TableCellsModel.h"

#include "AecModel/WideText.h"

#include <algorithm>
#include <functional>

namespace aec::desktop
{

CTableCellsModel::CTableCellsModel(QObject* parent) : QAbstractTableModel(parent) {}

CTableCellsModel::~CTableCellsModel() = default;

bool CTableCellsModel::showCells(const std::optional<std::wstring>& cellsJson)
{
    // A page shows its entity again after every change of the project; a table's cells rarely
    // change, and parsing them again each time would cost as much as opening the table.
    const std::size_t hash = cellsJson ? std::hash<std::wstring>{}(*cellsJson) : 0;
    if (hasShown_ && hash == shownHash_)
        return columnCount_ > 0;
    hasShown_ = true;
    shownHash_ = hash;

    nlohmann::json rows =
        cellsJson ? nlohmann::json::parse(model::toUtf8(*cellsJson), nullptr, false) : nlohmann::json();
    // Cells that do not read as a list of rows (edited by hand) are left out, not guessed at.
    const bool isGrid = rows.is_array() && !rows.empty() &&
                        std::ranges::all_of(rows, [](const nlohmann::json& row) { return row.is_array(); });
    std::size_t columns = 0;
    if (isGrid)
        for (const nlohmann::json& row : rows)
            columns = std::max(columns, row.size());
    beginResetModel();
    rows_ = isGrid ? std::move(rows) : nlohmann::json::array();
    columnCount_ = static_cast<int>(columns);
    endResetModel();
    return isGrid;
}

int CTableCellsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int CTableCellsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : columnCount_;
}

QVariant CTableCellsModel::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const nlohmann::json& row = rows_[static_cast<std::size_t>(index.row())];
    const auto column = static_cast<std::size_t>(index.column());
    if (column >= row.size())
        return QString();
    const nlohmann::json& cell = row[column];
    return cell.is_string() ? QString::fromStdString(cell.get_ref<const std::string&>())
                            : QString::fromStdString(cell.dump());
}

void CTableCellsModel::showColumnNames(const std::optional<std::wstring>& columnNamesJson)
{
    const nlohmann::json names = columnNamesJson
                                     ? nlohmann::json::parse(model::toUtf8(*columnNamesJson), nullptr, false)
                                     : nlohmann::json();
    QStringList columnNames;
    if (names.is_array())
        for (const nlohmann::json& name : names)
            columnNames.append(name.is_string() ? QString::fromStdString(name.get<std::string>()) : QString());
    if (columnNames == columnNames_)
        return;
    columnNames_ = std::move(columnNames);
    if (columnCount_ > 0)
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount_ - 1);
}

QVariant CTableCellsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || section < 0 ||
        section >= (orientation == Qt::Vertical ? rowCount() : columnCount()))
        return {};
    if (orientation == Qt::Horizontal && section < columnNames_.size() && !columnNames_[section].isEmpty())
        return columnNames_[section];
    // Numbered from 1 both ways, as a spreadsheet numbers its rows.
    return section + 1;
}

} // namespace aec::desktop
