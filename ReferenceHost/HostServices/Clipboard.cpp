#include "HostServices/Clipboard.h"

#include <utility>

namespace aec::host
{

CClipboard::CClipboard() = default;

CClipboard::~CClipboard() = default;

void CClipboard::setData(std::uint32_t format, const std::wstring& data)
{
    replaceContent(Content{format, data});
}

std::optional<std::wstring> CClipboard::getData(std::uint32_t format) const
{
    if (!hasData(format))
        return std::nullopt;
    return content_->data;
}

bool CClipboard::hasData(std::uint32_t format) const
{
    return content_ && content_->format == format;
}

void CClipboard::clear()
{
    replaceContent(std::nullopt);
}

void CClipboard::addListener(IClipboardListener& listener)
{
    listeners_.addObserver(listener);
    try
    {
        listener.clipboardChanged(*this);
    }
    catch (...)
    {
        // A registration that fails leaves nothing registered: the caller cannot know that it
        // would have to remove a listener whose adding it saw fail.
        listeners_.removeObserver(listener);
        throw;
    }
}

void CClipboard::removeListener(IClipboardListener& listener)
{
    listeners_.removeObserver(listener);
}

void CClipboard::replaceContent(std::optional<Content> content)
{
    if (content_ == content)
        return;
    std::optional<Content> previous = std::exchange(content_, std::move(content));
    try
    {
        listeners_.notify([this](IClipboardListener& listener) { listener.clipboardChanged(*this); });
    }
    catch (...)
    {
        // The listeners told before the failing one follow the content back. Every listener is
        // told, so one that fails again does not stop the others; the first failure is the one
        // the caller hears of.
        content_ = std::move(previous);
        listeners_.notify(
            [this](IClipboardListener& listener)
            {
                try
                {
                    listener.clipboardChanged(*this);
                }
                catch (...)
                {
                }
            });
        throw;
    }
}

} // namespace aec::host
