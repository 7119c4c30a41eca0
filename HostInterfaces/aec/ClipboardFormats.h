#pragma once

#include <cstdint>

namespace aec
{

// The clipboard format under which copied project entities travel, as a wide string.
inline constexpr std::uint32_t clipboardFormatProjectEntities = 6;

} // namespace aec
