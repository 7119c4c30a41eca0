#pragma once

#include "aec/ContextMenuStrategyResolver.h"

namespace aec
{
class IGui;
class IProjectExplorerEntityController;
class IProjectExplorerEntitySelection;
class IProjectSessionManager;
} // namespace aec

namespace project_explorer
{

// Works out the explorer's context menu for one request: the explorer's items for what is selected
// when the menu opens.
class CProjectExplorerContextMenuStrategyResolver final : public aec::IContextMenuStrategyResolver
{
public:
    // The strategy kind of menus that the resolver's own providers make up in full.
    static constexpr int strategyKind = 2;

    // All must outlive the resolver and the strategies it makes; the GUI runs the standard items'
    // commands.
    CProjectExplorerContextMenuStrategyResolver(aec::IProjectExplorerEntityController& entityController,
                                                const aec::IProjectExplorerEntitySelection& selection,
                                                const aec::IProjectSessionManager& sessionManager, aec::IGui& gui);
    ~CProjectExplorerContextMenuStrategyResolver() override;

    int getStrategyKind() const override;
    // The explorer's items for the current selection of the current project, then `extra` if set.
    aec::ContextMenuStrategy resolve(const std::shared_ptr<aec::IMenuItemProvider>& extra) const override;

private:
    aec::IProjectExplorerEntityController& entityController_;
    const aec::IProjectExplorerEntitySelection& selection_;
    const aec::IProjectSessionManager& sessionManager_;
    aec::IGui& gui_;
};

} // namespace project_explorer
