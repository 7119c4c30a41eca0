#pragma once

// Small stand-ins for the host services that the view and its activity only pass on or register
// with: translation, clipboard, clipboard listener registry and the host context.

#include "AecModel/Project.h"
#include "AecModel/PropertyCatalog.h"

#include "aec/Clipboard.h"
#include "aec/ClipboardListener.h"
#include "aec/HostContext.h"
#include "aec/Translation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <vector>

namespace project_explorer::test
{

// Text n reads "text n"; the explorer's view fills nothing in.
class NumberedTranslation final : public aec::ITranslation
{
public:
    std::wstring getText(int textId) const override { return L"text " + std::to_wstring(textId); }
    std::wstring fillIn(const std::wstring& text, const std::wstring& argument) const override
    {
        return text + L" " + argument;
    }
};

class MapClipboard final : public aec::IClipboard
{
public:
    void setData(std::uint32_t format, const std::wstring& data) override { content_[format] = data; }
    std::optional<std::wstring> getData(std::uint32_t format) const override
    {
        return hasData(format) ? std::optional(content_.at(format)) : std::nullopt;
    }
    bool hasData(std::uint32_t format) const override { return content_.contains(format); }

private:
    std::map<std::uint32_t, std::wstring> content_;
};

// Keeps the registered listeners, and tells a new one the clipboard's content at once.
class ListenerRegistry final : public aec::IClipboardListenerRegistry
{
public:
    explicit ListenerRegistry(const aec::IClipboard& clipboard) : clipboard_(clipboard) {}
    void addListener(aec::IClipboardListener& listener) override
    {
        EXPECT_EQ(std::ranges::count(listeners, &listener), 0) << "the listener is registered already";
        listeners.push_back(&listener);
        listener.clipboardChanged(clipboard_);
    }
    void removeListener(aec::IClipboardListener& listener) override
    {
        EXPECT_EQ(std::erase(listeners, &listener), 1u) << "the listener is not registered";
    }

    std::vector<aec::IClipboardListener*> listeners;

private:
    const aec::IClipboard& clipboard_;
};

class ProjectHostContext final : public aec::IHostContext
{
public:
    explicit ProjectHostContext(const aec::model::CProject& project) : project_(project) {}
    const aec::IProject& getProject() const override { return project_; }
    const aec::IPropertyCatalog& getPropertyCatalog() const override { return catalog_; }

private:
    const aec::model::CProject& project_;
    aec::model::CPropertyCatalog catalog_;
};

} // namespace project_explorer::test
