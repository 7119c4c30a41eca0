#include "FaultInjection/FaultyProject.h"

#include "FaultInjection/FaultPlan.h"

#include <algorithm>
#include <utility>

namespace aec::fault_injection
{

CFaultyProject::CFaultyProject(CFaultPlan& plan, IProject& inner)
    : plan_(plan), inner_(inner), transactionHost_(plan, inner.getTransactionHost()),
      batch_(plan, inner.getChangeNotificationBatch()), editingService_(plan, inner.getEditingService()),
      document_(plan, inner.getDocument())
{
}

CFaultyProject::~CFaultyProject() = default;

IProject& CFaultyProject::innerOf(IProject& project)
{
    auto* const decorated = dynamic_cast<CFaultyProject*>(&project);
    return decorated != nullptr ? decorated->inner_ : project;
}

const IProject& CFaultyProject::innerOf(const IProject& project)
{
    const auto* const decorated = dynamic_cast<const CFaultyProject*>(&project);
    return decorated != nullptr ? decorated->inner_ : project;
}

EntityIdList CFaultyProject::getEntities(EntityCollection collection) const
{
    plan_.reach("IProject::getEntities");
    return inner_.getEntities(collection);
}

IEntity* CFaultyProject::findEntity(const EntityId& id)
{
    plan_.reach("IProject::findEntity");
    return decorated(inner_.findEntity(id));
}

const IEntity* CFaultyProject::findEntity(const EntityId& id) const
{
    plan_.reach("IProject::findEntity");
    return decorated(std::as_const(inner_).findEntity(id));
}

std::vector<CTopic> CFaultyProject::getTopics() const
{
    plan_.reach("IProject::getTopics");
    return inner_.getTopics();
}

ITransactionHost& CFaultyProject::getTransactionHost()
{
    plan_.reach("IProject::getTransactionHost");
    return transactionHost_;
}

IChangeNotificationBatch& CFaultyProject::getChangeNotificationBatch()
{
    plan_.reach("IProject::getChangeNotificationBatch");
    return batch_;
}

IEditingService& CFaultyProject::getEditingService()
{
    plan_.reach("IProject::getEditingService");
    return editingService_;
}

IOperationHost& CFaultyProject::getOperationHost()
{
    plan_.reach("IProject::getOperationHost");
    return inner_.getOperationHost();
}

IDocument& CFaultyProject::getDocument() const
{
    plan_.reach("IProject::getDocument");
    return document_;
}

void CFaultyProject::prepareTopicChange(const std::vector<IEntity*>& entities, const TopicId& topic)
{
    plan_.reach("IProject::prepareTopicChange");
    std::vector<IEntity*> own(entities.size());
    std::ranges::transform(entities, own.begin(), &CFaultyEntity::innerOf);
    inner_.prepareTopicChange(own, topic);
}

void CFaultyProject::setChangeOrigin(const char* file, int line)
{
    plan_.reach("IProject::setChangeOrigin");
    inner_.setChangeOrigin(file, line);
}

IEntity* CFaultyProject::decorated(const IEntity* entity) const
{
    if (entity == nullptr)
        return nullptr;
    std::unique_ptr<CFaultyEntity>& decoration = entities_[entity];
    // The host hands out its entities as const from a const project only; the decoration offers
    // what the project would offer through its other look-up.
    if (decoration == nullptr)
        decoration = std::make_unique<CFaultyEntity>(plan_, const_cast<IEntity&>(*entity));
    return decoration.get();
}

} // namespace aec::fault_injection
