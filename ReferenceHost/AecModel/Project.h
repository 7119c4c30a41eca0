#pragma once

#include "AecModel/AecModelApi.h"
#include "AecModel/ChangeApplier.h"
#include "AecModel/ChangeNotifier.h"
#include "AecModel/ChangeOrigin.h"
#include "AecModel/Document.h"
#include "AecModel/EditingService.h"
#include "AecModel/Entity.h"
#include "AecModel/EntityStore.h"
#include "AecModel/ModelChange.h"
#include "AecModel/OperationHost.h"
#include "AecModel/ProjectPreferences.h"
#include "AecModel/TransactionHost.h"
#include "AecModel/UndoHistory.h"
#include "AecModel/UnknownFileFields.h"
#include "Common/Observable.h"
#include "aec/ObjectEvents.h"
#include "aec/Project.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace aec::model
{

// The reference host's in-memory building project.
//
// Every change goes through one journaled primitive. While a transaction is open the change is
// journaled, so that the transaction rolls it back exactly or commits it as one undo step. With no
// transaction open (building or loading a project) a change applies directly, is not undoable and
// clears the undo history, whose steps would no longer lead back from the new state.
//
// Observers of getObjectEvents() hear of changes as (added or changed, removed) with code
// objectEventEntitiesChanged: at the outermost close of a change-notification batch, and otherwise
// after each commit, rollback, undo and redo, or at once for a change made outside any transaction.
class AECMODEL_API CProject final : public IProject
{
public:
    CProject();
    ~CProject() override;
    CProject(const CProject&) = delete;
    CProject& operator=(const CProject&) = delete;

    EntityIdList getEntities(EntityCollection collection) const override;
    CEntity* findEntity(const EntityId& id) override;
    const CEntity* findEntity(const EntityId& id) const override;
    // The topics as the user chooses among them (the change-topic menu lists them in this order):
    // first "(No topic)" with the nil identifier, which takes the topic away, then the project's
    // topics in natural order of their names, as the tree sorts them.
    std::vector<CTopic> getTopics() const override;
    // The project's topics themselves, in collection order.
    std::vector<CTopic> getProjectTopics() const;

    ITransactionHost& getTransactionHost() override;
    IChangeNotificationBatch& getChangeNotificationBatch() override;
    IEditingService& getEditingService() override;
    COperationHost& getOperationHost() override;
    CDocument& getDocument() const override;
    // Nothing needs preparing in this model; throws common::EException when the topic is gone or an
    // entity cannot belong to a topic, so that the change is refused before it starts. The nil
    // topic is no topic: the entities lose theirs.
    void prepareTopicChange(const std::vector<IEntity*>& entities, const TopicId& topic) override;
    void setChangeOrigin(const char* file, int line) override;

    // A null identifier is replaced by a fresh one. The identifier must be new; a topic must be one
    // of the project's topics, and only the collections that bear topics take one.
    EntityId addEntity(EntityCollection collection, std::wstring name,
                       std::optional<TopicId> topic = std::nullopt, EntityId id = {});
    TopicId addTopic(std::wstring name);
    // Removing a topic first takes it away from every entity that has it.
    void removeEntity(const EntityId& id);
    void renameEntity(const EntityId& id, std::wstring name);
    void setEntityTopic(const EntityId& id, std::optional<TopicId> topic);
    void setEntityProperty(const EntityId& id, const std::string& name, CPropertyValue value);

    std::size_t entityCount() const noexcept;
    // Every collection in order, each entity with identifier, type, name, topic and properties:
    // equal dumps mean equal project content. Preferences are not content and are left out.
    std::string canonicalDump() const;

    common::CObservable<IObjectEvents>& getObjectEvents() noexcept;
    CUndoHistory& getUndoHistory() noexcept;
    const CUndoHistory& getUndoHistory() const noexcept;
    CProjectPreferences& getPreferences() noexcept;
    const CProjectPreferences& getPreferences() const noexcept;
    // What the project file held that this version does not know, written back on save.
    CUnknownFileFields& getUnknownFileFields() noexcept;
    const CUnknownFileFields& getUnknownFileFields() const noexcept;
    // What loading the project's file changed or wants the user to know, one sentence each.
    const std::vector<std::string>& getLoadNotes() const noexcept;
    void addLoadNote(std::string note);
    // The origin most recently named with setChangeOrigin, if any.
    const std::optional<ChangeOrigin>& getChangeOrigin() const noexcept;

private:
    void change(ModelChange change);
    CEntity& existingEntity(const EntityId& id);
    bool isTopic(const TopicId& topic) const;
    void clearTopicEverywhere(const TopicId& topic);

    CEntityStore store_;
    CChangeNotifier notifier_;
    CChangeApplier applier_;
    CUndoHistory history_;
    CTransactionHost transactions_;
    CEditingService editing_;
    COperationHost operations_;
    std::unique_ptr<CDocument> document_;
    CProjectPreferences preferences_;
    std::optional<ChangeOrigin> changeOrigin_;
    CUnknownFileFields unknownFileFields_;
    std::vector<std::string> loadNotes_;
};

} // namespace aec::model
