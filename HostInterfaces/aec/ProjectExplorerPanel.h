#pragma once

#include "aec/EntityId.h"
#include "aec/UserInputSource.h"

#include <cstdint>
#include <memory>

namespace aec
{

class IHostContext;
class IPanelOwner;
class IProjectExplorer;
class IProjectExplorerGuiEventHandler;

// The host's panel widget that shows an explorer's tree.
class AEC_INTERFACE IProjectExplorerPanel : public IUserInputSource
{
public:
    // Shows the explorer's tree.
    virtual void attachExplorer(IProjectExplorer& explorer) = 0;
    // Takes the handler of what the user does in the panel.
    virtual void setGuiEventHandler(std::unique_ptr<IProjectExplorerGuiEventHandler> handler) = 0;
    // Stops showing the explorer.
    virtual void detachExplorer() = 0;
    // Redraws the tree from the explorer.
    virtual void refresh() = 0;
    // Starts renaming the entity in place.
    virtual void startRename(const EntityId& entity) = 0;
    // Project objects changed: (event code, a host value, added or changed entities, removed entities).
    virtual void onObjectsChanged(std::uint32_t code, std::uint32_t value, const EntityIdSet& changed,
                                  const EntityIdSet& removed) = 0;
};

// Supplies the panel of an explorer view.
class AEC_INTERFACE IProjectExplorerGuiProvider
{
public:
    virtual ~IProjectExplorerGuiProvider() = default;

    // The panel made in the owner for the context, or null when none can be made.
    virtual IProjectExplorerPanel* getPanel(IPanelOwner& owner, IHostContext& context) const = 0;
};

} // namespace aec
