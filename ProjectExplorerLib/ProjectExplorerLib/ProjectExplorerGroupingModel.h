#pragma once

#include "aec/ProjectExplorerGroupingModel.h"

#include "Common/UUID.h"

#include <string_view>

namespace aec
{
class IProject;
class IPropertyCatalog;
} // namespace aec

namespace project_explorer
{

// The grouping choice of one group: the key whose value names the subgroups and the sort order
// of those names. Of the candidate keys, those the host's catalog finds available in the project
// at the moment of asking can be chosen; the reserved no-grouping key always can.
class CProjectExplorerGroupingModel final : public aec::IProjectExplorerGroupingModel
{
public:
    // The project and the catalog must outlive the model.
    CProjectExplorerGroupingModel(const common::UUID& groupId, std::vector<aec::PropertyAssignmentKey> candidateKeys,
                                  const aec::IProject& project, const aec::IPropertyCatalog& catalog);
    ~CProjectExplorerGroupingModel() override;

    int getSortOrder() const override;
    void setSortOrder(int sortOrder) override;
    // The key's identifiers in their 36-character text form, joined with '#'.
    std::optional<std::wstring> getGroupingKeyText() const override;
    // Throws std::bad_optional_access when the text is not such a list of identifiers.
    void setGroupingKeyText(const std::optional<std::wstring>& text) override;
    std::vector<aec::GroupingOption> getGroupingOptions() const override;
    aec::VoidSignal& changedSignal() const override;
    aec::PropertyAssignmentKey getGroupingKey() const override;
    void setGroupingKey(const aec::PropertyAssignmentKey& key) override;
    bool isGroupingKeyAvailable(const aec::PropertyAssignmentKey& key) const override;

private:
    bool isCandidateAvailable(const aec::PropertyAssignmentKey& candidate) const;
    static std::wstring toText(const aec::PropertyAssignmentKey& key);
    static aec::PropertyAssignmentKey fromText(std::wstring_view text);

    common::UUID groupId_;
    std::vector<aec::PropertyAssignmentKey> candidateKeys_;
    const aec::IProject& project_;
    const aec::IPropertyCatalog& catalog_;
    int sortOrder_ = ascending;
    aec::PropertyAssignmentKey groupingKey_ = aec::PropertyAssignmentKey::noGrouping();
    mutable aec::VoidSignal changed_;
};

} // namespace project_explorer
