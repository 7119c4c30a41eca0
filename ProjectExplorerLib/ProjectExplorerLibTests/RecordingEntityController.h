#pragma once

#include "aec/ProjectExplorerEntityController.h"

#include <vector>

namespace project_explorer::test
{

// Records the entity operations that the root activity starts. The real controller needs the
// host's dialog, editor and file services; what the activity decides (which operation, on which
// entities, or none) is the same either way.
class RecordingEntityController final : public aec::IProjectExplorerEntityController
{
public:
    void createEntity(const aec::EntityTypeId&, aec::EntityId&) override {}
    void forwardToGuiHandler(const aec::EntityId&) override {}
    void renameEntity(const aec::EntityId&, const std::wstring&) override {}
    void open(const aec::EntityIdList&) override {}
    void deleteWithConfirmation(const aec::EntityIdList& entities) override { deleted.push_back(entities); }
    void copy(const aec::EntityIdList& entities) override { copied.push_back(entities); }
    void cut(const aec::EntityIdList&) override {}
    bool canEditProperties(const aec::EntityIdList&) const override { return propertiesEditable; }
    void editProperties(const aec::EntityIdList& entities) override { edited.push_back(entities); }
    void paste() override { ++pastes; }
    void importTableFromFile() override { ++imports; }
    bool canChangeTopic(const aec::EntityIdList&) const override { return false; }
    void changeTopic(const aec::EntityIdList&, const aec::TopicId&) override {}

    bool propertiesEditable = true;
    std::vector<aec::EntityIdList> deleted;
    std::vector<aec::EntityIdList> copied;
    std::vector<aec::EntityIdList> edited;
    int pastes = 0;
    int imports = 0;
};

} // namespace project_explorer::test
