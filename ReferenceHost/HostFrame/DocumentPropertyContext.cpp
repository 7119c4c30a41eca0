#include "HostFrame/DocumentPropertyContext.h"

namespace aec::host
{

CDocumentPropertyContext::~CDocumentPropertyContext() = default;

IPropertyContextOwner* CDocumentPropertyContext::getOwner() const
{
    // The query is const in the interface, but the owner it hands out is one to edit for.
    return const_cast<CDocumentPropertyContext*>(this);
}

} // namespace aec::host
