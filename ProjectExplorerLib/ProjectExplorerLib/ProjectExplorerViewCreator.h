#pragma once

#include "aec/ProjectExplorerViewCreator.h"

namespace aec
{
class IProjectExplorerFactory;
class IProjectExplorerGuiEventHandlerFactory;
class IProjectExplorerGuiProvider;
} // namespace aec

namespace project_explorer
{

// Assembles one explorer view: the host's panel, a new explorer shown in it, the panel's GUI event
// handler, and the view that owns the explorer.
class CProjectExplorerViewCreator final : public aec::IProjectExplorerViewCreator
{
public:
    // All three must outlive the creator and every view it makes.
    CProjectExplorerViewCreator(const aec::IProjectExplorerFactory& explorerFactory,
                                const aec::IProjectExplorerGuiProvider& panelProvider,
                                const aec::IProjectExplorerGuiEventHandlerFactory& eventHandlerFactory);
    ~CProjectExplorerViewCreator() override;

    // Throws common::ECheckViolation when the host gives no panel or the factory no explorer.
    std::unique_ptr<aec::INonDrawingView>
    createView(aec::IPanelOwner& panelOwner, aec::IHostContext& hostContext,
               aec::IProjectPreferences& preferences, aec::IProjectExplorerEntityController& entityController,
               const aec::ITranslation& translation, const aec::IProjectSessionManager& sessionManager,
               aec::ObjectEventSource& objectEvents, const aec::IClipboard& clipboard) const override;

private:
    const aec::IProjectExplorerFactory& explorerFactory_;
    const aec::IProjectExplorerGuiProvider& panelProvider_;
    const aec::IProjectExplorerGuiEventHandlerFactory& eventHandlerFactory_;
};

} // namespace project_explorer
