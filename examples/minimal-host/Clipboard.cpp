#include "Clipboard.h"

#include "Common/Check.h"
#include "Common/Exception.h"

#include <algorithm>

namespace minimal_host
{

void CClipboard::setData(std::uint32_t format, const std::wstring& data)
{
    content_[format] = data;
    // A listener may unregister while it hears of the change.
    const std::vector<aec::IClipboardListener*> listeners = listeners_;
    for (aec::IClipboardListener* const listener : listeners)
        listener->clipboardChanged(*this);
}

std::optional<std::wstring> CClipboard::getData(std::uint32_t format) const
{
    const auto found = content_.find(format);
    return found != content_.end() ? std::optional(found->second) : std::nullopt;
}

bool CClipboard::hasData(std::uint32_t format) const
{
    return content_.contains(format);
}

void CClipboard::addListener(aec::IClipboardListener& listener)
{
    COMMON_PRECONDITION(std::ranges::find(listeners_, &listener) == listeners_.end());
    listeners_.push_back(&listener);
    listener.clipboardChanged(*this);
}

void CClipboard::removeListener(aec::IClipboardListener& listener)
{
    std::erase(listeners_, &listener);
}

std::wstring CClipboard::serialize(const aec::IProjectEntityCopyData& /*data*/)
{
    throw common::EException("This host does not copy entities to the clipboard.");
}

std::unique_ptr<aec::IProjectEntityPasteData> CClipboard::deserialize(const std::wstring& /*text*/,
                                                                      const aec::PasteContext& /*context*/)
{
    throw common::EException("The clipboard holds no entities this host can paste.");
}

} // namespace minimal_host
