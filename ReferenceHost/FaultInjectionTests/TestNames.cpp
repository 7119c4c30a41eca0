#include "TestNames.h"

#include <cctype>

namespace aec::fault_injection::test
{

std::string testNameFromWords(std::string_view words)
{
    std::string name;
    bool upper = true;
    for (const char character : words)
    {
        if (std::isalnum(static_cast<unsigned char>(character)) == 0)
        {
            upper = true;
            continue;
        }
        name += upper ? static_cast<char>(std::toupper(static_cast<unsigned char>(character))) : character;
        upper = false;
    }
    return name;
}

} // namespace aec::fault_injection::test
