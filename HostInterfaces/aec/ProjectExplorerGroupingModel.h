#pragma once

#include "aec/AecApi.h"
#include "aec/GroupingOption.h"
#include "aec/PropertyAssignmentKey.h"
#include "aec/Signals.h"

#include <optional>
#include <string>
#include <vector>

namespace aec
{

// How one group is split into subgroups: the grouping key and the sort order of subgroup names.
class AEC_INTERFACE IProjectExplorerGroupingModel
{
public:
    // Sort order values.
    static constexpr int ascending = 1;
    static constexpr int descending = 2;

    virtual ~IProjectExplorerGroupingModel() = default;

    // The sort order: 1 ascending, anything else descending.
    virtual int getSortOrder() const = 0;
    // Sets the sort order; signals only a real change.
    virtual void setSortOrder(int sortOrder) = 0;
    // The key's text form, empty for no grouping.
    virtual std::optional<std::wstring> getGroupingKeyText() const = 0;
    // Sets the key from its text form (empty for no grouping); the key must be available.
    virtual void setGroupingKeyText(const std::optional<std::wstring>& text) = 0;
    // The choosable keys with their display names, sorted for a menu.
    virtual std::vector<GroupingOption> getGroupingOptions() const = 0;
    // Emitted on every real change of key or sort order.
    virtual VoidSignal& changedSignal() const = 0;
    // The current key.
    virtual PropertyAssignmentKey getGroupingKey() const = 0;
    // Sets the key; it must be available; signals only a real change.
    virtual void setGroupingKey(const PropertyAssignmentKey& key) = 0;
    // Whether the key may be chosen now.
    virtual bool isGroupingKeyAvailable(const PropertyAssignmentKey& key) const = 0;
};

} // namespace aec
