#pragma once

#include "aec/AecApi.h"

#include <cstdint>

namespace aec
{

class IPropertyContext;

// The document that shows a project in the host application.
class AEC_INTERFACE IDocument
{
public:
    virtual ~IDocument() = default;

    // The document's numeric key among the host's open documents.
    virtual std::uint32_t getKey() const = 0;
    // The document's property context, or null when it has none.
    virtual IPropertyContext* getPropertyContext() const = 0;
};

} // namespace aec
