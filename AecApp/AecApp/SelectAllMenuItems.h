#pragma once

#include "AecApp/SingleCommandMenuItem.h"

namespace aec
{

// The select-all item; selecting everything is always possible, so it is always enabled.
class AECAPP_API CSelectAllMenuItems : public CSingleCommandMenuItem
{
public:
    static constexpr std::string_view identifier = "7BF652D6-61C9-46A1-9447-A4AC9E2A57F7";

    explicit CSelectAllMenuItems(IGui& gui);
};

} // namespace aec
