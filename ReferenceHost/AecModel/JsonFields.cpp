#include "AecModel/JsonFields.h"

#include "AecModel/JsonFieldError.h"
#include "AecModel/WideText.h"

#include <fmt/format.h>

namespace aec::model
{

EJsonFieldError::~EJsonFieldError() = default;

namespace json_fields
{

using nlohmann::json;

const json& member(const json& object, const char* name)
{
    if (const json* const found = optionalMember(object, name))
        return *found;
    throw EJsonFieldError(fmt::format("\"{}\" is missing", name));
}

const json* optionalMember(const json& object, const char* name)
{
    if (!object.is_object())
        throw EJsonFieldError(
            fmt::format("a JSON object with \"{}\" was expected, not {}", name, object.type_name()));
    const auto found = object.find(name);
    return found == object.end() ? nullptr : &*found;
}

const json& array(const json& object, const char* name)
{
    const json& value = member(object, name);
    if (!value.is_array())
        throw EJsonFieldError(fmt::format("\"{}\" is not a list", name));
    return value;
}

const std::string& text(const json& value, const char* name)
{
    if (!value.is_string())
        throw EJsonFieldError(fmt::format("\"{}\" is not a text", name));
    return value.get_ref<const std::string&>();
}

std::wstring wideText(const json& value, const char* name)
{
    const std::string& utf8 = text(value, name);
    try
    {
        return fromUtf8(utf8);
    }
    catch (const common::EException&)
    {
        throw EJsonFieldError(fmt::format("\"{}\" is not valid UTF-8", name));
    }
}

common::UUID uuid(const json& value, const char* name)
{
    if (const std::optional<common::UUID> parsed =
            common::UUID::tryParse(std::string_view(text(value, name))))
        return *parsed;
    throw EJsonFieldError(fmt::format("\"{}\" is not a UUID: {}", name, value.dump()));
}

bool boolean(const json& value, const char* name)
{
    if (!value.is_boolean())
        throw EJsonFieldError(fmt::format("\"{}\" is not true or false", name));
    return value.get<bool>();
}

std::string parseFailure(const nlohmann::json::exception& error)
{
    return toValidUtf8(error.what());
}

} // namespace json_fields

} // namespace aec::model
