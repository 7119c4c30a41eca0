#pragma once

#include "aec/ProjectExplorerPanel.h"
#include "aec/UserInputActor.h"

#include <memory>
#include <string_view>

namespace aec
{
class IProjectExplorerGroup;
class IProjectExplorerSubgroup;
class IProjectSessionManager;
} // namespace aec

namespace minimal_host
{

// The explorer's panel on the console: it prints the tree of the attached explorer when asked, and
// passes what the user does (fold, select) to the explorer through the GUI event handler, as a
// tree widget would.
class CConsolePanel final : public aec::CUserInputActor<aec::IProjectExplorerPanel>
{
public:
    // Entity names are read from the session's current project.
    explicit CConsolePanel(const aec::IProjectSessionManager& sessionManager);
    ~CConsolePanel() override;
    CConsolePanel(const CConsolePanel&) = delete;
    CConsolePanel& operator=(const CConsolePanel&) = delete;

    // The explorer must outlive its time in the panel: detach it before its view is destroyed.
    void attachExplorer(aec::IProjectExplorer& explorer) override;
    void setGuiEventHandler(std::unique_ptr<aec::IProjectExplorerGuiEventHandler> handler) override;
    void detachExplorer() override;
    // The console is drawn on request only (print), so there is nothing to redraw.
    void refresh() override;
    // A console cannot edit in place; a tree widget would open the entity's label for editing and
    // pass the new name to the entity controller's renameEntity.
    void startRename(const aec::EntityId& entity) override;
    // Rebuilds the groups after the project changed and drops removed entities from the selection.
    void onObjectsChanged(std::uint32_t code, std::uint32_t value, const aec::EntityIdSet& changed,
                          const aec::EntityIdSet& removed) override;

    // What the user does in the panel. A group's grouping is picked by its display name from the
    // options of the group's grouping model, as from a drop-down list.
    void chooseGrouping(int groupIndex, std::wstring_view displayName);
    void toggleGroup(int groupIndex);
    void changeSelection(const aec::EntityIdSet& toAdd, const aec::EntityIdSet& toRemove);

    // Prints the tree: "v" before an unfolded group or subgroup, ">" and the entity count before a
    // folded one, "*" before a selected entity.
    void print() const;

private:
    aec::IProjectExplorerGuiEventHandler& eventHandler() const;
    aec::IProjectExplorerGroup& group(int groupIndex) const;
    void printEntities(const aec::IProjectExplorerSubgroup& subgroup, int indent) const;

    const aec::IProjectSessionManager& sessionManager_;
    aec::IProjectExplorer* explorer_ = nullptr;
    std::unique_ptr<aec::IProjectExplorerGuiEventHandler> eventHandler_;
};

} // namespace minimal_host
