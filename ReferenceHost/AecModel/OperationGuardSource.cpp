#include "AecModel/OperationGuardSource.h"

#include "AecModel/OperationGuard.h"
#include "AecModel/OperationHost.h"

#include "Common/Check.h"
#include "Common/Exception.h"

namespace aec::model
{

COperationGuardSource::~COperationGuardSource() = default;

std::unique_ptr<IOperationGuard> COperationGuardSource::createGuard(IOperationHost& host) const
{
    auto* const operations = dynamic_cast<COperationHost*>(&host);
    COMMON_PRECONDITION(operations != nullptr);
    if (operations->isOperationRunning())
        throw common::EException("Another change of the project is still in progress; wait until it has "
                                 "finished, then try again.");
    return std::make_unique<COperationGuard>(*operations);
}

} // namespace aec::model
