#pragma once

#include "aec/ProjectExplorerGroupMaker.h"

namespace aec
{
class IAttributeValueFormatter;
class IProjectSessionManager;
} // namespace aec

namespace project_explorer
{

// Splits the entities of a group into subgroups named by the formatted value of the grouping
// key, in natural (logical) name order. Names that the logical comparison finds equal ("Wall",
// "wall") share one subgroup, named as the first entity in input order reads. Keeps no state.
class CProjectExplorerGroupMaker final : public aec::IProjectExplorerGroupMaker
{
public:
    // Both must outlive the maker.
    CProjectExplorerGroupMaker(const aec::IAttributeValueFormatter& formatter,
                               const aec::IProjectSessionManager& sessionManager);
    ~CProjectExplorerGroupMaker() override;

    // Ascending names for sort order 1, descending for any other value.
    std::vector<aec::SubgroupDescriptor> makeSubgroups(const aec::EntityIdList& entityIds,
                                                       const aec::PropertyAssignmentKey& key,
                                                       int sortOrder) const override;

private:
    const aec::IAttributeValueFormatter& formatter_;
    const aec::IProjectSessionManager& sessionManager_;
};

} // namespace project_explorer
