#include "HostServices/HostServices.h"
#include "HostServices/Clipboard.h"
#include "HostServices/ProxyAppGui.h"
#include "HostServices/ScriptedDialogService.h"
#include "HostServices/ScriptedImportFileDialog.h"
#include "HostServices/Translation.h"

#include "aec/ClipboardFormats.h"
#include "aec/TextIds.h"

#include "Common/Exception.h"
#include "Common/UUID.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace aec::host
{
namespace
{

// Keeps what the project-entity format held at each notification.
class CContentRecorder final : public IClipboardListener
{
public:
    void clipboardChanged(const IClipboard& clipboard) override
    {
        heard.push_back(clipboard.getData(clipboardFormatProjectEntities));
    }

    std::vector<std::optional<std::wstring>> heard;
};

TEST(ClipboardTest, ListenersHearOfEveryChangeAndOfTheContentWhenTheyRegister)
{
    CClipboard clipboard;
    clipboard.setData(clipboardFormatProjectEntities, L"first");
    CContentRecorder recorder;
    clipboard.addListener(recorder);
    ASSERT_EQ(recorder.heard, (std::vector<std::optional<std::wstring>>{L"first"}));

    clipboard.setData(clipboardFormatProjectEntities, L"first"); // no change
    clipboard.setData(clipboardFormatProjectEntities, L"second");
    constexpr std::uint32_t otherFormat = 1;
    clipboard.setData(otherFormat, L"text"); // replaces the entities
    EXPECT_FALSE(clipboard.hasData(clipboardFormatProjectEntities));
    EXPECT_EQ(clipboard.getData(otherFormat), L"text");
    clipboard.clear();
    EXPECT_FALSE(clipboard.hasData(otherFormat));
    EXPECT_EQ(recorder.heard,
              (std::vector<std::optional<std::wstring>>{L"first", L"second", std::nullopt, std::nullopt}));

    clipboard.removeListener(recorder);
    clipboard.setData(clipboardFormatProjectEntities, L"unheard");
    EXPECT_EQ(recorder.heard.size(), 4u);
}

// Fails every change it hears of while armed.
class CFailingListener final : public IClipboardListener
{
public:
    void clipboardChanged(const IClipboard& /*clipboard*/) override
    {
        if (armed)
            throw common::EException("The listener cannot follow the clipboard");
    }

    bool armed = false;
};

TEST(ClipboardTest, AChangeThatAListenerCannotFollowIsTakenBack)
{
    CClipboard clipboard;
    clipboard.setData(clipboardFormatProjectEntities, L"first");
    CContentRecorder before;
    CFailingListener failing;
    CContentRecorder after;
    clipboard.addListener(before);
    clipboard.addListener(failing);
    clipboard.addListener(after);

    failing.armed = true;
    EXPECT_THROW(clipboard.setData(clipboardFormatProjectEntities, L"second"), common::EException);
    EXPECT_EQ(clipboard.getData(clipboardFormatProjectEntities), L"first");
    // The listener told of the change hears it taken back; the one behind the failing listener,
    // which fails again, hears the content as well.
    EXPECT_EQ(before.heard, (std::vector<std::optional<std::wstring>>{L"first", L"second", L"first"}));
    EXPECT_EQ(after.heard, (std::vector<std::optional<std::wstring>>{L"first", L"first"}));

    clipboard.removeListener(failing);
    clipboard.removeListener(before);
    clipboard.removeListener(after);
}

TEST(TranslationTest, TextsTakeTheirArgumentAndMissingOnesShowTheirNumber)
{
    const CTranslation translation;
    for (const int id : {11, 42, 43, 44, 54, 55, 56, 57, 58, 59, 144, 145, 1159})
        EXPECT_NE(translation.getText(id).front(), L'#') << id;
    EXPECT_EQ(translation.getText(text_ids::editProperties), L"Properties...");
    EXPECT_EQ(translation.getText(123), L"#123");

    EXPECT_EQ(translation.fillIn(translation.getText(text_ids::deleteOneQuestion), L"Plan {}"),
              L"Delete \"Plan {}\"?");
    EXPECT_EQ(translation.fillIn(translation.getText(text_ids::deleteManyQuestion), L"12"),
              L"Delete 12 entities?");
    EXPECT_EQ(translation.fillIn(L"{} of {}", L"3"), L"3 of 3");
    EXPECT_EQ(translation.fillIn(L"Rename", L"3"), L"Rename");
}

TEST(ScriptedDialogsTest, AnswersComeFromTheQueueThenFromTheDefault)
{
    CScriptedDialogService dialogs;
    dialogs.queueAnswer(DialogAnswer::Yes);
    dialogs.queueAnswer(DialogAnswer::Cancel);
    EXPECT_EQ(dialogs.ask(L"Delete", L"Delete \"Plan\"?", dialogButtonsYesNo), DialogAnswer::Yes);
    EXPECT_EQ(dialogs.ask(L"T2", L"Q2", 1), DialogAnswer::Cancel);
    EXPECT_EQ(dialogs.ask(L"T3", L"Q3", 2), DialogAnswer::No);
    dialogs.setDefaultAnswer(DialogAnswer::Ok);
    EXPECT_EQ(dialogs.ask(L"T4", L"Q4", 3), DialogAnswer::Ok);
    ASSERT_EQ(dialogs.getQuestions().size(), 4u);
    EXPECT_EQ(dialogs.getQuestions().front(),
              (CScriptedDialogService::Question{L"Delete", L"Delete \"Plan\"?", dialogButtonsYesNo}));

    CScriptedImportFileDialog files;
    files.queueAnswer(L"/tmp/doors.csv");
    EXPECT_EQ(files.askForFile(), L"/tmp/doors.csv");
    EXPECT_EQ(files.askForFile(), L"");
    EXPECT_EQ(files.getAskCount(), 2u);
}

TEST(ScriptedDialogsTest, AWindowedHostAnswersWhatTheQueueLeavesOpen)
{
    CScriptedDialogService dialogs;
    std::vector<std::wstring> putToUser;
    dialogs.setAskCallback(
        [&putToUser](const CScriptedDialogService::Question& question)
        {
            putToUser.push_back(question.text);
            return DialogAnswer::Yes;
        });
    dialogs.queueAnswer(DialogAnswer::No);
    EXPECT_EQ(dialogs.ask(L"Delete", L"Q1", dialogButtonsYesNo), DialogAnswer::No);
    EXPECT_EQ(dialogs.ask(L"Delete", L"Q2", dialogButtonsYesNo), DialogAnswer::Yes);
    EXPECT_EQ(putToUser, std::vector<std::wstring>{L"Q2"});
    EXPECT_EQ(dialogs.getQuestions().size(), 2u) << "questions the user answered are kept too";
    dialogs.setAskCallback(nullptr);
    EXPECT_EQ(dialogs.ask(L"Delete", L"Q3", dialogButtonsYesNo), DialogAnswer::No);

    CScriptedImportFileDialog files;
    files.setAskCallback([] { return std::wstring(L"/tmp/chosen.csv"); });
    files.queueAnswer(L"/tmp/queued.csv");
    EXPECT_EQ(files.askForFile(), L"/tmp/queued.csv");
    EXPECT_EQ(files.askForFile(), L"/tmp/chosen.csv");
    EXPECT_EQ(files.getAskCount(), 2u);
}

TEST(ProxyAppGuiTest, TheOpenCallbackReachesDocumentsShownBeforeAndAfter)
{
    CProxyAppGui application;
    CDocumentGui& before = application.showDocument(1);
    std::vector<EntityIdList> shown;
    application.setOpenCallback([&shown](const EntityIdList& entities) { shown.push_back(entities); });
    CDocumentGui& after = application.showDocument(2);
    const EntityId plan(common::UUID::create());
    const EntityId section(common::UUID::create());
    before.openEntities({plan});
    after.openEntities({section});
    EXPECT_EQ(shown, (std::vector<EntityIdList>{{plan}, {section}}));

    application.setOpenCallback(nullptr);
    after.openEntities({plan});
    EXPECT_EQ(shown.size(), 2u);
    EXPECT_EQ(after.getOpenedEntities().size(), 2u);
}

TEST(ProxyAppGuiTest, EachShownDocumentHasOneUserInterfaceThatCallsTheHost)
{
    CHostServices services;
    CProxyAppGui& application = services.getProxyAppGui();
    CDocumentGui& gui = application.showDocument(7);
    EXPECT_EQ(&application.showDocument(7), &gui);
    EXPECT_EQ(application.getDocumentGui(7), &gui);
    EXPECT_EQ(application.getDocumentGui(8), nullptr);

    EntityIdList renamed;
    gui.setEntityCallback([&renamed](const EntityId& entity) { renamed.push_back(entity); });
    const EntityId plan(common::UUID::create());
    gui.handleEntity(plan);
    gui.openEntities({plan, plan});
    EXPECT_EQ(renamed, EntityIdList{plan});
    EXPECT_EQ(gui.getHandledEntities(), EntityIdList{plan});
    EXPECT_EQ(gui.getOpenedEntities(), std::vector<EntityIdList>{(EntityIdList{plan, plan})});

    application.closeDocument(7);
    EXPECT_EQ(application.getDocumentGui(7), nullptr);
}

} // namespace
} // namespace aec::host
