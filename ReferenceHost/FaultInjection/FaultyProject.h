#pragma once

#include "FaultInjection/FaultyChangeNotificationBatch.h"
#include "FaultInjection/FaultyDocument.h"
#include "FaultInjection/FaultyEditingService.h"
#include "FaultInjection/FaultyEntity.h"
#include "FaultInjection/FaultyTransactionHost.h"
#include "aec/Project.h"

#include <memory>
#include <unordered_map>

namespace aec::fault_injection
{

class CFaultPlan;

// The open project, failing where the plan says; its entities, transactions, batch, editing
// service and document fail alike. The operation host is the project's own: the library only
// hands it on to the operation guard source.
class CFaultyProject final : public IProject
{
public:
    // The project must outlive the decoration.
    CFaultyProject(CFaultPlan& plan, IProject& inner);
    ~CFaultyProject() override;
    CFaultyProject(const CFaultyProject&) = delete;
    CFaultyProject& operator=(const CFaultyProject&) = delete;

    // The host's own project behind a decoration, or the project itself when it is none: what the
    // host's services are given back, since they work on their own model.
    static IProject& innerOf(IProject& project);
    static const IProject& innerOf(const IProject& project);

    EntityIdList getEntities(EntityCollection collection) const override;
    IEntity* findEntity(const EntityId& id) override;
    const IEntity* findEntity(const EntityId& id) const override;
    std::vector<CTopic> getTopics() const override;
    ITransactionHost& getTransactionHost() override;
    IChangeNotificationBatch& getChangeNotificationBatch() override;
    IEditingService& getEditingService() override;
    IOperationHost& getOperationHost() override;
    IDocument& getDocument() const override;
    void prepareTopicChange(const std::vector<IEntity*>& entities, const TopicId& topic) override;
    void setChangeOrigin(const char* file, int line) override;

private:
    IEntity* decorated(const IEntity* entity) const;

    CFaultPlan& plan_;
    IProject& inner_;
    CFaultyTransactionHost transactionHost_;
    CFaultyChangeNotificationBatch batch_;
    CFaultyEditingService editingService_;
    // The document is the project's for its whole life; the interface hands it out from a const
    // project, so its decoration is reached through a const one too.
    mutable CFaultyDocument document_;
    // One decoration per entity, made when the entity is first looked up. Kept by the entity's
    // address, which a later entity may take over; the decoration holds nothing but the address,
    // so it serves the new entity as well.
    mutable std::unordered_map<const IEntity*, std::unique_ptr<CFaultyEntity>> entities_;
};

} // namespace aec::fault_injection
