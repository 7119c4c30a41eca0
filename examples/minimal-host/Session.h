#pragma once

#include "aec/AttributeValueFormatter.h"
#include "aec/HostContext.h"
#include "aec/ProjectSessionManager.h"
#include "aec/PropertyCatalog.h"

namespace minimal_host
{

class CProject;

// The open project and how its properties read: the session manager that the library asks for the
// current project, the host context that a panel is made in, the catalog of grouping properties
// (the topic, always available) and the formatter that names subgroups.
class CSession final : public aec::IProjectSessionManager,
                       public aec::IHostContext,
                       public aec::IPropertyCatalog,
                       public aec::IAttributeValueFormatter
{
public:
    // The project becomes the current one; null closes it. It must outlive its time here.
    void setCurrentProject(CProject* project) noexcept { project_ = project; }

    // aec::IProjectSessionManager
    aec::IProject& getCurrentProject() const override;

    // aec::IHostContext: this host shows one project at a time, the current one.
    const aec::IProject& getProject() const override;
    const aec::IPropertyCatalog& getPropertyCatalog() const override { return *this; }

    // aec::IPropertyCatalog
    bool isAvailable(const aec::IProject& project, const aec::PropertyAssignmentKey& key) const override;
    std::wstring getDisplayName(const aec::PropertyAssignmentKey& key) const override;

    // aec::IAttributeValueFormatter: a reference to another entity (a topic) reads as its name.
    std::wstring format(const aec::AttributeValue& value) const override;

private:
    CProject* project_ = nullptr;
};

} // namespace minimal_host
