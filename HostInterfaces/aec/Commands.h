#pragma once

namespace aec::commands
{

// The host's command numbers that the explorer binds.
inline constexpr int editProperties = 12;
inline constexpr int deleteSelection = 11;
inline constexpr int swallowed = 22;
inline constexpr int copy = 81;
inline constexpr int cut = 82;
inline constexpr int paste = 85;
inline constexpr int importTable = 86;
inline constexpr int selectAll = 88;

} // namespace aec::commands
