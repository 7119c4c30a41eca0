#include "Project.h"

#include "Transaction.h"

#include "Common/Check.h"
#include "Common/Exception.h"
#include "aec/ObjectEvents.h"

#include <algorithm>
#include <utility>

namespace minimal_host
{

CProject::CProject(aec::IDocument& document) : document_(document) {}

aec::EntityId CProject::add(aec::EntityCollection collection, std::wstring name,
                            std::optional<aec::EntityId> topic, aec::EntityId id)
{
    if (id.isNull())
        id = aec::EntityId(common::UUID::generate());
    COMMON_PRECONDITION(findEntity(id) == nullptr);
    record(entities_.emplace_back(id, collection, std::move(name), topic), false);
    return id;
}

void CProject::remove(const aec::EntityId& id)
{
    const CEntity removed = existingEntity(id);
    std::erase_if(entities_, [&id](const CEntity& entity) { return entity.getId() == id; });
    record(removed, true);
}

void CProject::rename(const aec::EntityId& id, std::wstring name)
{
    CEntity& entity = existingEntity(id);
    entity.setName(std::move(name));
    record(entity, false);
}

const CEntity* CProject::findByName(std::wstring_view name) const
{
    const auto found = std::ranges::find(entities_, name, &CEntity::getName);
    return found == entities_.end() ? nullptr : &*found;
}

std::vector<CEntity> CProject::beginTransaction()
{
    COMMON_PRECONDITION(!transactionOpen_);
    transactionOpen_ = true;
    return entities_;
}

void CProject::commitTransaction(const std::string& name)
{
    COMMON_PRECONDITION(transactionOpen_);
    transactionOpen_ = false;
    undoHistory_.push_back(name);
    announceWhenDue();
}

void CProject::rollBackTransaction(std::vector<CEntity> before)
{
    COMMON_PRECONDITION(transactionOpen_);
    transactionOpen_ = false;
    entities_ = std::move(before);
    pendingCollections_ = 0;
    pendingChanged_.clear();
    pendingRemoved_.clear();
}

aec::EntityIdList CProject::getEntities(aec::EntityCollection collection) const
{
    aec::EntityIdList ids;
    for (const CEntity& entity : entities_)
        if (entity.getCollection() == collection)
            ids.push_back(entity.getId());
    return ids;
}

CEntity* CProject::findEntity(const aec::EntityId& id)
{
    const auto found = std::ranges::find(entities_, id, &CEntity::getId);
    return found == entities_.end() ? nullptr : &*found;
}

const CEntity* CProject::findEntity(const aec::EntityId& id) const
{
    const auto found = std::ranges::find(entities_, id, &CEntity::getId);
    return found == entities_.end() ? nullptr : &*found;
}

std::vector<aec::CTopic> CProject::getTopics() const
{
    std::vector<aec::CTopic> topics;
    for (const CEntity& entity : entities_)
        if (entity.getCollection() == aec::EntityCollection::Topics)
            topics.emplace_back(aec::TopicId(entity.getId().uuid()), entity.getName());
    return topics;
}

void CProject::prepareTopicChange(const std::vector<aec::IEntity*>& /*entities*/,
                                  const aec::TopicId& /*topic*/)
{
    throw common::EException("This host cannot move entities to another topic.");
}

// A host with a diagnostics log would note where the next changes come from.
void CProject::setChangeOrigin(const char* /*file*/, int /*line*/) {}

std::unique_ptr<aec::ITransaction> CProject::openTransaction(const std::string& name)
{
    return std::make_unique<CTransaction>(*this, name);
}

void CProject::open()
{
    ++batchDepth_;
}

void CProject::close()
{
    COMMON_PRECONDITION(batchDepth_ > 0);
    --batchDepth_;
    announceWhenDue();
}

bool CProject::isOperationRunning() const
{
    return transactionOpen_;
}

void CProject::beginEdit()
{
    throw common::EException("This host cannot rename door, window and reinforcement styles.");
}

// beginEdit refuses every edit, so no command is ever asked for or submitted.
std::unique_ptr<aec::IEditCommand> CProject::createCommand(const aec::EntityId& /*entity*/)
{
    COMMON_NOT_IMPLEMENTED();
}

void CProject::submit(aec::IEditCommand& /*command*/)
{
    COMMON_NOT_IMPLEMENTED();
}

void CProject::endEdit(bool /*success*/) {}

std::optional<aec::ProjectExplorerState> CProject::getProjectExplorerState() const
{
    return explorerState_;
}

void CProject::setProjectExplorerState(const aec::ProjectExplorerState& state)
{
    explorerState_ = state;
}

CEntity& CProject::existingEntity(const aec::EntityId& id)
{
    CEntity* const entity = findEntity(id);
    COMMON_PRECONDITION(entity != nullptr);
    return *entity;
}

void CProject::record(const CEntity& entity, bool removed)
{
    pendingCollections_ |= aec::entityCollectionBit(entity.getCollection());
    if (removed)
    {
        pendingChanged_.erase(entity.getId());
        pendingRemoved_.insert(entity.getId());
    }
    else
    {
        pendingChanged_.insert(entity.getId());
    }
    announceWhenDue();
}

void CProject::announceWhenDue()
{
    if (transactionOpen_ || batchDepth_ > 0 || pendingCollections_ == 0)
        return;
    const std::uint32_t collections = std::exchange(pendingCollections_, 0);
    const aec::EntityIdSet changed = std::exchange(pendingChanged_, {});
    const aec::EntityIdSet removed = std::exchange(pendingRemoved_, {});
    objectEvents_.notify(
        [&](aec::IObjectEvents& observer)
        { observer.onObjectsChanged(aec::objectEventEntitiesChanged, collections, changed, removed); });
}

} // namespace minimal_host
