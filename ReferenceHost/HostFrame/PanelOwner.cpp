#include "HostFrame/PanelOwner.h"

#include <utility>

namespace aec::host
{

CPanelOwner::CPanelOwner(std::wstring title) : title_(std::move(title)) {}

CPanelOwner::~CPanelOwner() = default;

const std::wstring& CPanelOwner::getTitle() const noexcept
{
    return title_;
}

void CPanelOwner::setTitle(std::wstring title)
{
    title_ = std::move(title);
}

} // namespace aec::host
