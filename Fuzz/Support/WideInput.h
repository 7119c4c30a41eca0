#pragma once

#include <string>
#include <string_view>

namespace fuzz
{

// The fuzz input as the wide text that the code under test takes, so that one seed file reads as
// the text a person would write and a mutation can still reach any code unit:
// - a well-formed UTF-8 sequence is its code point;
// - the byte 0xFF, which UTF-8 never uses, followed by four bytes is that raw 32-bit code unit
//   (little-endian), also a negative one, a surrogate or one above U+10FFFF;
// - any other byte is the code unit of its own value.
std::wstring widenFuzzInput(std::string_view bytes);

} // namespace fuzz
