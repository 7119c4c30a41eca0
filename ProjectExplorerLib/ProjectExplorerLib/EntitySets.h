#pragma once

#include "aec/EntityId.h"

#include <algorithm>
#include <bit>
#include <iterator>

namespace project_explorer
{

// Whether looking each entity of `few` up in `many` (a descent of the tree each) takes fewer steps
// than walking both sets side by side.
inline bool worthLookingUp(const aec::EntityIdSet& few, const aec::EntityIdSet& many)
{
    return few.size() * static_cast<std::size_t>(std::bit_width(many.size())) < few.size() + many.size();
}

// The entities of `from` that are not in `without`, in identifier order.
inline aec::EntityIdSet entitiesNotIn(const aec::EntityIdSet& from, const aec::EntityIdSet& without)
{
    if (without.empty())
        return from;
    aec::EntityIdSet result;
    if (worthLookingUp(from, without))
    {
        for (const aec::EntityId& entity : from)
            if (!without.contains(entity))
                result.insert(result.end(), entity);
        return result;
    }
    std::set_difference(from.begin(), from.end(), without.begin(), without.end(),
                        std::inserter(result, result.end()));
    return result;
}

// Moves the entities of `from` that are also in `toTake` out of `from` into a set of their own,
// node by node, without copying or allocating.
inline aec::EntityIdSet takeEntities(aec::EntityIdSet& from, const aec::EntityIdSet& toTake)
{
    aec::EntityIdSet taken;
    // Taking everything (selecting none) hands the whole tree over.
    if (toTake.size() >= from.size() && std::includes(toTake.begin(), toTake.end(), from.begin(), from.end()))
    {
        taken.swap(from);
        return taken;
    }
    if (worthLookingUp(toTake, from))
    {
        for (const aec::EntityId& entity : toTake)
            if (auto node = from.extract(entity))
                taken.insert(taken.end(), std::move(node));
        return taken;
    }
    auto candidate = from.begin();
    for (const aec::EntityId& entity : toTake)
    {
        while (candidate != from.end() && *candidate < entity)
            ++candidate;
        if (candidate == from.end())
            break;
        if (*candidate == entity)
            taken.insert(taken.end(), from.extract(candidate++));
    }
    return taken;
}

} // namespace project_explorer
