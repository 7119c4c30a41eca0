#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace aec::shell
{

// One word of a command line. A word that starts with a quote is always taken as it stands: it
// names an entity, a topic or a file even when it reads like a keyword ("none") or starts like a
// selection mark ("+Wall"), while +"Door 900" is a mark before a quoted name.
struct CommandWord
{
    std::string text;
    bool quoted = false; // starts with a quote

    friend bool operator==(const CommandWord&, const CommandWord&) = default;
};

// A command line split into words at blanks and tabs. Double quotes keep blanks inside a word, and
// inside them \" and \\ stand for a quote and a backslash; quoted and plain parts next to each other
// make one word ("Sheet "A-1 makes Sheet A-1). A line whose first character other than a blank is
// '#' is a comment and has no words.
class CCommandLine
{
public:
    // Throws common::EException when a quote is not closed or a backslash escapes anything but a
    // quote or a backslash.
    explicit CCommandLine(std::string_view line);

    bool isEmpty() const noexcept { return words_.empty(); }
    // The first word; the line must not be empty.
    const std::string& getCommand() const;
    std::size_t getArgumentCount() const noexcept;
    // The words after the command, from 0.
    const CommandWord& getArgument(std::size_t index) const;
    // The arguments from `first` on, joined by single blanks: how a text of several words (a menu
    // item, a grouping name) may be typed without quotes.
    std::string joinArguments(std::size_t first) const;

    // The text as one quoted word that reads back as the same text.
    static std::string quote(std::string_view text);

private:
    std::vector<CommandWord> words_;
};

} // namespace aec::shell
