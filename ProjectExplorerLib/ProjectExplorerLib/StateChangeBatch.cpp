#include "ProjectExplorerLib/StateChangeBatch.h"

#include <utility>

namespace project_explorer
{

CStateChangeBatch::CStateChangeBatch(std::function<void()> write) : write_(std::move(write)) {}

void CStateChangeBatch::changed()
{
    if (openScopes_ > 0)
    {
        pending_ = true;
        return;
    }
    // Noted first, so that a write that fails leaves the change to be written with the next one.
    pending_ = true;
    flush();
}

void CStateChangeBatch::flush()
{
    if (!pending_)
        return;
    write_();
    pending_ = false;
}

CStateChangeBatch::CScope::CScope(CStateChangeBatch& batch) noexcept : batch_(batch)
{
    ++batch_.openScopes_;
}

CStateChangeBatch::CScope::~CScope()
{
    if (ended_ || --batch_.openScopes_ > 0)
        return;
    try
    {
        batch_.flush();
    }
    catch (...)
    {
        // Still pending: the next change or the writer's end writes it.
    }
}

void CStateChangeBatch::CScope::end()
{
    ended_ = true;
    if (--batch_.openScopes_ == 0)
        batch_.flush();
}

} // namespace project_explorer
