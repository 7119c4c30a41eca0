#pragma once

#include <QObject>
#include <memory>

class QProgressDialog;
class QWidget;

namespace aec::model
{
class CTableImporter;
} // namespace aec::model

namespace aec::desktop
{

// While it lives, imports that take longer than a moment show their progress in a dialog whose
// Cancel ends the import, leaving the project as it was.
class CTableImportProgress final : public QObject
{
    Q_OBJECT

public:
    // The dialog comes up over the parent window, which must outlive this object, as the importer.
    CTableImportProgress(model::CTableImporter& importer, QWidget& parentWindow, QObject* owner);
    ~CTableImportProgress() override;

private:
    void report(double done);

    model::CTableImporter& importer_;
    QWidget& parentWindow_;
    std::unique_ptr<QProgressDialog> dialog_;
};

} // namespace aec::desktop
