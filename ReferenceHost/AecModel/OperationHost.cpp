#include "AecModel/OperationHost.h"

#include "Common/Check.h"

namespace aec::model
{

COperationHost::~COperationHost() = default;

bool COperationHost::isOperationRunning() const
{
    return running_;
}

void COperationHost::start()
{
    COMMON_PRECONDITION(!running_);
    running_ = true;
}

void COperationHost::finish()
{
    COMMON_PRECONDITION(running_);
    running_ = false;
}

} // namespace aec::model
