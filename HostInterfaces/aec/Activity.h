#pragma once

#include "aec/UserInputSource.h"

namespace aec
{

// A host activity: while active it binds the host's commands to one part of the user interface.
class AEC_INTERFACE IActivity : public IUserInputSource
{
public:
    // Hands the activity's pending input to a drawing tool.
    virtual void forwardToDrawingTool() = 0;
    // The host is idle.
    virtual void onIdle() = 0;
    // Binds the activity's commands.
    virtual void activate() = 0;
    // Releases the activity's commands.
    virtual void deactivate() = 0;
    // Whether the activity holds the user until it ends.
    virtual bool isModal() const = 0;
};

} // namespace aec
