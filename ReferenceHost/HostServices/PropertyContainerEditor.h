#pragma once

#include "HostServices/HostServicesApi.h"

#include "aec/PropertyContainerEditor.h"

#include <cstddef>
#include <functional>
#include <optional>

namespace aec::host
{

// Takes requests to edit entity properties. It keeps the last request and hands each to the
// callback that the host program plugs in (a terminal host prints the properties and edits them
// through the project); without a callback the request is only kept.
class HOSTSERVICES_API CPropertyContainerEditor final : public IPropertyContainerEditor
{
public:
    struct Request
    {
        IPropertyContextOwner* owner;
        EntityIdSet entities;
    };
    using EditCallback = std::function<void(IPropertyContextOwner& owner, const EntityIdSet& entities)>;

    CPropertyContainerEditor();
    ~CPropertyContainerEditor() override;

    void edit(IPropertyContextOwner& owner, const EntityIdSet& entities) override;

    void setEditCallback(EditCallback callback) { callback_ = std::move(callback); }
    const std::optional<Request>& getLastRequest() const noexcept { return lastRequest_; }
    std::size_t getRequestCount() const noexcept { return requestCount_; }

private:
    EditCallback callback_;
    std::optional<Request> lastRequest_;
    std::size_t requestCount_ = 0;
};

} // namespace aec::host
