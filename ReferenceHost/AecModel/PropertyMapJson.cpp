#include "AecModel/PropertyMapJson.h"

#include "AecModel/JsonFieldError.h"
#include "AecModel/JsonFields.h"
#include "AecModel/WideText.h"

namespace aec::model
{

void writeProperties(nlohmann::json& entity, const PropertyMap& properties)
{
    if (properties.empty())
        return;
    nlohmann::json object = nlohmann::json::object();
    for (const auto& [name, value] : properties)
        object[name] = value.toUtf8();
    entity["properties"] = std::move(object);
}

PropertyMap readProperties(const nlohmann::json& entity)
{
    PropertyMap properties;
    const nlohmann::json* const object = json_fields::optionalMember(entity, "properties");
    if (object == nullptr)
        return properties;
    if (!object->is_object())
        throw EJsonFieldError("\"properties\" is not a JSON object");
    for (const auto& [name, value] : object->items())
    {
        if (name.empty())
            throw EJsonFieldError("\"properties\" has a property without a name");
        properties.emplace(name, json_fields::wideText(value, "properties"));
    }
    return properties;
}

} // namespace aec::model
