#pragma once

#include "Common/UUID.h"

#include <nlohmann/json.hpp>

#include <string>

namespace aec::model::json_fields
{

// Typed reads of the fields of stored JSON objects; each throws EJsonFieldError naming the field
// when it is missing or of the wrong kind.

const nlohmann::json& member(const nlohmann::json& object, const char* name);
// Null when the object has no such field.
const nlohmann::json* optionalMember(const nlohmann::json& object, const char* name);
const nlohmann::json& array(const nlohmann::json& object, const char* name);
const std::string& text(const nlohmann::json& value, const char* name);
// The text as the model's wide text.
std::wstring wideText(const nlohmann::json& value, const char* name);
common::UUID uuid(const nlohmann::json& value, const char* name);
bool boolean(const nlohmann::json& value, const char* name);

// Why the parser refused a text, for a message: the parser's own words, in which the bytes it
// quotes from the text are left out where they are not UTF-8, so that the message stays text.
std::string parseFailure(const nlohmann::json::exception& error);

} // namespace aec::model::json_fields
