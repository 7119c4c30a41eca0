#pragma once

#include <streambuf>
#include <string>

namespace aec::shell
{

// A stream buffer that shows UTF-8 text in a Windows console, line by line, through WriteConsoleW.
// The C runtime's own console output reads the bytes in its locale's code page (Latin-1 for the C
// locale), and the old msvcrt that MinGW links has no UTF-8 locale, so UTF-8 written through it
// comes out garbled whatever the console's code page. Boost.Nowide's console streams do this, but
// they are in its compiled library, which Debian does not build for MinGW.
class CConsoleOutputBuffer : public std::streambuf
{
public:
    // `console` is a console output handle (GetStdHandle's), which the buffer does not own.
    explicit CConsoleOutputBuffer(void* console);
    // Writes out what is left, a character cut short too.
    ~CConsoleOutputBuffer() override;
    CConsoleOutputBuffer(const CConsoleOutputBuffer&) = delete;
    CConsoleOutputBuffer& operator=(const CConsoleOutputBuffer&) = delete;

protected:
    int_type overflow(int_type character) override;
    std::streamsize xsputn(const char* text, std::streamsize count) override;
    int sync() override;

private:
    // Writes the pending text up to its last whole character; gives false if the console refused.
    bool writeWholeCharacters();
    bool write(std::size_t byteCount);

    void* console_;
    std::string pending_;
};

} // namespace aec::shell
