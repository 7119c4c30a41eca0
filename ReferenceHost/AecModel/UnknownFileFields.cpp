#include "AecModel/UnknownFileFields.h"

#include <algorithm>

namespace aec::model
{

const nlohmann::json& CUnknownFileFields::at(Level level) const noexcept
{
    switch (level)
    {
    case Level::Document:
        return document_;
    case Level::Collections:
        return collections_;
    case Level::Preferences:
        break;
    }
    return preferences_;
}

void CUnknownFileFields::set(Level level, nlohmann::json fields)
{
    switch (level)
    {
    case Level::Document:
        document_ = std::move(fields);
        return;
    case Level::Collections:
        collections_ = std::move(fields);
        return;
    case Level::Preferences:
        preferences_ = std::move(fields);
        return;
    }
}

const nlohmann::json* CUnknownFileFields::ofEntity(const EntityId& id) const
{
    const auto found = entities_.find(id);
    return found == entities_.end() ? nullptr : &found->second;
}

void CUnknownFileFields::setEntity(const EntityId& id, nlohmann::json fields)
{
    if (fields.empty())
        entities_.erase(id);
    else
        entities_[id] = std::move(fields);
}

nlohmann::json CUnknownFileFields::unknownOf(const nlohmann::json& object,
                                             std::span<const std::string_view> known)
{
    nlohmann::json unknown = nlohmann::json::object();
    if (!object.is_object())
        return unknown;
    for (const auto& [name, value] : object.items())
        if (std::ranges::find(known, std::string_view(name)) == known.end())
            unknown[name] = value;
    return unknown;
}

void CUnknownFileFields::mergeInto(nlohmann::json& object, const nlohmann::json& fields)
{
    for (const auto& [name, value] : fields.items())
        if (!object.contains(name))
            object[name] = value;
}

} // namespace aec::model
