#pragma once

#include "aec/Changeset.h"
#include "aec/EntityId.h"

#include <boost/signals2/signal.hpp>

namespace aec
{

// The change signals of the explorer model. Listeners connect through the accessors of the
// interfaces and keep scoped connections.
//
// Plain Boost.Signals2 signals with their default combiner, group ordering and mutex: the very
// types that a host compiles its listeners against. Everything runs on the user-interface thread;
// the lock that a signal takes around its connection list is the signal library's own affair.
using VoidSignal = boost::signals2::signal<void()>;
using EntityChangeset = CChangeset<EntityId, EntityIdSet>;
using EntitiesChangedSignal = boost::signals2::signal<void(const EntityChangeset&)>;
// (added, removed): the entities that became selected, then those that stopped being selected.
using SelectionChangedSignal = boost::signals2::signal<void(const EntityIdSet&, const EntityIdSet&)>;

} // namespace aec
