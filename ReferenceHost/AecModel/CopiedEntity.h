#pragma once

#include "AecModel/EntityRecord.h"

#include "aec/EntityId.h"
#include "aec/EntityTypeId.h"
#include "aec/Topic.h"

#include <optional>
#include <string>

namespace aec::model
{

// One copied entity as it travels through the clipboard. Its topic goes by identifier and name, so
// that a paste into another project can find the same topic by name when the identifier is unknown
// there.
struct CopiedEntity
{
    struct Topic
    {
        TopicId id;
        std::wstring name;

        friend bool operator==(const Topic&, const Topic&) = default;
    };

    EntityId id; // in the project it was copied from
    EntityTypeId type;
    std::wstring name;
    std::optional<Topic> topic;
    PropertyMap properties;

    friend bool operator==(const CopiedEntity&, const CopiedEntity&) = default;
};

} // namespace aec::model
