#pragma once

#include "aec/EntityId.h"

#include <boost/range/any_range.hpp>

#include <cstddef>

namespace aec
{

class IProjectExplorerGroup;
class IProjectExplorerSubgroup;

// Type-erased forward ranges over an owner's own containers. They are views: the next rebuild of
// the owner invalidates them.
template <class T>
using ForwardRange = boost::any_range<T, boost::forward_traversal_tag, T&, std::ptrdiff_t>;

using GroupRange = ForwardRange<IProjectExplorerGroup>;
using ConstGroupRange = ForwardRange<const IProjectExplorerGroup>;
using SubgroupRange = ForwardRange<IProjectExplorerSubgroup>;
using ConstSubgroupRange = ForwardRange<const IProjectExplorerSubgroup>;
using EntityIdRange = ForwardRange<const EntityId>;

} // namespace aec
