#pragma once

#include "aec/ProjectExplorerGroupingModel.h"

namespace aecapp_tests
{

// A grouping model that keeps the key as its text form only and counts the setter calls; it signals
// real changes, as the explorer's model does.
class TestGroupingModel : public aec::IProjectExplorerGroupingModel
{
public:
    int getSortOrder() const override { return sortOrder_; }
    void setSortOrder(int sortOrder) override;
    std::optional<std::wstring> getGroupingKeyText() const override { return keyText_; }
    void setGroupingKeyText(const std::optional<std::wstring>& text) override;
    std::vector<aec::GroupingOption> getGroupingOptions() const override { return options_; }
    aec::VoidSignal& changedSignal() const override { return changed_; }
    aec::PropertyAssignmentKey getGroupingKey() const override;
    void setGroupingKey(const aec::PropertyAssignmentKey& key) override;
    bool isGroupingKeyAvailable(const aec::PropertyAssignmentKey& key) const override;

    // Offers other options, as after a change in the project, and signals it.
    void offer(std::vector<aec::GroupingOption> options);

    int sortOrderSetterCalls = 0;

private:
    int sortOrder_ = ascending;
    std::optional<std::wstring> keyText_;
    std::vector<aec::GroupingOption> options_;
    mutable aec::VoidSignal changed_;
};

} // namespace aecapp_tests
