#include "AecApp/GroupingButtonHandler.h"

#include "AecApp/HostRegistrations.h"
#include "Common/Check.h"
#include "aec/ProjectExplorerGroupingModel.h"
#include "aec/TextIds.h"
#include "aec/Translation.h"

#include <optional>

namespace aec
{

namespace
{

// The criterion value that stands for "no grouping".
const std::wstring noGroupingValue = L"0";
// A further element of the grouping panel that is emptied with the two buttons.
constexpr std::uint32_t thirdPanelElementId = 2;

} // namespace

CGroupingButtonHandler::CGroupingButtonHandler(std::uint32_t panelId, std::uint32_t groupCriterionButtonId,
                                               std::uint32_t sortOrderButtonId, IGui* gui,
                                               const ITranslation& translation,
                                               IProjectExplorerGroupingModel& model)
    : panelId_(panelId), groupCriterionButtonId_(groupCriterionButtonId),
      sortOrderButtonId_(sortOrderButtonId), gui_(gui), translation_(translation), model_(model)
{
    modelConnection_ = model_.changedSignal().connect([this] { refresh(); });
    COMMON_PRECONDITION(gui_ != nullptr);
    refresh();
    buttonCallbacks_.add(
        registerButtonCallback(*gui_, panelId_, groupCriterionButtonId_, groupCriterionHandler()));
    buttonCallbacks_.add(registerButtonCallback(*gui_, panelId_, sortOrderButtonId_, sortOrderHandler()));
}

// The members undo the rest: the connection first, then the callbacks, the sort order's first.
CGroupingButtonHandler::~CGroupingButtonHandler() = default;

void CGroupingButtonHandler::release()
{
    modelConnection_.disconnect();
    buttonCallbacks_.releaseAll();
}

void CGroupingButtonHandler::refresh()
{
    gui_->resetButtonItems(panelId_, groupCriterionButtonId_);
    gui_->resetButtonItems(panelId_, sortOrderButtonId_);
    gui_->resetButtonItems(panelId_, thirdPanelElementId);

    const auto options = model_.getGroupingOptions();
    gui_->addButtonItem(panelId_, groupCriterionButtonId_, noGroupingValue,
                        translation_.getText(text_ids::noGrouping), true);
    for (const auto& option : options)
        gui_->addButtonItem(panelId_, groupCriterionButtonId_, option.value, option.displayName, true);
}

IGui::ButtonCallback CGroupingButtonHandler::groupCriterionHandler()
{
    return [this](const std::wstring& value)
    {
        // Only the exact "0" means no grouping; any other text, the empty one included, names a
        // criterion, and the model judges it.
        model_.setGroupingKeyText(value == noGroupingValue ? std::nullopt
                                                           : std::optional<std::wstring>(value));
        gui_->setButtonValue(panelId_, groupCriterionButtonId_, value, true);
    };
}

IGui::ButtonCallback CGroupingButtonHandler::sortOrderHandler()
{
    return [this](const std::wstring& value)
    {
        std::int32_t sortOrder = descending_;
        if (value != std::to_wstring(descending_))
        {
            COMMON_PRECONDITION(value == std::to_wstring(ascending_));
            sortOrder = ascending_;
        }
        model_.setSortOrder(sortOrder);
        gui_->setButtonValue(panelId_, sortOrderButtonId_, value, true);
    };
}

} // namespace aec
