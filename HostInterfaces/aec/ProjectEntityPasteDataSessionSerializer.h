#pragma once

#include "aec/AecApi.h"

#include <memory>
#include <string>

namespace aec
{

class IProjectEntityCopyData;
class IProjectEntityPasteData;
struct PasteContext;

namespace serialization
{

// Turns copy data into the clipboard's wide string and clipboard strings back into paste data.
class AEC_INTERFACE IProjectEntityPasteDataSessionSerializer
{
public:
    virtual ~IProjectEntityPasteDataSessionSerializer() = default;

    // The clipboard text of the copy data.
    virtual std::wstring serialize(const IProjectEntityCopyData& data) = 0;
    // The paste data of a clipboard text; throws common::EException when the text does not decode.
    virtual std::unique_ptr<IProjectEntityPasteData> deserialize(const std::wstring& text,
                                                                 const PasteContext& context) = 0;
};

} // namespace serialization
} // namespace aec
