#include "ExplorerDesktop/OpenFailureDialog.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace aec::desktop
{

COpenFailureDialog::COpenFailureDialog(const QString& path, const QString& failure, QWidget* parent)
    : QMessageBox(QMessageBox::Critical, tr("Project explorer"),
                  tr("The project %1 cannot be opened.").arg(QFileInfo(path).fileName()), QMessageBox::Ok,
                  parent)
{
    setObjectName("openFailure");
    const QString file = QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath());
    if (const std::optional<Position> position = stopPosition(failure))
        setInformativeText(tr("Reading %1 stopped at line %2, column %3.")
                               .arg(file)
                               .arg(position->line)
                               .arg(position->column));
    else
        setInformativeText(tr("File: %1").arg(file));
    setDetailedText(failure);
}

COpenFailureDialog::~COpenFailureDialog() = default;

std::optional<COpenFailureDialog::Position> COpenFailureDialog::stopPosition(const QString& failure)
{
    static const QRegularExpression where(QStringLiteral(R"(\bline (\d+), column (\d+)\b)"));
    const QRegularExpressionMatch match = where.match(failure);
    if (!match.hasMatch())
        return std::nullopt;
    return Position{match.captured(1).toInt(), match.captured(2).toInt()};
}

} // namespace aec::desktop
