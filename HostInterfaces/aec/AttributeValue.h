#pragma once

#include "Common/UUID.h"

#include <cstdint>
#include <string>
#include <variant>

namespace aec
{

// The value of an entity property as the model holds it. std::monostate means the entity does
// not have the property; a UUID refers to another entity (a topic, for instance).
using AttributeValue = std::variant<std::monostate, std::wstring, double, std::int64_t, bool, common::UUID>;

} // namespace aec
