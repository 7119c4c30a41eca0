#pragma once

#include "aec/Changeset.h"
#include "aec/EntityId.h"

#include <boost/signals2/dummy_mutex.hpp>
#include <boost/signals2/signal.hpp>
#include <boost/signals2/signal_type.hpp>

namespace aec
{

// The change signals of the explorer model. Listeners connect through the accessors of the
// interfaces and keep scoped connections.
//
// The model lives on the user-interface thread alone, so its signals lock nothing: a tree of
// thousands of subgroups holds two signals each, and a locking signal allocates a mutex of its own
// and takes it several times in every emission.
template <class Signature>
using UnlockedSignal =
    typename boost::signals2::signal_type<Signature,
                                          boost::signals2::keywords::mutex_type<boost::signals2::dummy_mutex>>::type;

using VoidSignal = UnlockedSignal<void()>;
using EntityChangeset = CChangeset<EntityId, EntityIdSet>;
using EntitiesChangedSignal = UnlockedSignal<void(const EntityChangeset&)>;
// (added, removed): the entities that became selected, then those that stopped being selected.
using SelectionChangedSignal = UnlockedSignal<void(const EntityIdSet&, const EntityIdSet&)>;

} // namespace aec
