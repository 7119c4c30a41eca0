#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <memory>
#include <optional>
#include <string>

namespace aec::model
{
class CPropertyValue;
class CTableCells;
} // namespace aec::model

namespace aec::desktop
{

// The cells of an imported table as a read-only Qt table model. The model shares the table's cell
// store with the project (or, for cells kept as text, reads the text into a store of its own once)
// and makes a cell's text only when a view asks for it, so a table of a million rows costs no copy
// and no widget per cell. Rows shorter than the longest show empty cells.
class CTableCellsModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit CTableCellsModel(QObject* parent = nullptr);
    ~CTableCellsModel() override;

    // Shows the cells of the property (null when the entity has none); false, showing no cells,
    // when there is none or its text does not read as a JSON list of rows, each a list of cells.
    // Cells the model shows already are not read again.
    bool showCells(const model::CPropertyValue* cells);
    // The header row's texts over the columns (a JSON list of texts), when the imported file had
    // one; columns beyond the names keep their numbers.
    void showColumnNames(const std::optional<std::wstring>& columnNamesJson);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    std::shared_ptr<const model::CTableCells> cells_;
    QStringList columnNames_;
    // What the cells shown were read from: the shared store, or the hash of their text.
    std::shared_ptr<const model::CTableCells> shownStore_;
    std::size_t shownTextHash_ = 0;
    bool hasShown_ = false;
};

} // namespace aec::desktop
