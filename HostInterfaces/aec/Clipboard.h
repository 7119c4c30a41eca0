#pragma once

#include "aec/AecApi.h"

#include <cstdint>
#include <optional>
#include <string>

namespace aec
{

// The host application's clipboard: one wide string per format.
class AEC_INTERFACE IClipboard
{
public:
    virtual ~IClipboard() = default;

    // Replaces the clipboard's content with the data under the format.
    virtual void setData(std::uint32_t format, const std::wstring& data) = 0;
    // The data under the format, empty when the clipboard holds none.
    virtual std::optional<std::wstring> getData(std::uint32_t format) const = 0;
    // Whether the clipboard holds data under the format.
    virtual bool hasData(std::uint32_t format) const = 0;
};

} // namespace aec
