#include "ExplorerShell/UnsavedChanges.h"

#include "AecModel/WideText.h"
#include "Common/Exception.h"
#include "HostFrame/ExplorerSession.h"
#include "HostServices/HostServices.h"

#include <fmt/format.h>

namespace aec::shell
{

CUnsavedChanges::CUnsavedChanges(host::CExplorerSession& session) : session_(session) {}

void CUnsavedChanges::confirmDiscard(std::string_view action, std::string_view command) const
{
    if (!session_.hasUnsavedChanges())
        return;
    const DialogAnswer answer = session_.getHostServices().getDialogService().ask(
        L"Unsaved changes",
        model::fromUtf8(
            fmt::format("The project has changes that are not saved, and {} loses them. Discard the "
                        "changes?",
                        action)),
        dialogButtonsYesNo);
    if (answer != DialogAnswer::Yes)
        throw common::EException(fmt::format(
            "The changes were kept; save them with save FILE, then {} again (or answer yes to discard them).",
            command));
}

} // namespace aec::shell
