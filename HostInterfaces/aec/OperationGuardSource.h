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

    // Starts an operation on the host; throws common::EException when one may not start now. The
    // operation ends when the guard is dropped, so a result left unused is a mistake.
    [[nodiscard]] virtual std::unique_ptr<IOperationGuard> createGuard(IOperationHost& host) const = 0;
};

} // namespace aec
