#pragma once

#include "aec/AecApi.h"

namespace aec
{

class IProject;

// Knows the project the user works on.
class AEC_INTERFACE IProjectSessionManager
{
public:
    virtual ~IProjectSessionManager() = default;

    // The current project; throws common::EException when none is open.
    virtual IProject& getCurrentProject() const = 0;
};

} // namespace aec
