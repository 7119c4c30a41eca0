#pragma once

#include "Common/UUID.h"

#include <QWidget>

class QLabel;

namespace aec::host
{
class CGui;
} // namespace aec::host

namespace aec::desktop
{

class CButtonComboBox;
class CCommandRunner;

// The bar above the explorer's tree with the grouping buttons of one group: the drop-down of the
// grouping key and that of the sort order, shown as the GUI holds them and acting through them.
// It shows the buttons of the group that the user works in; a group without grouping shows none.
class CGroupingBar final : public QWidget
{
    Q_OBJECT

public:
    CGroupingBar(host::CGui& gui, CCommandRunner& runner, QWidget* parent = nullptr);
    ~CGroupingBar() override;

    // Shows the buttons of the host's group with the identifier.
    void showGroup(const common::UUID& group);

    CButtonComboBox& getCriterionBox() noexcept { return *criterion_; }
    CButtonComboBox& getSortOrderBox() noexcept { return *sortOrder_; }

private:
    QLabel* groupName_;
    CButtonComboBox* criterion_;
    CButtonComboBox* sortOrder_;
};

} // namespace aec::desktop
