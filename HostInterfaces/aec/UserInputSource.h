#pragma once

#include "aec/AecApi.h"
#include "aec/Signals.h"

namespace aec
{

// An object in which user input starts and ends (a view, an activity, a context menu).
class AEC_INTERFACE IUserInputSource
{
public:
    virtual ~IUserInputSource() = default;

    // Emitted when user input starts in the object.
    virtual VoidSignal& userInputStartedSignal() = 0;
    // Emitted when user input in the object has ended.
    virtual VoidSignal& userInputFinishedSignal() = 0;
};

} // namespace aec
