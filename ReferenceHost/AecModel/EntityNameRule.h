#pragma once

#include "AecModel/AecModelApi.h"
#include "aec/EntityCollection.h"

#include <string>
#include <string_view>

namespace aec::model
{

class CEntity;
class CProject;

// What one entity of the collection is called: the start of new entities' names ("Sheet 1") and the
// noun of messages.
AECMODEL_API std::wstring_view entityNoun(EntityCollection collection);

// The one rule for names of every kind of entity, however a name comes in (create, rename, paste,
// import, load):
//  - leading and trailing white space is no part of a name (it could not be told apart when the
//    name is typed to select the entity);
//  - a name has at least one visible character and no control characters;
//  - within a collection no two names are equal in natural order: "Sheet S-2", "sheet s-2" and
//    "Sheet S-02" are one name to the user, and sort as one.

// The name without leading and trailing white space.
AECMODEL_API std::wstring trimmedName(std::wstring_view name);
// Why the trimmed name is no name at all, or empty when it is one.
AECMODEL_API std::string nameDefect(EntityCollection collection, std::wstring_view trimmed);

// The name that `entity` gets when the user gives it `newName`: the trimmed name. Throws
// common::EException with a sentence that says why, naming the entity that already has the name,
// when the name breaks the rule.
AECMODEL_API std::wstring acceptableName(const CProject& project, const CEntity& entity,
                                         std::wstring_view newName);

// A name that keeps the rule, made from a name that came from outside (a file, the clipboard): the
// trimmed name with its control characters left out, or the collection's noun when nothing visible
// is left. Uniqueness is the caller's, with CUniqueNameGenerator.
AECMODEL_API std::wstring repairedName(EntityCollection collection, std::wstring_view name);

} // namespace aec::model
