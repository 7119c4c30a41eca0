#pragma once

#include "AecModel/ModelChange.h"

#include <string>
#include <vector>

namespace aec::model
{

// One committed transaction: its name as the undo history shows it, and its changes in the order
// they were made.
struct CUndoStep
{
    std::string name;
    std::vector<ModelChange> changes;
};

} // namespace aec::model
