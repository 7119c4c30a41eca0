#include "ExplorerShell/CommandLine.h"

#include "Common/Check.h"
#include "Common/Exception.h"

#include <optional>

namespace aec::shell
{

namespace
{

bool isBlank(char character)
{
    return character == ' ' || character == '\t' || character == '\r' || character == '\n';
}

} // namespace

// Written by hand: Boost's escaped_list_separator (and split_unix over it) neither tells quoted words
// from plain ones, which decides whether "none" is a keyword or a name, nor reports a quote that is
// never closed, which must be an error rather than a name that runs to the end of the line.
CCommandLine::CCommandLine(std::string_view line)
{
    const std::size_t start = line.find_first_not_of(" \t\r\n");
    if (start == std::string_view::npos || line[start] == '#')
        return;

    std::optional<CommandWord> word;
    bool inQuotes = false;
    for (std::size_t position = start; position < line.size(); ++position)
    {
        const char character = line[position];
        if (!inQuotes && isBlank(character))
        {
            if (word)
                words_.push_back(std::move(*word));
            word.reset();
            continue;
        }
        if (!word)
            word = CommandWord{.text = {}, .quoted = character == '"'};
        if (character == '"')
        {
            inQuotes = !inQuotes;
            continue;
        }
        if (inQuotes && character == '\\')
        {
            const char next = position + 1 < line.size() ? line[position + 1] : '\0';
            if (next != '"' && next != '\\')
                throw common::EException(
                    "Inside quotes a backslash may only come before a quote (\\\") or a backslash (\\\\).");
            word->text += next;
            ++position;
            continue;
        }
        word->text += character;
    }
    if (inQuotes)
        throw common::EException("A quote is not closed: end the quoted name with \".");
    if (word)
        words_.push_back(std::move(*word));
}

const std::string& CCommandLine::getCommand() const
{
    COMMON_PRECONDITION(!words_.empty());
    return words_.front().text;
}

std::size_t CCommandLine::getArgumentCount() const noexcept
{
    return words_.empty() ? 0 : words_.size() - 1;
}

const CommandWord& CCommandLine::getArgument(std::size_t index) const
{
    COMMON_PRECONDITION(index < getArgumentCount());
    return words_[index + 1];
}

std::string CCommandLine::joinArguments(std::size_t first) const
{
    std::string joined;
    for (std::size_t index = first; index < getArgumentCount(); ++index)
    {
        if (!joined.empty())
            joined += ' ';
        joined += words_[index + 1].text;
    }
    return joined;
}

std::string CCommandLine::quote(std::string_view text)
{
    std::string quoted = "\"";
    for (const char character : text)
    {
        if (character == '"' || character == '\\')
            quoted += '\\';
        quoted += character;
    }
    return quoted + '"';
}

} // namespace aec::shell
