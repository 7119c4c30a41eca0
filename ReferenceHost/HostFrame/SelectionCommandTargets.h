#pragma once

#include "HostFrame/HostFrameApi.h"

#include <optional>
#include <string>

namespace aec::host
{

class CExplorerSession;
class CGui;

// The host's check of what copy, cut and delete would act on: the explorer enables them for any
// selection, and passes over the selected entities that they cannot act on. A selection of only
// such entities gets these commands disabled, with a sentence that says why, so that no menu
// offers a command that then does nothing. Copy acts on the entities the host's classifier gives a
// copy collection (all but linked models); cut and delete on those of a type that the project's
// services have a type handler for (sheets, tables, assemblies, materials).
class HOSTFRAME_API CSelectionCommandTargets
{
public:
    explicit CSelectionCommandTargets(CExplorerSession& session);

    // Installs the checks of commands 81, 82 and 11 into the GUI, which the session must outlive.
    void install(CGui& gui) const;

    std::optional<std::string> copyRefusal() const;
    std::optional<std::string> removalRefusal(const char* verb) const;

private:
    CExplorerSession& session_;
};

} // namespace aec::host
