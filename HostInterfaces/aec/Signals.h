#pragma once

#include "aec/Changeset.h"
#include "aec/EntityId.h"

#include <boost/signals2/signal.hpp>

namespace aec
{

// The change signals of the explorer model. Listeners connect through the accessors of the
// interfaces and keep scoped connections.
using VoidSignal = boost::signals2::signal<void()>;
using EntityChangeset = CChangeset<EntityId, EntityIdSet>;
using EntitiesChangedSignal = boost::signals2::signal<void(const EntityChangeset&)>;
// (added, removed): the entities that became selected, then those that stopped being selected.
using SelectionChangedSignal =
    boost::signals2::signal<void(const EntityIdSet&, const EntityIdSet&), boost::signals2::optional_last_value<void>,
                            int>;

} // namespace aec
