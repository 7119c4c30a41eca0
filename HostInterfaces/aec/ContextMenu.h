#pragma once

#include "aec/UserInputSource.h"

namespace aec
{

// A context menu of the host; showing it is user input.
class AEC_INTERFACE IContextMenu : public IUserInputSource
{
};

} // namespace aec
