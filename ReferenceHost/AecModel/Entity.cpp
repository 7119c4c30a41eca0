#include "AecModel/Entity.h"

#include "AecModel/EntityCollectionInfo.h"
#include "AecModel/Project.h"

namespace aec::model
{

CEntity::CEntity(CProject& project, const EntityRecord& record)
    : project_(project), id_(record.id), topic_(record.topic), collection_(record.collection),
      name_(record.name),
      properties_(record.properties.empty() ? nullptr : std::make_unique<PropertyMap>(record.properties))
{
}

CEntity::~CEntity() = default;

EntityId CEntity::getId() const
{
    return id_;
}

EntityTypeId CEntity::getType() const
{
    return collectionInfo(collection_).type;
}

const std::wstring& CEntity::getName() const
{
    return name_;
}

AttributeValue CEntity::getPropertyValue(const PropertyAssignmentKey& key) const
{
    if (key == PropertyAssignmentKey::topic() && topic_)
        return topic_->uuid();
    return std::monostate{};
}

std::optional<TopicId> CEntity::getTopic() const
{
    return topic_;
}

void CEntity::setTopic(const TopicId& topic)
{
    // The nil topic is the "(No topic)" choice of the change-topic menu.
    project_.setEntityTopic(id_, topic.isNull() ? std::nullopt : std::optional<TopicId>(topic));
}

std::optional<std::wstring> CEntity::getProperty(const std::string& name) const
{
    const CPropertyValue* const value = findProperty(name);
    if (value == nullptr)
        return std::nullopt;
    return value->toText();
}

const CPropertyValue* CEntity::findProperty(const std::string& name) const
{
    if (!properties_)
        return nullptr;
    const auto found = properties_->find(name);
    return found == properties_->end() ? nullptr : &found->second;
}

const PropertyMap& CEntity::getProperties() const
{
    static const PropertyMap none;
    return properties_ ? *properties_ : none;
}

EntityRecord CEntity::toRecord() const
{
    return EntityRecord{id_, collection_, name_, topic_, getProperties()};
}

void CEntity::assignName(std::wstring name)
{
    name_ = std::move(name);
}

void CEntity::assignTopic(const std::optional<TopicId>& topic)
{
    topic_ = topic;
}

void CEntity::assignProperty(const std::string& name, const std::optional<CPropertyValue>& value)
{
    if (value)
    {
        if (!properties_)
            properties_ = std::make_unique<PropertyMap>();
        properties_->insert_or_assign(name, *value);
        return;
    }
    if (!properties_)
        return;
    properties_->erase(name);
    if (properties_->empty())
        properties_.reset();
}

} // namespace aec::model
