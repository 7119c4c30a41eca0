#include "ExplorerShell/ShellPropertyContext.h"

namespace aec::shell
{

IPropertyContextOwner* CShellPropertyContext::getOwner() const
{
    return &owner_;
}

} // namespace aec::shell
