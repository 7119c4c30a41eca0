#include "Transaction.h"

#include "Project.h"

#include "Common/Check.h"

namespace minimal_host
{

CTransaction::CTransaction(CProject& project, std::string name)
    : project_(project), name_(std::move(name)), before_(project.beginTransaction())
{
}

CTransaction::~CTransaction()
{
    if (!committed_)
        project_.rollBackTransaction(std::move(before_));
}

void CTransaction::commit()
{
    COMMON_PRECONDITION(!committed_);
    committed_ = true;
    project_.commitTransaction(name_);
}

} // namespace minimal_host
