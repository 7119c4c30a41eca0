#pragma once

#include "ObservedSerializer.h"
#include "TestPropertyContext.h"

#include "AecModel/Project.h"
#include "AecModel/ProjectServices.h"
#include "HostFrame/Gui.h"
#include "HostServices/Clipboard.h"
#include "HostServices/HostServices.h"

#include "aec/ProjectExplorerEntityController.h"
#include "aec/ProjectExplorerEntityControllerFactory.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace project_explorer::test
{

// A project of the reference host with two topics and entities of most collections, shown in a
// document, the host's services around it, and an entity controller made through the library's
// entry point. How it fares when a host service fails is the fault-injection tests' part.
class EntityOperationsFixture : public ::testing::Test
{
protected:
    EntityOperationsFixture();
    ~EntityOperationsFixture() override;

    std::vector<std::string> undoNames() const;
    std::wstring nameOf(const aec::EntityId& id) const;
    // Whether the entity is in the project now.
    bool exists(const aec::EntityId& id) const;
    aec::host::CDocumentGui& documentGui();
    std::wstring text(int textId) const;

    aec::host::CHostServices host;
    aec::model::CProject project;
    aec::model::CProjectServices services{project};
    ObservedSerializer serializer{host.getPasteDataSerializer()};
    aec::host::CClipboard& clipboard = host.getClipboard();
    TestPropertyContext propertyContext;
    aec::host::CGui gui;

    aec::TopicId topicA;
    aec::TopicId topicB;
    aec::EntityId sheet1;
    aec::EntityId sheet2;
    aec::EntityId table;
    aec::EntityId material;
    aec::EntityId doorStyle;
    aec::EntityId linkedModel;
    aec::EntityId image;
    aec::EntityId missing;

    std::unique_ptr<aec::IProjectExplorerEntityControllerFactory> factory;
    std::unique_ptr<aec::IProjectExplorerEntityController> controller;
};

} // namespace project_explorer::test
