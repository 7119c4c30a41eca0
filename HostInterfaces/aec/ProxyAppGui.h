#pragma once

#include "aec/AecApi.h"

#include <cstdint>

namespace aec
{

class IDocumentGui;

// The application's user interface as seen from a library.
class AEC_INTERFACE IProxyAppGui
{
public:
    virtual ~IProxyAppGui() = default;

    // The user interface of the document with the key, or null when it has none.
    virtual IDocumentGui* getDocumentGui(std::uint32_t documentKey) const = 0;
};

} // namespace aec
