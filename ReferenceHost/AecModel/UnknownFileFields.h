#pragma once

#include "AecModel/AecModelApi.h"
#include "aec/EntityId.h"

#include <nlohmann/json.hpp>
#include <span>
#include <string_view>
#include <unordered_map>

namespace aec::model
{

// The fields of a project file that this version does not know, kept as they were read so that
// saving writes them back: a newer version's additions survive a round trip through an older one.
// Each level is a JSON object of the unknown fields only.
class AECMODEL_API CUnknownFileFields
{
public:
    enum class Level
    {
        Document,
        Collections,
        Preferences,
    };

    const nlohmann::json& at(Level level) const noexcept;
    void set(Level level, nlohmann::json fields);

    // An entity's unknown fields stay with its identifier, so they come back with an undone delete.
    const nlohmann::json* ofEntity(const EntityId& id) const;
    void setEntity(const EntityId& id, nlohmann::json fields);

    // The fields of `object` whose names are not among `known`.
    static nlohmann::json unknownOf(const nlohmann::json& object, std::span<const std::string_view> known);
    // Writes the kept fields into `object` beside the known ones, which win a clash.
    static void mergeInto(nlohmann::json& object, const nlohmann::json& fields);

private:
    nlohmann::json document_ = nlohmann::json::object();
    nlohmann::json collections_ = nlohmann::json::object();
    nlohmann::json preferences_ = nlohmann::json::object();
    std::unordered_map<EntityId, nlohmann::json> entities_;
};

} // namespace aec::model
