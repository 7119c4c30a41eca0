#pragma once

#include "RecordingEntityController.h"
#include "RecordingPanel.h"

#include "AecModel/AttributeValueFormatter.h"
#include "AecModel/Project.h"
#include "AecModel/PropertyCatalog.h"
#include "AecModel/SessionManager.h"
#include "HostFrame/Gui.h"
#include "HostFrame/HostContext.h"
#include "HostServices/Clipboard.h"
#include "HostServices/Translation.h"

#include "aec/NonDrawingView.h"
#include "aec/ProjectExplorerEntityProvider.h"
#include "aec/ProjectExplorerFactory.h"
#include "aec/ProjectExplorerGroupMaker.h"
#include "aec/ProjectExplorerGroupingModelFactory.h"
#include "aec/ProjectExplorerViewCreator.h"

#include <gtest/gtest.h>

#include <memory>
#include <string_view>

namespace aec
{
class IProjectExplorer;
class IProjectExplorerGroup;
} // namespace aec

namespace project_explorer::test
{

// Views made through the library's entry points over the reference host's sample project, with
// the real explorer, in a recording panel, bound to the reference host's GUI.
class ExplorerViewFixture : public ::testing::Test
{
protected:
    ExplorerViewFixture();
    ~ExplorerViewFixture() override;

    // A new view over a new explorer, shown in `panel`.
    std::unique_ptr<aec::INonDrawingView> createView();
    // A view bound to `gui`, following `clipboard`.
    std::unique_ptr<aec::INonDrawingView> createBoundView();
    // The explorer of the last view made, as the panel shows it.
    aec::IProjectExplorer& explorer();
    aec::IProjectExplorerGroup& group(std::wstring_view name);
    // The identifiers of the first `count` entities of the group's first subgroup.
    aec::EntityIdSet firstEntities(std::wstring_view groupName, std::size_t count);

    std::unique_ptr<aec::model::CProject> project;
    aec::model::CSessionManager sessionManager;
    aec::model::CAttributeValueFormatter formatter{sessionManager};
    std::unique_ptr<aec::IProjectExplorerGroupingModelFactory> groupingModelFactory;
    std::unique_ptr<aec::IProjectExplorerGroupMaker> groupMaker;
    std::unique_ptr<aec::IProjectExplorerEntityProvider> entityProvider;
    std::unique_ptr<aec::IProjectExplorerFactory> explorerFactory;
    std::unique_ptr<aec::IProjectExplorerGuiEventHandlerFactory> eventHandlerFactory;
    RecordingPanel panel;
    RecordingPanelProvider panelProvider;
    std::unique_ptr<aec::IProjectExplorerViewCreator> creator;
    aec::model::CPropertyCatalog propertyCatalog;
    aec::host::CHostContext hostContext;
    aec::IPanelOwner panelOwner;
    aec::host::CTranslation translation;
    aec::host::CClipboard clipboard;
    RecordingEntityController entityController;
    aec::host::CGui gui;
};

} // namespace project_explorer::test
