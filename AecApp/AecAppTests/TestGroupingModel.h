#pragma once

#include "Common/Check.h"
#include "aec/ProjectExplorerGroupingModel.h"

namespace aecapp_tests
{

// A grouping model that keeps its key as text only and, like the explorer's, signals real changes.
// The key-object operations are not needed by the button handler and fail loudly if it uses them.
class TestGroupingModel : public aec::IProjectExplorerGroupingModel
{
public:
    int getSortOrder() const override { return sortOrder_; }
    void setSortOrder(int sortOrder) override { change(sortOrder_, sortOrder); }
    std::optional<std::wstring> getGroupingKeyText() const override { return keyText_; }
    void setGroupingKeyText(const std::optional<std::wstring>& text) override { change(keyText_, text); }
    std::vector<aec::GroupingOption> getGroupingOptions() const override { return options_; }
    aec::VoidSignal& changedSignal() const override { return changed_; }
    aec::PropertyAssignmentKey getGroupingKey() const override { COMMON_NOT_IMPLEMENTED(); }
    void setGroupingKey(const aec::PropertyAssignmentKey&) override { COMMON_NOT_IMPLEMENTED(); }
    bool isGroupingKeyAvailable(const aec::PropertyAssignmentKey&) const override
    {
        COMMON_NOT_IMPLEMENTED();
    }

    // Offers other options, as after a change in the project, and signals it.
    void offer(std::vector<aec::GroupingOption> options)
    {
        options_ = std::move(options);
        changed_();
    }

private:
    template <class Value>
    void change(Value& field, const Value& value)
    {
        if (field == value)
            return;
        field = value;
        changed_();
    }

    int sortOrder_ = ascending;
    std::optional<std::wstring> keyText_;
    std::vector<aec::GroupingOption> options_;
    mutable aec::VoidSignal changed_;
};

} // namespace aecapp_tests
