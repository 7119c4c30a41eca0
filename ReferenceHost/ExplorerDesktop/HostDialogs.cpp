#include "ExplorerDesktop/HostDialogs.h"

#include "ExplorerDesktop/PropertiesDialog.h"
#include "ExplorerDesktop/TableImportPreviewDialog.h"
#include "ExplorerDesktop/TableImportProgress.h"
#include "HostServices/HostServices.h"
#include "aec/GeneralPurposeDialogService.h"

#include <QMessageBox>
#include <QWidget>

namespace aec::desktop
{

namespace
{

DialogAnswer askInMessageBox(QWidget& parent, const host::CScriptedDialogService::Question& question)
{
    const bool yesNo = question.buttonSet == dialogButtonsYesNo;
    const QMessageBox::StandardButtons buttons =
        yesNo ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok | QMessageBox::Cancel;
    // The safe answer is the default one: Enter must not confirm a deletion by accident.
    const QMessageBox::StandardButton safe = yesNo ? QMessageBox::No : QMessageBox::Cancel;
    switch (QMessageBox::question(&parent, QString::fromStdWString(question.title),
                                  QString::fromStdWString(question.text), buttons, safe))
    {
    case QMessageBox::Yes:
        return DialogAnswer::Yes;
    case QMessageBox::Ok:
        return DialogAnswer::Ok;
    case QMessageBox::Cancel:
        return DialogAnswer::Cancel;
    default:
        return DialogAnswer::No;
    }
}

} // namespace

CHostDialogs::CHostDialogs(host::CHostServices& services, QWidget& parentWindow)
    : QObject(&parentWindow), services_(services)
{
    QWidget* const parent = &parentWindow;
    services_.getDialogService().setAskCallback(
        [parent](const host::CScriptedDialogService::Question& question)
        { return askInMessageBox(*parent, question); });
    services_.getImportFileDialog().setAskCallback(
        [this, parent]
        { return CTableImportPreviewDialog::askForFile(*parent, services_.getTableImporter()); });
    new CTableImportProgress(services_.getTableImporter(), parentWindow, this);
    services_.getPropertyEditor().setEditCallback(
        [this, parent](IPropertyContextOwner& /*owner*/, const EntityIdSet& entities)
        {
            model::CSessionManager& sessionManager = services_.getSessionManager();
            if (!sessionManager.hasCurrentProject())
                return;
            CPropertiesDialog dialog(entities, sessionManager.getCurrentProject(), parent);
            dialog.exec();
        });
}

CHostDialogs::~CHostDialogs()
{
    services_.getDialogService().setAskCallback(nullptr);
    services_.getImportFileDialog().setAskCallback(nullptr);
    services_.getPropertyEditor().setEditCallback(nullptr);
}

} // namespace aec::desktop
