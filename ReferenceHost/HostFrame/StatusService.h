#pragma once

#include "HostFrame/HostFrameApi.h"
#include "aec/StatusService.h"

#include <boost/signals2/signal.hpp>
#include <string>

namespace aec::host
{

// The host's status line without a toolkit: it keeps the last message and tells a host program,
// which shows it.
class HOSTFRAME_API CStatusService final : public IStatusService
{
public:
    using StatusSignal = boost::signals2::signal<void(const std::wstring&)>;

    CStatusService();
    ~CStatusService() override;
    CStatusService(const CStatusService&) = delete;
    CStatusService& operator=(const CStatusService&) = delete;

    void showStatus(const std::wstring& message) override;

    // Empty until the first message.
    const std::wstring& getLastMessage() const noexcept;
    StatusSignal& statusSignal() noexcept;

private:
    std::wstring lastMessage_;
    StatusSignal status_;
};

} // namespace aec::host
