#pragma once

#include "AecModel/EntityRecord.h"

#include <nlohmann/json.hpp>

namespace aec::model
{

// Free-form properties in stored JSON documents (project files, clipboard data): one JSON object
// of texts under "properties", left out when there are none.

// Adds "properties" to the entity's object unless there are none.
void writeProperties(nlohmann::json& entity, const PropertyMap& properties);
// The entity object's "properties", none when it has no such field; throws EJsonFieldError when
// the field is not an object of texts or a property has no name (a project has no such property).
PropertyMap readProperties(const nlohmann::json& entity);

} // namespace aec::model
