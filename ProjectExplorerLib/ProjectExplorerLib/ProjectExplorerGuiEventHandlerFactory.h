#pragma once

#include "aec/ProjectExplorerGuiEventHandler.h"

namespace project_explorer
{

// Makes one GUI event handler per explorer; it has no state of its own.
class CProjectExplorerGuiEventHandlerFactory final : public aec::IProjectExplorerGuiEventHandlerFactory
{
public:
    CProjectExplorerGuiEventHandlerFactory();
    ~CProjectExplorerGuiEventHandlerFactory() override;

    std::unique_ptr<aec::IProjectExplorerGuiEventHandler>
    createHandler(aec::IProjectExplorer& explorer) const override;
};

} // namespace project_explorer
