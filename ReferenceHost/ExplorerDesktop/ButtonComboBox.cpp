#include "ExplorerDesktop/ButtonComboBox.h"

#include "ExplorerDesktop/CommandRunner.h"

#include <QSignalBlocker>
#include <QStandardItemModel>

namespace aec::desktop
{

CButtonComboBox::CButtonComboBox(host::CGui& gui, CCommandRunner& runner, QWidget* parent)
    : QComboBox(parent), gui_(gui), runner_(runner)
{
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
    connect(this, &QComboBox::activated, this,
            [this](int index) { chooseValue(itemData(index).toString()); });
    buttonChanged_ = gui_.buttonChangedSignal().connect(
        [this](std::uint32_t panel, std::uint32_t button)
        {
            if (button_ == host::CGui::Button{panel, button})
                refill();
        });
    refill();
}

CButtonComboBox::~CButtonComboBox()
{
    buttonChanged_.disconnect();
}

void CButtonComboBox::bind(std::optional<host::CGui::Button> button)
{
    button_ = button;
    refill();
}

bool CButtonComboBox::chooseValue(const QString& value)
{
    if (!button_)
        return false;
    const auto [panel, button] = *button_;
    const bool chosen = runner_.run([this, panel, button, &value]
                                    { gui_.chooseButtonValue(panel, button, value.toStdWString()); });
    // A refused choice leaves the button as it was, and the drop-down shows that again.
    refill();
    return chosen;
}

void CButtonComboBox::refill()
{
    const QSignalBlocker blocker(this);
    clear();
    if (!button_)
    {
        setEnabled(false);
        return;
    }
    const auto [panel, button] = *button_;
    auto* const items = qobject_cast<QStandardItemModel*>(model());
    for (const host::CGui::ButtonItem& item : gui_.getButtonItems(panel, button))
    {
        addItem(QString::fromStdWString(item.label), QString::fromStdWString(item.value));
        if (!item.enabled && items != nullptr)
            items->item(count() - 1)->setEnabled(false);
    }
    const std::optional<std::wstring> value = gui_.getButtonValue(panel, button);
    setCurrentIndex(value ? findData(QString::fromStdWString(*value)) : -1);
    setEnabled(gui_.hasButtonCallback(panel, button) && count() > 0);
}

} // namespace aec::desktop
