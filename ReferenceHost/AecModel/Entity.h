#pragma once

#include "AecModel/AecModelApi.h"
#include "AecModel/EntityRecord.h"

#include "aec/Entity.h"
#include "aec/EntityCollection.h"
#include "aec/EntityWithTopic.h"

#include <boost/intrusive/list_hook.hpp>

#include <memory>
#include <optional>
#include <string>

namespace aec::model
{

class CProject;

// One entity of the reference host's project. Readers see it through IEntity; every write goes
// through the project, which journals it, so the entity itself offers no public setter except the
// topic (IEntityWithTopic), which it hands on to the project.
//
// Projects hold up to a million of these, so the layout is kept small: free-form properties live
// behind a pointer that stays null for the many entities that have none.
class AECMODEL_API CEntity final : public IEntity, public IEntityWithTopic
{
public:
    CEntity(CProject& project, const EntityRecord& record);
    ~CEntity() override;
    CEntity(const CEntity&) = delete;
    CEntity& operator=(const CEntity&) = delete;

    EntityId getId() const override;
    EntityTypeId getType() const override;
    const std::wstring& getName() const override;
    // The topic key reads the topic's UUID (std::monostate without a topic); other keys read nothing.
    AttributeValue getPropertyValue(const PropertyAssignmentKey& key) const override;

    std::optional<TopicId> getTopic() const override;
    // Journaled through the project; the entity must be of a collection that bears topics.
    void setTopic(const TopicId& topic) override;

    EntityCollection getCollection() const noexcept { return collection_; }
    // The free-form property's text, or nothing when the entity does not have it.
    std::optional<std::wstring> getProperty(const std::string& name) const;
    // The free-form property's value (a table's cells stay shared), or null.
    const CPropertyValue* findProperty(const std::string& name) const;
    const PropertyMap& getProperties() const;
    EntityRecord toRecord() const;

private:
    friend class CChangeApplier; // the one writer of entity content
    friend class CEntityStore;   // keeps entities in collection order through the hook

    using OrderHook =
        boost::intrusive::list_member_hook<boost::intrusive::link_mode<boost::intrusive::normal_link>>;

    void assignName(std::wstring name);
    void assignTopic(const std::optional<TopicId>& topic);
    // Sets the property, or takes it away when the value is empty (undoing its creation).
    void assignProperty(const std::string& name, const std::optional<CPropertyValue>& value);

    CProject& project_;
    OrderHook orderHook_;
    EntityId id_;
    std::optional<TopicId> topic_;
    EntityCollection collection_;
    std::wstring name_;
    std::unique_ptr<PropertyMap> properties_;
};

} // namespace aec::model
