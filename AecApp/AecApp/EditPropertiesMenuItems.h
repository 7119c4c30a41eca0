#pragma once

#include "AecApp/SingleCommandMenuItem.h"

namespace aec
{

// The edit-properties item, running the host's edit-properties command on what is selected.
class AECAPP_API CEditPropertiesMenuItems : public CSingleCommandMenuItem
{
public:
    static constexpr std::string_view identifier = "c2e9237b-133d-40aa-8255-fac432c29c8c";

    CEditPropertiesMenuItems(IGui& gui, bool enabled);
};

} // namespace aec
