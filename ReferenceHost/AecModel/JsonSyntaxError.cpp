#include "AecModel/JsonSyntaxError.h"

#include <array>
#include <fmt/format.h>
#include <utility>

namespace aec::model
{

namespace
{

// The parser's message, matched by a piece of it, and what the user is told instead. The first
// match wins, so the pieces of a longer message come before the shorter ones they contain.
constexpr std::array<std::pair<std::string_view, std::string_view>, 12> explanations{{
    {"unexpected end of input", "the file ends where more was expected"},
    {"expected end of input", "the file goes on after its end"},
    {"ill-formed UTF-8", "a text is not valid UTF-8"},
    {"control character", "a text holds a line break or another control character"},
    {"invalid string", "a text in double quotes is not finished or holds a bad escape"},
    {"expected string literal", "a field name in double quotes was expected"},
    {"expected ':'", "a colon (:) after the field name was expected"},
    {"expected '}'", "a comma or the closing brace (}) of an object was expected"},
    {"expected ']'", "a comma or the closing bracket (]) of a list was expected"},
    {"invalid number", "a number is not written correctly"},
    {"number overflow", "a number is too large"},
    {"syntax error",
     "a value (a text in double quotes, a number, true, false, null, a list or an object) was "
     "expected"},
}};

std::string_view explain(std::string_view parserMessage)
{
    for (const auto& [piece, explanation] : explanations)
        if (parserMessage.find(piece) != std::string_view::npos)
            return explanation;
    return "the text does not read as JSON";
}

// Line and column of the byte at `offset` (counted from 0); a column counts characters, so the
// continuation bytes of UTF-8 do not count.
std::pair<std::size_t, std::size_t> lineAndColumn(std::string_view text, std::size_t offset)
{
    std::size_t line = 1;
    std::size_t column = 1;
    for (std::size_t index = 0; index < offset && index < text.size(); ++index)
    {
        const auto byte = static_cast<unsigned char>(text[index]);
        if (byte == '\n')
        {
            ++line;
            column = 1;
        }
        else if ((byte & 0xC0U) != 0x80U)
            ++column;
    }
    return {line, column};
}

} // namespace

std::string describeJsonSyntaxError(std::string_view text, const nlohmann::json::exception& error)
{
    const std::string_view message = error.what();
    // A number beyond the range of double is no syntax error for the parser, and it has no place.
    if (dynamic_cast<const nlohmann::json::out_of_range*>(&error) != nullptr)
        return std::string(explain("number overflow"));
    const auto* const parseError = dynamic_cast<const nlohmann::json::parse_error*>(&error);
    if (parseError == nullptr || parseError->byte == 0)
        return std::string(explain(message));
    // The parser counts the bytes it read, the one that failed included.
    const auto [line, column] = lineAndColumn(text, parseError->byte - 1);
    return fmt::format("line {}, column {}: {}", line, column, explain(message));
}

} // namespace aec::model
