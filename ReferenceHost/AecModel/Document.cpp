#include "AecModel/Document.h"

namespace aec::model
{

CDocument::CDocument(std::uint32_t key, IPropertyContext* propertyContext)
    : key_(key), propertyContext_(propertyContext)
{
}

CDocument::~CDocument() = default;

std::uint32_t CDocument::getKey() const
{
    return key_;
}

IPropertyContext* CDocument::getPropertyContext() const
{
    return propertyContext_;
}

void CDocument::setPropertyContext(IPropertyContext* propertyContext) noexcept
{
    propertyContext_ = propertyContext;
}

} // namespace aec::model
