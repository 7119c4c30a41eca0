#pragma once

#include "aec/AecApi.h"
#include "aec/Topic.h"

#include <optional>

namespace aec
{

// An entity that belongs to a topic.
class AEC_INTERFACE IEntityWithTopic
{
public:
    virtual ~IEntityWithTopic() = default;

    // The entity's topic, empty when it has none.
    virtual std::optional<TopicId> getTopic() const = 0;
    // Moves the entity to the topic.
    virtual void setTopic(const TopicId& topic) = 0;
};

} // namespace aec
