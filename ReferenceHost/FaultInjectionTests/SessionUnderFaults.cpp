#include "SessionUnderFaults.h"

#include "AecModel/Project.h"
#include "AecModel/SampleProject.h"
#include "Common/Exception.h"
#include "HostFrame/ExplorerPanel.h"
#include "HostFrame/Gui.h"
#include "aec/EntityTypes.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerEntityController.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerGroupingModel.h"
#include "aec/PropertyAssignmentKey.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <iterator>

namespace aec::fault_injection::test
{

namespace
{

// Every session is made with the same identifiers, so that each run of an action reaches the same
// fault points in the same order.
constexpr std::uint64_t uuidSeed = 20240611;

IProjectExplorerGroup& groupAt(host::CExplorerSession& session, std::ptrdiff_t index)
{
    return *std::next(session.getExplorer().getGroups().begin(), index);
}

std::size_t indexOfText(const std::vector<CContextMenuItem>& items, std::wstring_view text)
{
    const auto found = std::ranges::find(items, text, &CContextMenuItem::getText);
    if (found == items.end())
        throw common::EException("The context menu has no such item");
    return static_cast<std::size_t>(found - items.begin());
}

} // namespace

CSessionUnderFaults::CSessionUnderFaults() : session(uuidSeed, &decorator)
{
    session.open(model::buildSampleProject());

    IProjectExplorerGroup& sheets = groupAt(session, 0);
    sheets.getGroupingModel().setGroupingKey(PropertyAssignmentKey::topic());
    IProjectExplorerGroup& tables = groupAt(session, 1);
    tables.getGroupingModel().setGroupingKey(PropertyAssignmentKey::topic());
    tables.getGroupingModel().setSortOrder(IProjectExplorerGroupingModel::descending);
    session.getPanel().toggleGroup(0);
    session.getPanel().toggleSubgroup(0, 1);

    IProjectExplorerEntityController& controller = session.getEntityController();
    EntityId kept;
    controller.createEntity(entity_types::material(), kept);
    EntityId undone;
    controller.createEntity(entity_types::assembly(), undone);
    session.getUndoHistory().undo();
}

CSessionUnderFaults::~CSessionUnderFaults() = default;

EntityId CSessionUnderFaults::entityNamed(EntityCollection collection, std::wstring_view name)
{
    const model::CProject& project = session.getProject();
    for (const EntityId& id : project.getEntities(collection))
        if (project.findEntity(id)->getName() == name)
            return id;
    ADD_FAILURE() << "the sample project has no entity of that name";
    return {};
}

void CSessionUnderFaults::select(std::initializer_list<EntityId> entities)
{
    session.getPanel().changeSelection(EntityIdSet(entities), {});
}

void CSessionUnderFaults::chooseFromContextMenu(std::wstring_view text, std::wstring_view subItemText)
{
    host::CGui& gui = session.getGui();
    gui.requestContextMenu({0.0, 0.0});
    const std::vector<CContextMenuItem>& menu = gui.getLastContextMenu();
    const std::size_t item = indexOfText(menu, text);
    if (subItemText.empty())
    {
        gui.chooseContextMenuItem(std::array{item});
        return;
    }
    gui.chooseContextMenuItem(std::array{item, indexOfText(menu[item].getSubItems(), subItemText)});
}

} // namespace aec::fault_injection::test
