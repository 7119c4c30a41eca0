#include "ProjectExplorerLib/ProjectExplorerView.h"

#include "AecApp/ContextMenuProvider.h"
#include "AecApp/GroupingButtonHandler.h"
#include "AecApp/HostRegistrations.h"
#include "AecApp/TeardownFailureReport.h"
#include "Common/Check.h"
#include "ProjectExplorerLib/ProjectExplorerRootActivity.h"
#include "aec/Activity.h"
#include "aec/Gui.h"
#include "aec/ProjectExplorer.h"
#include "aec/ProjectExplorerGroup.h"
#include "aec/ProjectExplorerGroupInfo.h"
#include "aec/ProjectExplorerPanel.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <utility>

namespace project_explorer
{

namespace
{

// The host's GUI resource numbers of one group's grouping buttons.
struct GroupingButtonIds
{
    std::uint32_t panel;
    std::uint32_t groupCriterion;
    std::uint32_t sortOrder;
};

// The grouping buttons of each group kind that has them: the kinds that the host numbers 3 to 9,
// whose buttons the host's resources number in three runs of seven, one run per button.
const std::map<common::UUID, GroupingButtonIds>& groupingButtonTable()
{
    static const std::map<common::UUID, GroupingButtonIds> table = []
    {
        constexpr int firstKind = 3;
        constexpr int lastKind = 9;
        std::map<common::UUID, GroupingButtonIds> rows;
        for (const aec::ProjectExplorerGroupInfo& group : aec::projectExplorerGroups())
        {
            if (group.kindNumber < firstKind || group.kindNumber > lastKind)
                continue;
            const auto kind = static_cast<std::uint32_t>(group.kindNumber);
            rows.emplace(group.id, GroupingButtonIds{837 + kind, 844 + kind, 851 + kind});
        }
        return rows;
    }();
    return table;
}

} // namespace

CProjectExplorerView::CProjectExplorerView(std::unique_ptr<aec::IProjectExplorer> explorer,
                                           aec::IHostContext& hostContext, aec::IProjectExplorerPanel& panel,
                                           const aec::ITranslation& translation,
                                           aec::IProjectExplorerEntityController& entityController,
                                           const aec::IProjectSessionManager& sessionManager,
                                           aec::ObjectEventSource& objectEvents,
                                           const aec::IClipboard& clipboard)
    : explorer_(std::move(explorer)), hostContext_(hostContext), panel_(panel), translation_(translation),
      entityController_(entityController), sessionManager_(sessionManager), objectEvents_(objectEvents),
      clipboard_(clipboard)
{
    COMMON_PRECONDITION(explorer_ != nullptr);
    objectEventsObservation_.observe(objectEvents_);
    connectUserInputSource(panel_);
}

CProjectExplorerView::~CProjectExplorerView()
{
    // Each step is taken even when one before it fails: a binding left behind would call into
    // this view after its end.
    if (gui_ != nullptr)
    {
        for (const std::size_t notification : {0u, 1u})
        {
            try
            {
                documentNotifications_.release(notification);
            }
            catch (...)
            {
                aec::reportTeardownFailure(statusService_);
            }
        }
    }
    objectEventsObservation_.reset();
    // The handlers and the provider work on the explorer's grouping models and on the GUI, so they
    // go first, the handlers in the order they were made.
    releaseGroupingButtonHandlers();
    contextMenuProvider_.reset();
    explorer_.reset();
}

void CProjectExplorerView::setGui(aec::IGui* gui)
{
    COMMON_PRECONDITION(gui_ == nullptr);
    COMMON_PRECONDITION(gui != nullptr);

    // Everything is made aside and kept only once all of it is there, so that a GUI that fails
    // part-way gets back what it was given, and the view can be bound again.
    //
    // The host tells every view when documents are switched and closed. The explorer shows one
    // project, that of its own document, and has nothing to do on either, but it must hold the
    // registrations like every view; the callbacks stay empty on purpose.
    aec::CRegistrationList notifications;
    notifications.add(aec::registerDocumentActivated(*gui, [](unsigned long) {}));
    notifications.add(aec::registerDocumentClosing(*gui, [](unsigned long) {}));

    auto handlers = createGroupingButtonHandlers(*gui);
    auto provider = std::make_unique<aec::CContextMenuProvider>(gui, translation_);
    connectUserInputSource(*provider);

    gui_ = gui;
    documentNotifications_ = std::move(notifications);
    groupingButtonHandlers_ = std::move(handlers);
    contextMenuProvider_ = std::move(provider);
}

void CProjectExplorerView::setStatusService(aec::IStatusService* statusService)
{
    statusService_ = statusService;
}

void CProjectExplorerView::setLayoutHint(int /*width*/, int /*height*/) {}

void CProjectExplorerView::setClipboardListenerRegistry(aec::IClipboardListenerRegistry* registry)
{
    clipboardListenerRegistry_ = registry;
}

std::unique_ptr<aec::IActivity> CProjectExplorerView::createActivity()
{
    COMMON_PRECONDITION(contextMenuProvider_ != nullptr);
    COMMON_PRECONDITION(gui_ != nullptr);
    return std::make_unique<CProjectExplorerRootActivity>(
        *contextMenuProvider_, *gui_, statusService_, clipboardListenerRegistry_, entityController_,
        explorer_->getEntitySelection(), sessionManager_, objectEvents_, clipboard_, hostContext_);
}

void CProjectExplorerView::onViewActivated() {}

void CProjectExplorerView::onViewDeactivated() {}

bool CProjectExplorerView::hasDrawing() const
{
    return false;
}

bool CProjectExplorerView::isModified() const
{
    return false;
}

bool CProjectExplorerView::canPrint() const
{
    return false;
}

void CProjectExplorerView::print()
{
    COMMON_NOT_IMPLEMENTED();
}

void CProjectExplorerView::onProjectOpened() {}

void CProjectExplorerView::onObjectsChanged(std::uint32_t code, std::uint32_t value,
                                            const aec::EntityIdSet& changed, const aec::EntityIdSet& removed)
{
    if (code == aec::objectEventEntitiesChanged && !(changed.empty() && removed.empty()))
        panel_.onObjectsChanged(code, value, changed, removed);
}

void CProjectExplorerView::onProjectClosing() {}

std::vector<std::unique_ptr<aec::CGroupingButtonHandler>>
CProjectExplorerView::createGroupingButtonHandlers(aec::IGui& gui)
{
    std::vector<std::unique_ptr<aec::CGroupingButtonHandler>> handlers;
    const auto& table = groupingButtonTable();
    for (aec::IProjectExplorerGroup& group : explorer_->getGroups())
    {
        const auto row = table.find(group.getId());
        if (row == table.end())
            continue;
        const GroupingButtonIds& buttons = row->second;
        handlers.push_back(std::make_unique<aec::CGroupingButtonHandler>(
            buttons.panel, buttons.groupCriterion, buttons.sortOrder, &gui, translation_,
            group.getGroupingModel()));
    }
    return handlers;
}

void CProjectExplorerView::releaseGroupingButtonHandlers() noexcept
{
    for (auto& handler : groupingButtonHandlers_)
    {
        try
        {
            handler->release();
        }
        catch (...)
        {
            aec::reportTeardownFailure(statusService_);
        }
        handler.reset();
    }
    groupingButtonHandlers_.clear();
}

} // namespace project_explorer
