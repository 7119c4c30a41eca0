#pragma once

#include "aec/ProjectExplorerGuiEventHandler.h"
#include "aec/ProjectExplorerPanel.h"
#include "aec/UserInputActor.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace project_explorer::test
{

// The host's explorer panel reduced to a record of what the library hands it, with its
// user-input signals. Its provider hands it out, or null when told to.
class RecordingPanel final : public aec::CUserInputActor<aec::IProjectExplorerPanel>
{
public:
    struct ObjectsChanged
    {
        std::uint32_t code;
        std::uint32_t value;
        aec::EntityIdSet changed;
        aec::EntityIdSet removed;
    };

    void attachExplorer(aec::IProjectExplorer& shown) override { explorer = &shown; }
    void setGuiEventHandler(std::unique_ptr<aec::IProjectExplorerGuiEventHandler> handler) override
    {
        eventHandler = std::move(handler);
    }
    void detachExplorer() override { explorer = nullptr; }
    void refresh() override {}
    void startRename(const aec::EntityId&) override {}
    void onObjectsChanged(std::uint32_t code, std::uint32_t value, const aec::EntityIdSet& changed,
                          const aec::EntityIdSet& removed) override
    {
        objectsChanged.push_back({code, value, changed, removed});
    }

    aec::IProjectExplorer* explorer = nullptr;
    std::unique_ptr<aec::IProjectExplorerGuiEventHandler> eventHandler;
    std::vector<ObjectsChanged> objectsChanged;
};

class RecordingPanelProvider final : public aec::IProjectExplorerGuiProvider
{
public:
    aec::IProjectExplorerPanel* getPanel(aec::IPanelOwner&, aec::IHostContext&) const override
    {
        return panel;
    }

    aec::IProjectExplorerPanel* panel = nullptr;
};

} // namespace project_explorer::test
