#pragma once

#include "AecModel/AecModelApi.h"

#include "aec/Document.h"

#include <cstdint>

namespace aec::model
{

// The document that shows a project: a key among the host's documents and, optionally, the
// context in which entity properties are edited.
class AECMODEL_API CDocument final : public IDocument
{
public:
    explicit CDocument(std::uint32_t key, IPropertyContext* propertyContext = nullptr);
    ~CDocument() override;

    std::uint32_t getKey() const override;
    IPropertyContext* getPropertyContext() const override;
    // The context is not owned; it must outlive the document or be reset first.
    void setPropertyContext(IPropertyContext* propertyContext) noexcept;

private:
    std::uint32_t key_;
    IPropertyContext* propertyContext_;
};

} // namespace aec::model
