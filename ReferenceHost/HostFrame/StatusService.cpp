#include "HostFrame/StatusService.h"

namespace aec::host
{

CStatusService::CStatusService() = default;

CStatusService::~CStatusService()
{
    status_.disconnect_all_slots();
}

void CStatusService::showStatus(const std::wstring& message)
{
    lastMessage_ = message;
    status_(lastMessage_);
}

const std::wstring& CStatusService::getLastMessage() const noexcept
{
    return lastMessage_;
}

CStatusService::StatusSignal& CStatusService::statusSignal() noexcept
{
    return status_;
}

} // namespace aec::host
