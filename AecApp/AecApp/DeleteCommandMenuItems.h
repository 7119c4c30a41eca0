#pragma once

#include "AecApp/SingleCommandMenuItem.h"

namespace aec
{

// The delete item, running the host's delete command on what is selected.
class AECAPP_API CDeleteCommandMenuItems : public CSingleCommandMenuItem
{
public:
    static constexpr std::string_view identifier = "0207d3e1-9328-428b-997b-a9adb0795393";

    CDeleteCommandMenuItems(IGui& gui, bool enabled);
};

} // namespace aec
