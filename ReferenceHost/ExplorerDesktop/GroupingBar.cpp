#include "ExplorerDesktop/GroupingBar.h"

#include "ExplorerDesktop/ButtonComboBox.h"
#include "HostFrame/GroupingButtons.h"
#include "aec/ProjectExplorerGroupInfo.h"

#include <QFormLayout>
#include <QLabel>
#include <algorithm>

namespace aec::desktop
{

CGroupingBar::CGroupingBar(host::CGui& gui, CCommandRunner& runner, QWidget* parent)
    : QWidget(parent), groupName_(new QLabel(this)), criterion_(new CButtonComboBox(gui, runner, this)),
      sortOrder_(new CButtonComboBox(gui, runner, this))
{
    QFont bold = groupName_->font();
    bold.setBold(true);
    groupName_->setFont(bold);

    auto* const layout = new QFormLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addRow(groupName_);
    layout->addRow(tr("Group by:"), criterion_);
    layout->addRow(tr("Order:"), sortOrder_);
}

CGroupingBar::~CGroupingBar() = default;

void CGroupingBar::showGroup(const common::UUID& group)
{
    const auto& groups = projectExplorerGroups();
    const auto info = std::ranges::find(groups, group, &ProjectExplorerGroupInfo::id);
    const std::optional<host::GroupingButtonIds> buttons =
        info == groups.end() ? std::nullopt : host::groupingButtonsOf(*info);
    groupName_->setText(info == groups.end() ? QString() : QString::fromStdWString(info->name));
    criterion_->bind(buttons ? std::optional(host::CGui::Button{buttons->panel, buttons->groupCriterion})
                             : std::nullopt);
    sortOrder_->bind(buttons ? std::optional(host::CGui::Button{buttons->panel, buttons->sortOrder})
                             : std::nullopt);
}

} // namespace aec::desktop
