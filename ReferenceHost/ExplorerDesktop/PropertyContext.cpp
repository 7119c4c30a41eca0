#include "ExplorerDesktop/PropertyContext.h"

namespace aec::desktop
{

CPropertyContext::~CPropertyContext() = default;

IPropertyContextOwner* CPropertyContext::getOwner() const
{
    // The owner interface is a marker; the context hands itself out as the one it edits for.
    return const_cast<CPropertyContext*>(this);
}

} // namespace aec::desktop
