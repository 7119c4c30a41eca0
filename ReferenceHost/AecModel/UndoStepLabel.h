#pragma once

#include "AecModel/AecModelApi.h"

#include <string>

namespace aec::model
{

class CProject;
struct CUndoStep;

// What an undo step did, for people: "Rename sheet “A-3”", "Delete 3 entities", "Paste 12
// entities", "Import table “Doors”". Made from the changes the step holds, since the names of
// transactions are the explorer library's own ("Rename entity with type <uuid>") and say nothing
// to a user. The project supplies the kind of an entity that the step only names by identifier.
AECMODEL_API std::string undoStepLabel(const CUndoStep& step, const CProject& project);

} // namespace aec::model
