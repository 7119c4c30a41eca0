#pragma once

#include "aec/PropertyContext.h"

namespace aec::host
{

// The host's context for editing entity properties: the explorer hands an edit-properties request
// to the host's property editor only for a document that has a context. The host's property editors
// edit exactly the entities a request names and nothing of their own, so the context is its own
// owner.
class CDocumentPropertyContext final : public IPropertyContext, public IPropertyContextOwner
{
public:
    CDocumentPropertyContext() = default;
    ~CDocumentPropertyContext() override;
    CDocumentPropertyContext(const CDocumentPropertyContext&) = delete;
    CDocumentPropertyContext& operator=(const CDocumentPropertyContext&) = delete;

    IPropertyContextOwner* getOwner() const override;
};

} // namespace aec::host
