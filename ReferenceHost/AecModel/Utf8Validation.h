#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace aec::model
{

// The line (from 1) of the first byte that is no part of a valid UTF-8 character, or nothing when
// the whole text is valid UTF-8.
std::optional<std::size_t> firstInvalidUtf8Line(std::string_view text);

} // namespace aec::model
