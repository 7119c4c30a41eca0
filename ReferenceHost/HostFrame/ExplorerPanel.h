#pragma once

#include "Common/UUID.h"
#include "HostFrame/HostFrameApi.h"
#include "aec/ProjectExplorerPanel.h"
#include "aec/UserInputActor.h"

#include <boost/signals2/connection.hpp>
#include <boost/signals2/signal.hpp>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace aec
{
class IProjectExplorerGroup;
} // namespace aec

namespace aec::host
{

// The explorer's panel without a toolkit: it shows (holds) the attached explorer, owns the GUI
// event handler, and offers a host program what the user does in a tree panel: fold and unfold
// groups and subgroups, change the selection, all through the event handler. A host program draws
// the tree from the explorer whenever treeChangedSignal fires, and asks the user for a new name
// when renameRequestedSignal fires.
//
// treeChangedSignal fires once at the end of each of the panel's own operations (folds, selection
// changes, rebuilds after object events, refresh), also when one failed half way, and on its own
// whenever the explorer changes from elsewhere (a grouping button, a fold that follows a
// selection).
class HOSTFRAME_API CExplorerPanel final : public CUserInputActor<IProjectExplorerPanel>
{
public:
    using TreeChangedSignal = boost::signals2::signal<void()>;
    using RenameRequestedSignal = boost::signals2::signal<void(const EntityId&)>;

    CExplorerPanel();
    ~CExplorerPanel() override;
    CExplorerPanel(const CExplorerPanel&) = delete;
    CExplorerPanel& operator=(const CExplorerPanel&) = delete;

    // Shows the explorer instead of any shown before; it must outlive its time in the panel.
    void attachExplorer(IProjectExplorer& explorer) override;
    // Only while an explorer is attached; the handler must be bound to it.
    void setGuiEventHandler(std::unique_ptr<IProjectExplorerGuiEventHandler> handler) override;
    // Lets go of the explorer and of its event handler; the explorer may die afterwards.
    void detachExplorer() override;
    void refresh() override;
    void startRename(const EntityId& entity) override;
    // For objectEventEntitiesChanged: rebuilds the groups of the collections that the value's mask
    // names (a groupable group also when topics changed, since its subgroups may be named after
    // topics), then drops the removed entities from the selection. Other codes, and events while no
    // explorer is shown, are ignored.
    void onObjectsChanged(std::uint32_t code, std::uint32_t value, const EntityIdSet& changed,
                          const EntityIdSet& removed) override;

    // What the user does in the panel; each needs an explorer and its event handler.
    void toggleGroup(int groupIndex);
    void toggleSubgroup(int groupIndex, int subgroupIndex);
    // The two sets must be disjoint.
    void changeSelection(const EntityIdSet& toAdd, const EntityIdSet& toRemove);
    // Runs several of the operations above as one: treeChangedSignal fires once, at the end, so
    // that a host program redraws once after unfolding a whole tree.
    void changeAsOne(const std::function<void()>& operations);

    bool hasExplorer() const noexcept;
    // Only while an explorer is attached.
    IProjectExplorer& getExplorer();
    const IProjectExplorer& getExplorer() const;

    // Grows whenever the entities that the group shows, or their names, could have changed: an
    // explorer attached or detached, the group rebuilt after objects changed. A host that draws the
    // tree from its own copy reads a group's entities again only when its stamp grew; folds,
    // selections and grouping leave it as it is.
    std::uint64_t getContentStamp(const IProjectExplorerGroup& group) const;

    TreeChangedSignal& treeChangedSignal() noexcept;
    RenameRequestedSignal& renameRequestedSignal() noexcept;

private:
    // Runs one of the panel's operations and then says once that the tree changed.
    void changeTree(const std::function<void()>& change);
    void explorerChanged();
    void connectToExplorer();
    bool needsRebuild(const IProjectExplorerGroup& group, std::uint32_t collections) const;
    IProjectExplorerGuiEventHandler& eventHandler();

    IProjectExplorer* explorer_ = nullptr;
    std::unique_ptr<IProjectExplorerGuiEventHandler> eventHandler_;
    std::vector<boost::signals2::scoped_connection> explorerConnections_;
    int changeDepth_ = 0;
    std::uint64_t contentStamp_ = 0;
    std::map<common::UUID, std::uint64_t> groupContentStamps_;
    TreeChangedSignal treeChanged_;
    RenameRequestedSignal renameRequested_;
};

} // namespace aec::host
