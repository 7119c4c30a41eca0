#include "AecModel/Project.h"

#include "AecModel/AttributeValueFormatter.h"
#include "AecModel/CanonicalDump.h"
#include "AecModel/EntityCollectionInfo.h"
#include "AecModel/WideText.h"
#include "Common/Check.h"
#include "Common/Exception.h"
#include "Common/LogicalCompare.h"
#include "Common/UUID.h"

#include <algorithm>
#include <atomic>
#include <fmt/format.h>

namespace aec::model
{

namespace
{

// Each project's document gets its own key, as the host's open documents do.
std::uint32_t nextDocumentKey()
{
    static std::atomic<std::uint32_t> lastKey{0};
    return ++lastKey;
}

} // namespace

CProject::CProject()
    : store_(*this), applier_(store_, notifier_), history_(applier_, transactions_),
      transactions_(applier_, notifier_, history_), editing_(*this),
      document_(std::make_unique<CDocument>(nextDocumentKey()))
{
}

CProject::~CProject() = default;

EntityIdList CProject::getEntities(EntityCollection collection) const
{
    return store_.ids(collection);
}

CEntity* CProject::findEntity(const EntityId& id)
{
    return store_.find(id);
}

const CEntity* CProject::findEntity(const EntityId& id) const
{
    return store_.find(id);
}

std::vector<CTopic> CProject::getTopics() const
{
    std::vector<CTopic> topics = getProjectTopics();
    std::ranges::stable_sort(topics, common::LogicalLess(),
                             [](const CTopic& topic) { return std::wstring_view(topic.getName()); });
    topics.emplace(topics.begin(), TopicId(), std::wstring(CAttributeValueFormatter::absentText));
    return topics;
}

std::vector<CTopic> CProject::getProjectTopics() const
{
    std::vector<CTopic> topics;
    store_.forEach(EntityCollection::Topics, [&topics](const CEntity& topic)
                   { topics.emplace_back(TopicId(topic.getId().uuid()), topic.getName()); });
    return topics;
}

ITransactionHost& CProject::getTransactionHost()
{
    return transactions_;
}

IChangeNotificationBatch& CProject::getChangeNotificationBatch()
{
    return notifier_;
}

IEditingService& CProject::getEditingService()
{
    return editing_;
}

COperationHost& CProject::getOperationHost()
{
    return operations_;
}

CDocument& CProject::getDocument() const
{
    return *document_;
}

void CProject::prepareTopicChange(const std::vector<IEntity*>& entities, const TopicId& topic)
{
    if (!topic.isNull() && !isTopic(topic))
        throw common::EException(fmt::format(
            "The topic {} is no longer part of the project; choose another topic.", topic.uuid().toString()));
    for (const IEntity* const entity : entities)
    {
        COMMON_PRECONDITION(entity != nullptr);
        const CEntity* const ours = findEntity(entity->getId());
        if (ours == nullptr || !collectionInfo(ours->getCollection()).bearsTopic)
            throw common::EException(
                fmt::format("\"{}\" cannot be given a topic.", toUtf8(entity->getName())));
    }
}

void CProject::setChangeOrigin(const char* file, int line)
{
    COMMON_PRECONDITION(file != nullptr);
    changeOrigin_ = ChangeOrigin{file, line};
}

EntityId CProject::addEntity(EntityCollection collection, std::wstring name, std::optional<TopicId> topic,
                             EntityId id)
{
    if (id.isNull())
        // A seeded provider may repeat an identifier of a project that a run with the same seed
        // saved, so a fresh identifier is drawn until it is one the project does not use.
        do
            id = EntityId(common::UUID::generate());
        while (store_.find(id) != nullptr);
    COMMON_PRECONDITION(store_.find(id) == nullptr);
    COMMON_PRECONDITION(!topic || (collectionInfo(collection).bearsTopic && isTopic(*topic)));
    change(EntityAdded{EntityRecord{id, collection, std::move(name), topic, {}}});
    return id;
}

TopicId CProject::addTopic(std::wstring name)
{
    return TopicId(addEntity(EntityCollection::Topics, std::move(name)).uuid());
}

void CProject::removeEntity(const EntityId& id)
{
    const CEntity& entity = existingEntity(id);
    if (entity.getCollection() == EntityCollection::Topics)
        clearTopicEverywhere(TopicId(id.uuid()));
    change(EntityRemoved{entity.toRecord(), store_.successorOf(entity)});
}

void CProject::renameEntity(const EntityId& id, std::wstring name)
{
    const CEntity& entity = existingEntity(id);
    if (entity.getName() == name)
        return;
    change(EntityRenamed{id, entity.getName(), std::move(name)});
}

void CProject::setEntityTopic(const EntityId& id, std::optional<TopicId> topic)
{
    const CEntity& entity = existingEntity(id);
    COMMON_PRECONDITION(collectionInfo(entity.getCollection()).bearsTopic);
    COMMON_PRECONDITION(!topic || isTopic(*topic));
    if (entity.getTopic() == topic)
        return;
    change(EntityTopicChanged{id, entity.getTopic(), topic});
}

void CProject::setEntityProperty(const EntityId& id, const std::string& name, CPropertyValue value)
{
    COMMON_PRECONDITION(!name.empty());
    const CEntity& entity = existingEntity(id);
    const CPropertyValue* const before = entity.findProperty(name);
    if (before != nullptr && *before == value)
        return;
    change(EntityPropertyChanged{id, name, before == nullptr ? std::nullopt : std::optional(*before),
                                 std::move(value)});
}

std::size_t CProject::entityCount() const noexcept
{
    return store_.size();
}

std::string CProject::canonicalDump() const
{
    return makeCanonicalDump(store_);
}

common::CObservable<IObjectEvents>& CProject::getObjectEvents() noexcept
{
    return notifier_.observers();
}

CUndoHistory& CProject::getUndoHistory() noexcept
{
    return history_;
}

const CUndoHistory& CProject::getUndoHistory() const noexcept
{
    return history_;
}

CProjectPreferences& CProject::getPreferences() noexcept
{
    return preferences_;
}

const CProjectPreferences& CProject::getPreferences() const noexcept
{
    return preferences_;
}

CUnknownFileFields& CProject::getUnknownFileFields() noexcept
{
    return unknownFileFields_;
}

const CUnknownFileFields& CProject::getUnknownFileFields() const noexcept
{
    return unknownFileFields_;
}

const std::vector<std::string>& CProject::getLoadNotes() const noexcept
{
    return loadNotes_;
}

void CProject::addLoadNote(std::string note)
{
    loadNotes_.push_back(std::move(note));
}

const std::optional<ChangeOrigin>& CProject::getChangeOrigin() const noexcept
{
    return changeOrigin_;
}

void CProject::change(ModelChange modelChange)
{
    if (!transactions_.isOpen())
    {
        applier_.apply(modelChange, ChangeDirection::Forward);
        history_.clear();
        notifier_.flushUnlessBatched();
        return;
    }
    // Journaled first, so that what is applied is always what a rollback will take back.
    const ModelChange& journaled = transactions_.record(std::move(modelChange));
    try
    {
        applier_.apply(journaled, ChangeDirection::Forward);
    }
    catch (...)
    {
        transactions_.discardLast();
        throw;
    }
}

CEntity& CProject::existingEntity(const EntityId& id)
{
    CEntity* const entity = store_.find(id);
    COMMON_PRECONDITION(entity != nullptr);
    return *entity;
}

bool CProject::isTopic(const TopicId& topic) const
{
    const CEntity* const entity = store_.find(EntityId(topic.uuid()));
    return entity != nullptr && entity->getCollection() == EntityCollection::Topics;
}

void CProject::clearTopicEverywhere(const TopicId& topic)
{
    // A scan of every topic-bearing entity: topics are few and rarely removed, and an index of
    // members would cost every entity memory for it.
    EntityIdList members;
    for (const EntityCollectionInfo& info : entityCollections())
        if (info.bearsTopic)
            store_.forEach(info.collection,
                           [&](const CEntity& entity)
                           {
                               if (entity.getTopic() == topic)
                                   members.push_back(entity.getId());
                           });
    for (const EntityId& member : members)
        setEntityTopic(member, std::nullopt);
}

} // namespace aec::model
