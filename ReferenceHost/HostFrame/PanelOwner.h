#pragma once

#include "HostFrame/HostFrameApi.h"
#include "aec/HostContext.h"

#include <string>

namespace aec::host
{

// The host window that panels are made in; a host program names it after what it shows.
class HOSTFRAME_API CPanelOwner final : public IPanelOwner
{
public:
    explicit CPanelOwner(std::wstring title);
    ~CPanelOwner() override;
    CPanelOwner(const CPanelOwner&) = delete;
    CPanelOwner& operator=(const CPanelOwner&) = delete;

    const std::wstring& getTitle() const noexcept;
    void setTitle(std::wstring title);

private:
    std::wstring title_;
};

} // namespace aec::host
