#pragma once

#include "aec/AecApi.h"

namespace aec
{

// Held for the length of one model-changing operation; its destruction ends the operation.
class AEC_INTERFACE IOperationGuard
{
public:
    virtual ~IOperationGuard() = default;
};

} // namespace aec
