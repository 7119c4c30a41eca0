#include "AecApp/OpenMenuItem.h"

#include "AecApp/StandardMenuItem.h"
#include "aec/TextIds.h"

namespace aec
{

COpenMenuItem::COpenMenuItem(CContextMenuItem::Action action, bool enabled)
    : action_(std::move(action)), enabled_(enabled)
{
}

std::vector<CContextMenuItem> COpenMenuItem::getMenuItems(const ITranslation& translation) const
{
    return {makeStandardMenuItem(translation, text_ids::open, std::string(identifier), action_, enabled_)};
}

std::string COpenMenuItem::getName() const
{
    return "open";
}

} // namespace aec
