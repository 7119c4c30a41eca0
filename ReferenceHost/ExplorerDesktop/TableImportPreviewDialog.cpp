#include "ExplorerDesktop/TableImportPreviewDialog.h"

#include "AecModel/TableFileReader.h"
#include "AecModel/TableImporter.h"
#include "Common/Exception.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>
#include <array>

namespace aec::desktop
{

namespace
{

// The encodings offered besides the detected one: those of the spreadsheet programs' text exports
// in the common settings.
const std::array<const char*, 10> offeredEncodings{
    "UTF-8",        "UTF-16LE",   "UTF-16BE",    "windows-1252", "windows-1250",
    "windows-1251", "ISO-8859-1", "ISO-8859-15", "Shift_JIS",    "GB18030"};

const std::array<char, 4> offeredDelimiters{',', ';', '\t', '|'};

} // namespace

CTableImportPreviewDialog::CTableImportPreviewDialog(QString file, QWidget* parent)
    : QDialog(parent), file_(std::move(file)), summary_(new QLabel(this)), encoding_(new QComboBox(this)),
      delimiter_(new QComboBox(this)), headerRow_(new QCheckBox(tr("First row names the columns"), this)),
      rows_(new QTableWidget(this)),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setWindowTitle(tr("Import table"));
    summary_->setWordWrap(true);
    for (const char* encoding : offeredEncodings)
        encoding_->addItem(QString::fromLatin1(encoding));
    for (const char delimiter : offeredDelimiters)
        delimiter_->addItem(QString::fromStdString(model::delimiterName(delimiter)), QChar(delimiter));
    rows_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    buttons_->button(QDialogButtonBox::Ok)->setText(tr("Import"));

    auto* const settings = new QFormLayout;
    settings->addRow(tr("Encoding:"), encoding_);
    settings->addRow(tr("Delimiter:"), delimiter_);
    settings->addRow(QString(), headerRow_);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(summary_);
    layout->addLayout(settings);
    layout->addWidget(rows_, 1);
    layout->addWidget(buttons_);
    resize(720, 480);

    connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    const auto changed = [this]
    {
        takeChoicesFromControls();
        reload();
    };
    connect(encoding_, &QComboBox::currentIndexChanged, this, changed);
    connect(delimiter_, &QComboBox::currentIndexChanged, this, changed);
    connect(headerRow_, &QCheckBox::toggled, this, changed);
    reload();
}

CTableImportPreviewDialog::~CTableImportPreviewDialog() = default;

void CTableImportPreviewDialog::takeChoicesFromControls()
{
    choices_.encoding = encoding_->currentText().toStdString();
    choices_.delimiter = delimiter_->currentData().toChar().toLatin1();
    choices_.headerRow = headerRow_->isChecked();
}

void CTableImportPreviewDialog::reload()
{
    rows_->clear();
    rows_->setRowCount(0);
    rows_->setColumnCount(0);
    std::optional<model::CTableFileReader::Result> table;
    try
    {
        table = model::CTableFileReader::read(file_.toStdString(), choices_, previewRows + 1);
    }
    catch (const std::exception& error)
    {
        summary_->setText(tr("This file cannot be imported: %1.").arg(QString::fromUtf8(error.what())));
        buttons_->button(QDialogButtonBox::Ok)->setEnabled(false);
        return;
    }
    buttons_->button(QDialogButtonBox::Ok)->setEnabled(true);

    const model::TableImportReport& report = table->report;
    const bool text = report.format == "CSV";
    {
        // The controls show what was read; showing it is no change of the user's.
        const QSignalBlocker encodingBlocker(encoding_);
        const QSignalBlocker delimiterBlocker(delimiter_);
        const QSignalBlocker headerBlocker(headerRow_);
        const QString encoding = QString::fromStdString(report.settings.encoding);
        if (encoding_->findText(encoding) < 0)
            encoding_->addItem(encoding);
        encoding_->setCurrentText(encoding);
        delimiter_->setCurrentIndex(delimiter_->findData(QChar(report.settings.delimiter)));
        headerRow_->setChecked(report.settings.headerRow);
    }
    encoding_->setEnabled(text);
    delimiter_->setEnabled(text);
    takeChoicesFromControls();
    if (!text)
    {
        choices_.encoding.reset();
        choices_.delimiter.reset();
    }

    summary_->setText(
        text ? tr("A text table, read as detected below; change what does not look right.")
             : tr("A spreadsheet (%1): its first sheet, \"%2\".")
                   .arg(QString::fromStdString(report.format), QString::fromStdString(report.sheetName)));
    const model::CTableCells& cells = table->cells;
    const std::size_t firstRow = report.settings.headerRow ? 1 : 0;
    const std::size_t shown = cells.rowCount() - std::min(cells.rowCount(), firstRow);
    rows_->setColumnCount(static_cast<int>(cells.columnCount()));
    rows_->setRowCount(static_cast<int>(std::min<std::size_t>(shown, previewRows)));
    if (report.settings.headerRow && cells.rowCount() > 0)
    {
        QStringList names;
        for (std::size_t column = 0; column < cells.columnCount(); ++column)
            names.append(QString::fromStdString(std::string(cells.cell(0, column))));
        rows_->setHorizontalHeaderLabels(names);
    }
    for (int row = 0; row < rows_->rowCount(); ++row)
        for (int column = 0; column < rows_->columnCount(); ++column)
            rows_->setItem(
                row, column,
                new QTableWidgetItem(QString::fromStdString(std::string(cells.cell(
                    firstRow + static_cast<std::size_t>(row), static_cast<std::size_t>(column))))));
}

std::wstring CTableImportPreviewDialog::askForFile(QWidget& parent, model::CTableImporter& importer)
{
    const QString file = QFileDialog::getOpenFileName(
        &parent, tr("Import table"), QString(), tr("Tables (*.csv *.tsv *.txt *.xlsx *.ods);;All files (*)"));
    if (file.isEmpty())
        return {};
    CTableImportPreviewDialog preview(file, &parent);
    if (preview.exec() != QDialog::Accepted)
        return {};
    importer.setChoices(preview.getChoices());
    return file.toStdWString();
}

} // namespace aec::desktop
