#pragma once

#include "AecModel/EntityRecord.h"

#include <optional>
#include <string>
#include <variant>

namespace aec::model
{

// The changes the project journals. Each keeps both the state before and the state after, so
// that one record can be undone (applied backward) and redone (applied forward).

// A new entity, placed at the end of its collection.
struct EntityAdded
{
    EntityRecord entity;
};

// An entity taken out of its collection; it went before the successor (at the end when none), which
// is where undoing puts it back, since every later change has been undone by then.
struct EntityRemoved
{
    EntityRecord entity;
    std::optional<EntityId> successor;
};

struct EntityRenamed
{
    EntityId id;
    std::wstring before;
    std::wstring after;
};

struct EntityTopicChanged
{
    EntityId id;
    std::optional<TopicId> before;
    std::optional<TopicId> after;
};

// Properties are only ever set; before is empty when the property was new.
struct EntityPropertyChanged
{
    EntityId id;
    std::string name;
    std::optional<CPropertyValue> before;
    CPropertyValue after;
};

using ModelChange =
    std::variant<EntityAdded, EntityRemoved, EntityRenamed, EntityTopicChanged, EntityPropertyChanged>;

enum class ChangeDirection
{
    Forward,  // do or redo
    Backward, // undo or roll back
};

} // namespace aec::model
