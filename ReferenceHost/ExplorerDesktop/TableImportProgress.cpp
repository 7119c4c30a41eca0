#include "ExplorerDesktop/TableImportProgress.h"

#include "AecModel/TableImporter.h"
#include "Common/Exception.h"

#include <QProgressDialog>

namespace aec::desktop
{

namespace
{

constexpr int steps = 1000;
// Imports that end sooner show nothing: a dialog that flashes up is worse than none.
constexpr int shownAfterMilliseconds = 500;

} // namespace

CTableImportProgress::CTableImportProgress(model::CTableImporter& importer, QWidget& parentWindow,
                                           QObject* owner)
    : QObject(owner), importer_(importer), parentWindow_(parentWindow)
{
    importer_.setProgress([this](double done) { report(done); });
}

CTableImportProgress::~CTableImportProgress()
{
    importer_.setProgress({});
}

void CTableImportProgress::report(double done)
{
    if (done >= 1.0)
    {
        dialog_.reset();
        return;
    }
    if (!dialog_)
    {
        dialog_ = std::make_unique<QProgressDialog>(tr("Importing the table..."), tr("Cancel"), 0, steps,
                                                    &parentWindow_);
        dialog_->setWindowModality(Qt::WindowModal);
        dialog_->setMinimumDuration(shownAfterMilliseconds);
        dialog_->setAutoClose(false);
        dialog_->setAutoReset(false);
    }
    // A window-modal progress dialog handles the events that reach it here, Cancel among them.
    dialog_->setValue(static_cast<int>(done * steps));
    if (dialog_->wasCanceled())
    {
        dialog_.reset();
        throw common::EException("the import was cancelled");
    }
}

} // namespace aec::desktop
