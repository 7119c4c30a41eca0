#pragma once

#include "aec/AecApi.h"
#include "aec/ContextMenuItem.h"

#include <string>
#include <vector>

namespace aec
{

class ITranslation;

// Supplies items of a context menu.
class AEC_INTERFACE IMenuItemProvider
{
public:
    virtual ~IMenuItemProvider() = default;

    // The items, with texts in the user's language.
    virtual std::vector<CContextMenuItem> getMenuItems(const ITranslation& translation) const = 0;
    // A short name of the provider, for diagnostics.
    virtual std::string getName() const = 0;
};

} // namespace aec
