#include "HostFrame/HostContext.h"

namespace aec::host
{

CHostContext::CHostContext(const IProject& project, const IPropertyCatalog& propertyCatalog)
    : project_(project), propertyCatalog_(propertyCatalog)
{
}

CHostContext::~CHostContext() = default;

const IProject& CHostContext::getProject() const
{
    return project_;
}

const IPropertyCatalog& CHostContext::getPropertyCatalog() const
{
    return propertyCatalog_;
}

} // namespace aec::host
