#include "AecApp/PasteController.h"

#include "RecordingGui.h"
#include "aec/Clipboard.h"

#include <gtest/gtest.h>
#include <set>

namespace aecapp_tests
{
namespace
{

constexpr std::uint32_t entitiesFormat = 6;
constexpr int pasteCommand = 85;

// A clipboard that only knows which formats it holds.
class FormatsClipboard : public aec::IClipboard
{
public:
    void setData(std::uint32_t format, const std::wstring&) override { formats = {format}; }
    std::optional<std::wstring> getData(std::uint32_t) const override { return std::nullopt; }
    bool hasData(std::uint32_t format) const override { return formats.contains(format); }
    std::set<std::uint32_t> formats;
};

// Fails on any call: the controller's owner registers it, never the controller itself.
class UntouchedRegistry : public aec::IClipboardListenerRegistry
{
public:
    void addListener(aec::IClipboardListener&) override
    {
        ADD_FAILURE() << "the controller registered itself";
    }
    void removeListener(aec::IClipboardListener&) override
    {
        ADD_FAILURE() << "the controller unregistered itself";
    }
};

TEST(PasteControllerTest, EnablesPasteExactlyWhileTheClipboardHoldsItsFormat)
{
    RecordingGui gui;
    UntouchedRegistry registry;
    aec::CPasteController controller(&registry, gui, entitiesFormat);
    FormatsClipboard clipboard;

    clipboard.setData(entitiesFormat, L"");
    controller.clipboardChanged(clipboard);
    EXPECT_TRUE(gui.isCommandEnabled(pasteCommand));

    clipboard.setData(entitiesFormat + 1, L"");
    controller.clipboardChanged(clipboard);
    EXPECT_FALSE(gui.isCommandEnabled(pasteCommand));
    EXPECT_EQ(gui.enabledCommands.size(), 1u);
}

TEST(PasteControllerTest, PasteCommandRequestsAPasteUntilTheControllerIsReleasedOrGone)
{
    RecordingGui gui;
    UntouchedRegistry registry;
    int requests = 0;
    {
        aec::CPasteController controller(&registry, gui, entitiesFormat);
        EXPECT_EQ(controller.getRegistry(), &registry);
        EXPECT_EQ(gui.handlerVariants.at(pasteCommand), 0);
        const boost::signals2::scoped_connection connection =
            controller.pasteRequestedSignal().connect([&requests] { ++requests; });
        gui.runCommand(pasteCommand);
        gui.runCommand(pasteCommand);
        EXPECT_EQ(requests, 2);
    }
    ASSERT_FALSE(gui.handlers.contains(pasteCommand));

    aec::CPasteController released(&registry, gui, entitiesFormat);
    released.release();
    EXPECT_FALSE(gui.handlers.contains(pasteCommand));
}

} // namespace
} // namespace aecapp_tests
