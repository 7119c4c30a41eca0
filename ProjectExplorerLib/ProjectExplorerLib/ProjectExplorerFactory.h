#pragma once

#include "aec/ProjectExplorerFactory.h"

namespace aec
{
class IProjectExplorerEntityProvider;
class IProjectExplorerGroup;
class IProjectExplorerGroupMaker;
class IProjectExplorerGroupingModel;
class IProjectExplorerGroupingModelFactory;
struct ProjectExplorerGroupInfo;
struct ProjectExplorerGroupState;
} // namespace aec

namespace project_explorer
{

// Assembles explorers: the selection, the ten groups with their grouping models, the explorer,
// and the two decorators around it, restoring what the preferences hold of an earlier explorer.
class CProjectExplorerFactory final : public aec::IProjectExplorerFactory
{
public:
    // All three must outlive the factory and every explorer it makes.
    CProjectExplorerFactory(const aec::IProjectExplorerGroupingModelFactory& groupingModelFactory,
                            const aec::IProjectExplorerGroupMaker& groupMaker,
                            const aec::IProjectExplorerEntityProvider& entityProvider);
    ~CProjectExplorerFactory() override;

    // Stored state that no longer applies (an unknown group, a key that is not available now, a
    // subgroup that is gone) is skipped piece by piece; the explorer always opens.
    std::unique_ptr<aec::IProjectExplorer> createProjectExplorer(aec::IProjectPreferences& preferences,
                                                                 const aec::IProject& project,
                                                                 const aec::IPropertyCatalog& catalog) const override;

private:
    std::unique_ptr<aec::IProjectExplorerGroup> createGroup(const aec::ProjectExplorerGroupInfo& info,
                                                            const aec::ProjectExplorerGroupState* stored,
                                                            const aec::IProject& project,
                                                            const aec::IPropertyCatalog& catalog) const;
    static void restoreGrouping(aec::IProjectExplorerGroupingModel& model, const aec::ProjectExplorerGroupState& stored);
    static void restoreFoldState(aec::IProjectExplorerGroup& group, const aec::ProjectExplorerGroupState& stored);

    const aec::IProjectExplorerGroupingModelFactory& groupingModelFactory_;
    const aec::IProjectExplorerGroupMaker& groupMaker_;
    const aec::IProjectExplorerEntityProvider& entityProvider_;
};

} // namespace project_explorer
