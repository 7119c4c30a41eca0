#pragma once

#include "Entity.h"

#include "aec/ChangeNotificationBatch.h"
#include "aec/EditingService.h"
#include "aec/OperationHost.h"
#include "aec/Project.h"
#include "aec/ProjectExplorerViewCreator.h"
#include "aec/ProjectPreferences.h"
#include "aec/TransactionHost.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace minimal_host
{

// The host's whole project model, as small as the explorer allows: an ordered list of entities,
// transactions that roll back by putting back a copy of that list, and the project's preferences,
// which keep the explorer's fold and grouping state.
//
// Changes are announced to the object-event observers (the explorer's view among them) as one
// event: when the outermost change-notification batch closes outside a transaction, else when the
// transaction commits. A change that is rolled back is never announced, so nothing needs undoing
// in the panel either.
class CProject final : public aec::IProject,
                       public aec::ITransactionHost,
                       public aec::IChangeNotificationBatch,
                       public aec::IOperationHost,
                       public aec::IEditingService,
                       public aec::IProjectPreferences
{
public:
    // The document is the host window that shows the project; it must outlive the project.
    explicit CProject(aec::IDocument& document);

    // Building and changing the project; type handlers and the sample project use these.
    // A null identifier is replaced by a fresh one.
    aec::EntityId add(aec::EntityCollection collection, std::wstring name,
                      std::optional<aec::EntityId> topic = std::nullopt, aec::EntityId id = {});
    void remove(const aec::EntityId& id);
    void rename(const aec::EntityId& id, std::wstring name);
    const CEntity* findByName(std::wstring_view name) const;

    aec::ObjectEventSource& getObjectEvents() noexcept { return objectEvents_; }
    // The names of the committed transactions, oldest first: the host's undo steps.
    const std::vector<std::string>& getUndoHistory() const noexcept { return undoHistory_; }

    // What a transaction calls: the copy it keeps, its commit, its rollback.
    std::vector<CEntity> beginTransaction();
    void commitTransaction(const std::string& name);
    void rollBackTransaction(std::vector<CEntity> before);

    // aec::IProject
    aec::EntityIdList getEntities(aec::EntityCollection collection) const override;
    CEntity* findEntity(const aec::EntityId& id) override;
    const CEntity* findEntity(const aec::EntityId& id) const override;
    std::vector<aec::CTopic> getTopics() const override;
    aec::ITransactionHost& getTransactionHost() override { return *this; }
    aec::IChangeNotificationBatch& getChangeNotificationBatch() override { return *this; }
    aec::IEditingService& getEditingService() override { return *this; }
    aec::IOperationHost& getOperationHost() override { return *this; }
    aec::IDocument& getDocument() const override { return document_; }
    // Refuses: this host keeps every entity under the topic it was made with.
    void prepareTopicChange(const std::vector<aec::IEntity*>& entities, const aec::TopicId& topic) override;
    void setChangeOrigin(const char* file, int line) override;

    // aec::ITransactionHost
    [[nodiscard]] std::unique_ptr<aec::ITransaction> openTransaction(const std::string& name) override;

    // aec::IChangeNotificationBatch
    void open() override;
    void close() override;

    // aec::IOperationHost: one change at a time, so a change is running while a transaction is open.
    bool isOperationRunning() const override;

    // aec::IEditingService, through which the explorer renames door, window and reinforcement
    // styles. Refuses: this host renames only through its type handlers.
    void beginEdit() override;
    std::unique_ptr<aec::IEditCommand> createCommand(const aec::EntityId& entity) override;
    void submit(aec::IEditCommand& command) override;
    void endEdit(bool success) override;

    // aec::IProjectPreferences
    std::optional<aec::ProjectExplorerState> getProjectExplorerState() const override;
    void setProjectExplorerState(const aec::ProjectExplorerState& state) override;

private:
    CEntity& existingEntity(const aec::EntityId& id);
    void record(const CEntity& entity, bool removed);
    void announceWhenDue();

    aec::IDocument& document_;
    std::vector<CEntity> entities_;
    aec::ObjectEventSource objectEvents_;
    std::optional<aec::ProjectExplorerState> explorerState_;
    std::vector<std::string> undoHistory_;
    bool transactionOpen_ = false;
    int batchDepth_ = 0;
    // The changes not yet announced: the collections they touch (a bit mask), the entities added or
    // changed, the entities removed.
    std::uint32_t pendingCollections_ = 0;
    aec::EntityIdSet pendingChanged_;
    aec::EntityIdSet pendingRemoved_;
};

} // namespace minimal_host
