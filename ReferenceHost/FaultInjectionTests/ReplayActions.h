#pragma once

#include "UserAction.h"

#include <vector>

namespace aec::fault_injection::test
{

// Undo and redo of every model-changing user action, as the host programs run them from their
// history: "undo" after the action, "redo" after the action and its undo. What the user did before
// is the preparation, so that only the replay meets the faults.
const std::vector<UserAction>& replayActions();

} // namespace aec::fault_injection::test
