#include "AecModel/ChangeApplier.h"

#include "AecModel/ChangeNotifier.h"
#include "AecModel/EntityStore.h"

#include "Common/Check.h"

#include <boost/range/adaptor/reversed.hpp>

namespace aec::model
{

class CChangeApplier::CVisitor
{
public:
    CVisitor(CEntityStore& store, CChangeNotifier& notifier, ChangeDirection direction)
        : store_(store), notifier_(notifier), forward_(direction == ChangeDirection::Forward)
    {
    }

    void operator()(const EntityAdded& change) const
    {
        if (forward_)
            add(change.entity, std::nullopt);
        else
            remove(change.entity.id);
    }

    void operator()(const EntityRemoved& change) const
    {
        if (forward_)
            remove(change.entity.id);
        else
            add(change.entity, change.successor);
    }

    void operator()(const EntityRenamed& change) const
    {
        CEntity& renamed = entity(change.id);
        renamed.assignName(forward_ ? change.after : change.before);
        notifier_.noteChanged(change.id, renamed.getCollection());
    }

    void operator()(const EntityTopicChanged& change) const
    {
        CEntity& retopiced = entity(change.id);
        retopiced.assignTopic(forward_ ? change.after : change.before);
        notifier_.noteChanged(change.id, retopiced.getCollection());
    }

    void operator()(const EntityPropertyChanged& change) const
    {
        CEntity& changed = entity(change.id);
        changed.assignProperty(change.name, forward_ ? std::optional(change.after) : change.before);
        notifier_.noteChanged(change.id, changed.getCollection());
    }

private:
    void add(const EntityRecord& record, const std::optional<EntityId>& successor) const
    {
        store_.insert(record, successor);
        notifier_.noteAdded(record.id, record.collection);
    }

    void remove(const EntityId& id) const
    {
        const EntityCollection collection = entity(id).getCollection();
        store_.erase(id);
        notifier_.noteRemoved(id, collection);
    }

    CEntity& entity(const EntityId& id) const
    {
        CEntity* const found = store_.find(id);
        COMMON_PRECONDITION(found != nullptr);
        return *found;
    }

    CEntityStore& store_;
    CChangeNotifier& notifier_;
    bool forward_;
};

CChangeApplier::CChangeApplier(CEntityStore& store, CChangeNotifier& notifier)
    : store_(store), notifier_(notifier)
{
}

void CChangeApplier::apply(const ModelChange& change, ChangeDirection direction)
{
    std::visit(CVisitor(store_, notifier_, direction), change);
}

void CChangeApplier::replay(const std::vector<ModelChange>& changes, ChangeDirection direction)
{
    if (direction == ChangeDirection::Forward)
        for (const ModelChange& change : changes)
            apply(change, direction);
    else
        // Boost's adaptor rather than std::views::reverse, whose libstdc++ 12 form clang 14 rejects.
        for (const ModelChange& change : boost::adaptors::reverse(changes))
            apply(change, direction);
    notifier_.flushUnlessBatched();
}

} // namespace aec::model
