#include "RecordingGui.h"

#include "AecApp/PasteController.h"

#include "aec/Clipboard.h"

#include <gtest/gtest.h>

#include <map>
#include <optional>

namespace aecapp_tests
{
namespace
{

class MapClipboard : public aec::IClipboard
{
public:
    void setData(std::uint32_t format, const std::wstring& data) override { data_ = {{format, data}}; }
    std::optional<std::wstring> getData(std::uint32_t format) const override
    {
        const auto found = data_.find(format);
        return found == data_.end() ? std::nullopt : std::optional<std::wstring>(found->second);
    }
    bool hasData(std::uint32_t format) const override { return data_.contains(format); }

private:
    std::map<std::uint32_t, std::wstring> data_;
};

class CountingRegistry : public aec::IClipboardListenerRegistry
{
public:
    void addListener(aec::IClipboardListener&) override { ++calls; }
    void removeListener(aec::IClipboardListener&) override { ++calls; }
    int calls = 0;
};

constexpr std::uint32_t entitiesFormat = 6;
constexpr int pasteCommand = 85;

TEST(PasteControllerTest, EnablesPasteExactlyWhileTheClipboardHoldsItsFormat)
{
    RecordingGui gui;
    CountingRegistry registry;
    aec::CPasteController controller(registry, gui, entitiesFormat);
    MapClipboard clipboard;

    clipboard.setData(entitiesFormat, L"{}");
    controller.clipboardChanged(clipboard);
    EXPECT_TRUE(gui.isCommandEnabled(pasteCommand));

    clipboard.setData(entitiesFormat + 1, L"text");
    controller.clipboardChanged(clipboard);
    EXPECT_FALSE(gui.isCommandEnabled(pasteCommand));
    EXPECT_EQ(gui.enabledCommands.size(), 1u);
    EXPECT_EQ(registry.calls, 0);
}

TEST(PasteControllerTest, PasteCommandRequestsAPasteWhileTheControllerLives)
{
    RecordingGui gui;
    CountingRegistry registry;
    int requests = 0;
    {
        aec::CPasteController controller(registry, gui, entitiesFormat);
        EXPECT_EQ(&controller.getRegistry(), &registry);
        const boost::signals2::scoped_connection connection =
            controller.pasteRequestedSignal().connect([&requests] { ++requests; });
        gui.runCommand(pasteCommand);
        gui.runCommand(pasteCommand);
        EXPECT_EQ(requests, 2);
    }
    EXPECT_FALSE(gui.commandHandlers.contains(pasteCommand));
    gui.runCommand(pasteCommand);
    EXPECT_EQ(requests, 2);
    EXPECT_EQ(registry.calls, 0);
}

} // namespace
} // namespace aecapp_tests
