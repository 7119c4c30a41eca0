#pragma once

#include "HostFrame/HostFrameApi.h"
#include "aec/HostContext.h"

namespace aec::host
{

// The context that an explorer panel is made in: one open project and the host's grouping
// properties. Both must outlive the context.
class HOSTFRAME_API CHostContext final : public IHostContext
{
public:
    CHostContext(const IProject& project, const IPropertyCatalog& propertyCatalog);
    ~CHostContext() override;
    CHostContext(const CHostContext&) = delete;
    CHostContext& operator=(const CHostContext&) = delete;

    const IProject& getProject() const override;
    const IPropertyCatalog& getPropertyCatalog() const override;

private:
    const IProject& project_;
    const IPropertyCatalog& propertyCatalog_;
};

} // namespace aec::host
