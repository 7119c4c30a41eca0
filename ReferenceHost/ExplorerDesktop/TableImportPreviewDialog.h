#pragma once

#include "AecModel/TableReadSettings.h"

#include <QDialog>
#include <QString>

class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QLabel;
class QTableWidget;

namespace aec::model
{
class CTableImporter;
} // namespace aec::model

namespace aec::desktop
{

// Shows a table file before it is imported: its kind, the encoding, delimiter and header row that
// were detected, each of which the user can change, and the first rows as they will be imported.
// A file that cannot be read shows why, and cannot be imported.
class CTableImportPreviewDialog final : public QDialog
{
    Q_OBJECT

public:
    // The rows shown; enough to see the columns and recognise the data.
    static constexpr int previewRows = 20;

    CTableImportPreviewDialog(QString file, QWidget* parent);
    ~CTableImportPreviewDialog() override;

    // What the user settled on, for the importer to read the file with.
    const model::TableReadChoices& getChoices() const noexcept { return choices_; }

    QComboBox& getEncoding() const noexcept { return *encoding_; }
    QComboBox& getDelimiter() const noexcept { return *delimiter_; }
    QCheckBox& getHeaderRow() const noexcept { return *headerRow_; }
    QTableWidget& getRows() const noexcept { return *rows_; }
    QLabel& getSummary() const noexcept { return *summary_; }

    // Asks for a table file, then previews it: the file when the user imports it, the importer set
    // to read it as previewed; empty when the user cancels either.
    static std::wstring askForFile(QWidget& parent, model::CTableImporter& importer);

private:
    // Reads the file again with the choices and shows the result.
    void reload();
    void takeChoicesFromControls();

    QString file_;
    model::TableReadChoices choices_;
    QLabel* summary_;
    QComboBox* encoding_;
    QComboBox* delimiter_;
    QCheckBox* headerRow_;
    QTableWidget* rows_;
    QDialogButtonBox* buttons_;
};

} // namespace aec::desktop
