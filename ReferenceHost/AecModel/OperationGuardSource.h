#pragma once

#include "AecModel/AecModelApi.h"

#include "aec/OperationGuardSource.h"

namespace aec::model
{

// Makes the guards of model-changing operations on the reference host's projects. One operation
// runs at a time: a guard asked for while another operation runs is refused.
class AECMODEL_API COperationGuardSource final : public IOperationGuardSource
{
public:
    COperationGuardSource() = default;
    ~COperationGuardSource() override;

    // The host must be a project's COperationHost. Throws common::EException while an operation
    // is running.
    [[nodiscard]] std::unique_ptr<IOperationGuard> createGuard(IOperationHost& host) const override;
};

} // namespace aec::model
