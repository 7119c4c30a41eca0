#include "HostFrame/SelectionCommandTargets.h"

#include "AecModel/EntityClassifier.h"
#include "AecModel/Project.h"
#include "AecModel/ProjectServices.h"
#include "HostFrame/ExplorerSession.h"
#include "HostFrame/Gui.h"
#include "aec/Commands.h"

#include <algorithm>
#include <fmt/format.h>

namespace aec::host
{

namespace
{

// Whether the project's services handle the entity's type: those are the entities the explorer
// creates, removes and cuts.
bool hasTypeHandler(model::CProjectServices& services, const model::CEntity& entity)
{
    const EntityTypeId type = entity.getType();
    return services.getSheetHandler().getEntityType() == type ||
           services.getTableHandler().getEntityType() == type ||
           services.getAssemblyHandler().getEntityType() == type ||
           services.getMaterialHandler().getEntityType() == type;
}

} // namespace

CSelectionCommandTargets::CSelectionCommandTargets(CExplorerSession& session) : session_(session) {}

void CSelectionCommandTargets::install(CGui& gui) const
{
    gui.setTargetCheck(commands::copy, [this] { return copyRefusal(); });
    gui.setTargetCheck(commands::cut, [this] { return removalRefusal("cut"); });
    gui.setTargetCheck(commands::deleteSelection, [this] { return removalRefusal("deleted"); });
}

std::optional<std::string> CSelectionCommandTargets::copyRefusal() const
{
    // Without a selection the explorer's own state says no, and says it better.
    if (!session_.hasProject() || session_.getSelection().empty())
        return std::nullopt;
    const model::CEntityClassifier& classifier = session_.getProjectServices().getClassifier();
    const bool any = std::ranges::any_of(session_.getSelection(),
                                         [&classifier](const EntityId& id)
                                         {
                                             return classifier.classifyAsDocument(id) ||
                                                    classifier.classifyAsStyle(id) ||
                                                    classifier.classifyAsResource(id);
                                         });
    if (any)
        return std::nullopt;
    return "Linked models cannot be copied: they stand for files outside the project.";
}

std::optional<std::string> CSelectionCommandTargets::removalRefusal(const char* verb) const
{
    if (!session_.hasProject() || session_.getSelection().empty())
        return std::nullopt;
    model::CProject& project = session_.getProject();
    model::CProjectServices& services = session_.getProjectServices();
    const bool any = std::ranges::any_of(session_.getSelection(),
                                         [&project, &services](const EntityId& id)
                                         {
                                             const model::CEntity* const entity = project.findEntity(id);
                                             return entity != nullptr && hasTypeHandler(services, *entity);
                                         });
    if (any)
        return std::nullopt;
    return fmt::format("None of the selected entities can be {} here: only sheets, tables, assemblies and "
                       "materials can.",
                       verb);
}

} // namespace aec::host
