#include "TestGroupingModel.h"

#include "Common/Check.h"

namespace aecapp_tests
{

void TestGroupingModel::setSortOrder(int sortOrder)
{
    ++sortOrderSetterCalls;
    if (sortOrder == sortOrder_)
        return;
    sortOrder_ = sortOrder;
    changed_();
}

void TestGroupingModel::setGroupingKeyText(const std::optional<std::wstring>& text)
{
    if (text == keyText_)
        return;
    keyText_ = text;
    changed_();
}

// The button handler works with the key's text form only; these fail loudly if it ever does not.
aec::PropertyAssignmentKey TestGroupingModel::getGroupingKey() const
{
    COMMON_NOT_IMPLEMENTED();
}

void TestGroupingModel::setGroupingKey(const aec::PropertyAssignmentKey&)
{
    COMMON_NOT_IMPLEMENTED();
}

bool TestGroupingModel::isGroupingKeyAvailable(const aec::PropertyAssignmentKey&) const
{
    COMMON_NOT_IMPLEMENTED();
}

void TestGroupingModel::offer(std::vector<aec::GroupingOption> options)
{
    options_ = std::move(options);
    changed_();
}

} // namespace aecapp_tests
