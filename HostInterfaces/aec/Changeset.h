#pragma once

#include <utility>

namespace aec
{

// Which identifiers were added, changed and removed by one change of a collection.
template <class Id, class Set>
class CChangeset
{
public:
    CChangeset(Set added, Set changed, Set removed)
        : added_(std::move(added)), changed_(std::move(changed)), removed_(std::move(removed))
    {
    }

    const Set& getAdded() const noexcept { return added_; }
    const Set& getChanged() const noexcept { return changed_; }
    const Set& getRemoved() const noexcept { return removed_; }
    bool isEmpty() const noexcept { return added_.empty() && changed_.empty() && removed_.empty(); }

private:
    Set added_;
    Set changed_;
    Set removed_;
};

} // namespace aec
