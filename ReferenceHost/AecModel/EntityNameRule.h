#pragma once

#include "aec/EntityCollection.h"

#include <string>
#include <string_view>

namespace aec::model
{

class CEntity;
class CProject;

// What one entity of the collection is called: the start of new entities' names ("Sheet 1") and the
// noun of messages.
std::wstring_view entityNoun(EntityCollection collection);

// The rule for a new name of an entity, whichever way it is renamed (a type handler, the editing
// service): not blank, and not the name of another entity of its collection, compared exactly,
// since two entries of one name in a group could not be told apart. Throws common::EException
// saying so when the name breaks the rule.
void requireAcceptableName(const CProject& project, const CEntity& entity, const std::wstring& newName);

} // namespace aec::model
