#pragma once

#include "aec/AecApi.h"

namespace aec
{

// The project service that model-changing operations are guarded against.
class AEC_INTERFACE IOperationHost
{
public:
    virtual ~IOperationHost() = default;

    // Whether an operation is running now.
    virtual bool isOperationRunning() const = 0;
};

} // namespace aec
