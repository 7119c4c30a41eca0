#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace aec::model
{

// Why a text is not JSON, for a person: where (line and column, counted in characters from 1) and
// what was expected there, in the program's own words rather than the parser's, whose messages
// name its tokens and states. `text` is the text that failed to parse.
std::string describeJsonSyntaxError(std::string_view text, const nlohmann::json::exception& error);

} // namespace aec::model
