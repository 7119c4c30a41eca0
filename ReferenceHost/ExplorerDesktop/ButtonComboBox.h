#pragma once

#include "HostFrame/Gui.h"

#include <QComboBox>
#include <boost/signals2/connection.hpp>
#include <optional>

namespace aec::desktop
{

class CCommandRunner;

// A drop-down that shows one of the GUI's panel buttons: its items, which of them are enabled,
// and its current value, refilled whenever the GUI says the button changed. Choosing an item
// chooses the value through the GUI, as the host's own drop-down does, so the button's callback
// (a grouping-button handler) acts on it. Unbound, it is empty and disabled.
class CButtonComboBox final : public QComboBox
{
    Q_OBJECT

public:
    CButtonComboBox(host::CGui& gui, CCommandRunner& runner, QWidget* parent = nullptr);
    ~CButtonComboBox() override;

    void bind(std::optional<host::CGui::Button> button);
    const std::optional<host::CGui::Button>& getButton() const noexcept { return button_; }
    // Chooses the item of the value as a user does; false when the GUI refused it.
    bool chooseValue(const QString& value);

private:
    void refill();

    host::CGui& gui_;
    CCommandRunner& runner_;
    std::optional<host::CGui::Button> button_;
    boost::signals2::scoped_connection buttonChanged_;
};

} // namespace aec::desktop
