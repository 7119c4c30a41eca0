#pragma once

#include "aec/AecApi.h"

#include <memory>

namespace aec
{

class IOperationGuard;
class IOperationHost;

// Makes the guard of a model-changing operation.
class AEC_INTERFACE IOperationGuardSource
{
public:
    virtual ~IOperationGuardSource() = default;

    // Starts an operation on the host; throws common::EException when one may not start now.
    virtual std::unique_ptr<IOperationGuard> createGuard(IOperationHost& host) const = 0;
};

} // namespace aec
