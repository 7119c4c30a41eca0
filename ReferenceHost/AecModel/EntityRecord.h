#pragma once

#include "AecModel/PropertyValue.h"

#include "aec/EntityCollection.h"
#include "aec/EntityId.h"
#include "aec/Topic.h"

#include <map>
#include <optional>
#include <string>

namespace aec::model
{

// Free-form properties of an entity, by name; ordered so that dumps and files list them stably.
using PropertyMap = std::map<std::string, CPropertyValue>;

// The whole content of one entity as a plain value: what an undo step keeps of a removed entity
// to bring it back, and what project files read and write.
struct EntityRecord
{
    EntityId id;
    EntityCollection collection = EntityCollection::Sheets;
    std::wstring name;
    std::optional<TopicId> topic;
    PropertyMap properties;

    friend bool operator==(const EntityRecord&, const EntityRecord&) = default;
};

} // namespace aec::model
