#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>

namespace aec::desktop
{

// The cells of an imported table as a read-only Qt table model. The cells are kept as the parsed
// list of rows and turned into text only when a view asks for a cell, so a table of a million rows
// costs its parse and no widget per cell. Rows shorter than the longest show empty cells.
class CTableCellsModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit CTableCellsModel(QObject* parent = nullptr);
    ~CTableCellsModel() override;

    // Shows the cells of the property's text (a JSON list of rows, each a list of cells); false,
    // showing no cells, when there is no text or it does not read as such a list. Text the model
    // shows already is not parsed again.
    bool showCells(const std::optional<std::wstring>& cellsJson);
    // The header row's texts over the columns (a JSON list of texts), when the imported file had
    // one; columns beyond the names keep their numbers.
    void showColumnNames(const std::optional<std::wstring>& columnNamesJson);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    nlohmann::json rows_;
    QStringList columnNames_;
    int columnCount_ = 0;
    std::size_t shownHash_ = 0;
    bool hasShown_ = false;
};

} // namespace aec::desktop
