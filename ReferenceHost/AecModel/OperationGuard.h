#pragma once

#include "aec/OperationGuard.h"

namespace aec::model
{

class COperationHost;

// Keeps an operation running on the host for as long as it lives.
class COperationGuard final : public IOperationGuard
{
public:
    // Starts the operation; none may be running.
    [[nodiscard]] explicit COperationGuard(COperationHost& host);
    // Ends it.
    ~COperationGuard() override;
    COperationGuard(const COperationGuard&) = delete;
    COperationGuard& operator=(const COperationGuard&) = delete;

private:
    COperationHost& host_;
};

} // namespace aec::model
