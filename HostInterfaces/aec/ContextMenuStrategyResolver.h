#pragma once

#include "aec/AecApi.h"

#include <memory>
#include <vector>

namespace aec
{

class IMenuItemProvider;

// The providers a context menu is made of, in menu order.
using ContextMenuStrategy = std::vector<std::shared_ptr<IMenuItemProvider>>;

// Works out the providers of one context menu request.
class AEC_INTERFACE IContextMenuStrategyResolver
{
public:
    virtual ~IContextMenuStrategyResolver() = default;

    // The kind of strategy, in the host's numbering.
    virtual int getStrategyKind() const = 0;
    // The providers of the menu, followed by the extra provider when one is given.
    virtual ContextMenuStrategy resolve(const std::shared_ptr<IMenuItemProvider>& extra) const = 0;
};

} // namespace aec
