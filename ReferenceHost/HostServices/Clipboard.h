#pragma once

#include "HostServices/HostServicesApi.h"

#include "aec/Clipboard.h"
#include "aec/ClipboardListener.h"

#include "Common/Observable.h"

#include <optional>

namespace aec::host
{

// The host's in-process clipboard. Like a desktop clipboard it holds one piece of content at a
// time, under one format: setting data under a format replaces whatever was there under any
// format. Listeners hear of every change of the content, and of the content at once when they
// register; setting the same data again changes nothing and tells no one. A listener that fails to
// follow a change fails the change: the clipboard takes its content back, tells the listeners so,
// and passes the failure on.
class HOSTSERVICES_API CClipboard final : public IClipboard, public IClipboardListenerRegistry
{
public:
    CClipboard();
    ~CClipboard() override;
    CClipboard(const CClipboard&) = delete;
    CClipboard& operator=(const CClipboard&) = delete;

    void setData(std::uint32_t format, const std::wstring& data) override;
    std::optional<std::wstring> getData(std::uint32_t format) const override;
    bool hasData(std::uint32_t format) const override;
    // Empties the clipboard.
    void clear();

    // The listener must not be registered yet. A listener that fails to take the current content
    // is not registered.
    void addListener(IClipboardListener& listener) override;
    // The listener must be registered.
    void removeListener(IClipboardListener& listener) override;

private:
    struct Content
    {
        std::uint32_t format;
        std::wstring data;

        friend bool operator==(const Content&, const Content&) = default;
    };

    void replaceContent(std::optional<Content> content);

    std::optional<Content> content_;
    common::CObservable<IClipboardListener> listeners_;
};

} // namespace aec::host
