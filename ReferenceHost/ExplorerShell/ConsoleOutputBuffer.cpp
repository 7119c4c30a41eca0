#include "ConsoleOutputBuffer.h"

#include <boost/locale/encoding_utf.hpp>
#include <windows.h>

namespace aec::shell
{
namespace
{

// The length of `text` without a UTF-8 character cut short at its end, which the next write
// completes.
std::size_t wholeCharactersLength(const std::string& text)
{
    // A character has at most four bytes: look back from the end for the lead byte of the last one.
    for (std::size_t back = 1; back <= 4 && back <= text.size(); ++back)
    {
        const auto byte = static_cast<unsigned char>(text[text.size() - back]);
        if ((byte & 0xC0u) == 0x80u)
            continue;
        const std::size_t length = byte >= 0xF0u ? 4 : byte >= 0xE0u ? 3 : byte >= 0xC0u ? 2 : 1;
        return length > back ? text.size() - back : text.size();
    }
    return text.size();
}

} // namespace

CConsoleOutputBuffer::CConsoleOutputBuffer(void* console) : console_(console) {}

CConsoleOutputBuffer::~CConsoleOutputBuffer()
{
    write(pending_.size());
}

CConsoleOutputBuffer::int_type CConsoleOutputBuffer::overflow(int_type character)
{
    if (traits_type::eq_int_type(character, traits_type::eof()))
        return traits_type::not_eof(character);
    pending_ += traits_type::to_char_type(character);
    if (character == '\n' && !writeWholeCharacters())
        return traits_type::eof();
    return character;
}

std::streamsize CConsoleOutputBuffer::xsputn(const char* text, std::streamsize count)
{
    const std::string_view added(text, static_cast<std::size_t>(count));
    pending_ += added;
    if (added.find('\n') != std::string_view::npos && !writeWholeCharacters())
        return 0;
    return count;
}

int CConsoleOutputBuffer::sync()
{
    return writeWholeCharacters() ? 0 : -1;
}

bool CConsoleOutputBuffer::writeWholeCharacters()
{
    return write(wholeCharactersLength(pending_));
}

bool CConsoleOutputBuffer::write(std::size_t byteCount)
{
    // Bytes that are no part of a UTF-8 character are left out.
    const std::wstring text =
        boost::locale::conv::utf_to_utf<wchar_t>(pending_.data(), pending_.data() + byteCount);
    pending_.erase(0, byteCount);
    for (std::size_t written = 0; written < text.size();)
    {
        DWORD count = 0;
        if (WriteConsoleW(console_, text.data() + written, static_cast<DWORD>(text.size() - written), &count,
                          nullptr) == FALSE ||
            count == 0)
            return false;
        written += count;
    }
    return true;
}

} // namespace aec::shell
