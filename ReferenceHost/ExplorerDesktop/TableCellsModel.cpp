#include "ExplorerDesktop/TableCellsModel.h"

#include "AecModel/PropertyValue.h"
#include "AecModel/TableCells.h"
#include "AecModel/WideText.h"

#include <functional>
#include <nlohmann/json.hpp>

namespace aec::desktop
{

CTableCellsModel::CTableCellsModel(QObject* parent) : QAbstractTableModel(parent) {}

CTableCellsModel::~CTableCellsModel() = default;

bool CTableCellsModel::showCells(const model::CPropertyValue* cells)
{
    // A page shows its entity again after every change of the project; a table's cells rarely
    // change, and reading cells kept as text again each time would cost as much as opening the table.
    std::shared_ptr<const model::CTableCells> store = cells == nullptr ? nullptr : cells->getCells();
    const std::string text = cells == nullptr || store ? std::string() : cells->toUtf8();
    const std::size_t textHash = std::hash<std::string>{}(text);
    if (hasShown_ && store == shownStore_ && textHash == shownTextHash_)
        return cells_ != nullptr;
    hasShown_ = true;
    shownStore_ = store;
    shownTextHash_ = textHash;

    // Cells kept as text that does not read as a list of rows (edited by hand) are left out, not
    // guessed at.
    if (!store && !text.empty())
        if (std::optional<model::CTableCells> read = model::CTableCells::fromJson(text))
            store = std::make_shared<const model::CTableCells>(std::move(*read));
    beginResetModel();
    cells_ = store && store->rowCount() > 0 ? std::move(store) : nullptr;
    endResetModel();
    return cells_ != nullptr;
}

int CTableCellsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() || !cells_ ? 0 : static_cast<int>(cells_->rowCount());
}

int CTableCellsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() || !cells_ ? 0 : static_cast<int>(cells_->columnCount());
}

QVariant CTableCellsModel::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const std::string_view cell =
        cells_->cell(static_cast<std::size_t>(index.row()), static_cast<std::size_t>(index.column()));
    return QString::fromUtf8(cell.data(), static_cast<qsizetype>(cell.size()));
}

void CTableCellsModel::showColumnNames(const std::optional<std::wstring>& columnNamesJson)
{
    const nlohmann::json names = columnNamesJson
                                     ? nlohmann::json::parse(model::toUtf8(*columnNamesJson), nullptr, false)
                                     : nlohmann::json();
    QStringList columnNames;
    if (names.is_array())
        for (const nlohmann::json& name : names)
            columnNames.append(name.is_string() ? QString::fromStdString(name.get<std::string>())
                                                : QString());
    if (columnNames == columnNames_)
        return;
    columnNames_ = std::move(columnNames);
    if (columnCount() > 0)
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
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
