#pragma once

#include "FaultInjection/FaultInjectingServiceDecorator.h"
#include "FaultInjection/FaultPlan.h"
#include "HostFrame/ExplorerSession.h"
#include "aec/EntityCollection.h"
#include "aec/EntityId.h"

#include <initializer_list>
#include <string_view>

namespace aec::fault_injection::test
{

// A session over the sample project whose explorer library meets the host's services only through
// fault-injecting decorations, left as a user leaves it after a while: sheets grouped by topic with
// the group and one subgroup unfolded, tables grouped by topic in descending order, one step to
// undo and one to redo. The plan lets everything pass until a test counts or fails points.
class CSessionUnderFaults
{
public:
    CSessionUnderFaults();
    ~CSessionUnderFaults();
    CSessionUnderFaults(const CSessionUnderFaults&) = delete;
    CSessionUnderFaults& operator=(const CSessionUnderFaults&) = delete;

    // The entity of the collection with the name; fails the test when there is none.
    EntityId entityNamed(EntityCollection collection, std::wstring_view name);
    // Makes the entities the selection, as the user does by clicking them in the panel.
    void select(std::initializer_list<EntityId> entities);
    // Asks for the context menu and chooses the item with the text, then, if given, the item with
    // the second text in its submenu; throws common::EException when there is no such item.
    void chooseFromContextMenu(std::wstring_view text, std::wstring_view subItemText = {});

    CFaultPlan plan;
    CFaultInjectingServiceDecorator decorator{plan};
    host::CExplorerSession session;
};

} // namespace aec::fault_injection::test
