#include "AecModel/OperationGuard.h"

#include "AecModel/OperationHost.h"

namespace aec::model
{

COperationGuard::COperationGuard(COperationHost& host) : host_(host)
{
    host_.start();
}

COperationGuard::~COperationGuard()
{
    host_.finish();
}

} // namespace aec::model
