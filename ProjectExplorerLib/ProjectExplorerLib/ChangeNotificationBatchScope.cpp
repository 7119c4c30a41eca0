#include "ProjectExplorerLib/ChangeNotificationBatchScope.h"

#include "aec/ChangeNotificationBatch.h"

#include "Common/Check.h"

namespace project_explorer
{

CChangeNotificationBatchScope::CChangeNotificationBatchScope(aec::IChangeNotificationBatch& batch)
    : batch_(batch), open_(false)
{
    batch_.open();
    open_ = true;
}

CChangeNotificationBatchScope::~CChangeNotificationBatchScope()
{
    if (!open_)
        return;
    // Only reached while the change's own exception is on its way. A second failure of the close
    // cannot travel beside it (it would end the program), and the first one says what went wrong.
    try
    {
        batch_.close();
    }
    catch (...)
    {
    }
}

void CChangeNotificationBatchScope::close()
{
    COMMON_PRECONDITION(open_);
    open_ = false;
    batch_.close();
}

} // namespace project_explorer
