#pragma once

#include "aec/EntityId.h"

#include <algorithm>
#include <iterator>

namespace project_explorer
{

// The entities of `from` that are not in `without`, in identifier order.
inline aec::EntityIdSet entitiesNotIn(const aec::EntityIdSet& from, const aec::EntityIdSet& without)
{
    aec::EntityIdSet result;
    std::set_difference(from.begin(), from.end(), without.begin(), without.end(),
                        std::inserter(result, result.end()));
    return result;
}

} // namespace project_explorer
