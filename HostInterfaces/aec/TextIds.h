#pragma once

namespace aec::text_ids
{

// Numbers of the host's translated texts that the explorer uses.
inline constexpr int rename = 11;
inline constexpr int deleteTitle = 42;
inline constexpr int deleteOneQuestion = 43;
inline constexpr int deleteManyQuestion = 44;
inline constexpr int cut = 54;
inline constexpr int copy = 55;
inline constexpr int paste = 56;
inline constexpr int selectAll = 57;
inline constexpr int deleteItem = 58;
inline constexpr int editProperties = 59;
inline constexpr int changeTopic = 144;
inline constexpr int open = 145;
inline constexpr int noGrouping = 1159;

} // namespace aec::text_ids
