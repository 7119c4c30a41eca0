#pragma once

#include "AecModel/AecModelApi.h"

#include "aec/OperationHost.h"

namespace aec::model
{

// Knows whether a model-changing operation is running on the project; operation guards start and
// end it.
class AECMODEL_API COperationHost final : public IOperationHost
{
public:
    COperationHost() = default;
    ~COperationHost() override;

    bool isOperationRunning() const override;

    // No operation may be running yet.
    void start();
    // An operation must be running.
    void finish();

private:
    bool running_ = false;
};

} // namespace aec::model
