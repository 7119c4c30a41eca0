#include "BimNameGenerator.h"

#include "SyntheticProject/AsciiCase.h"

#include <fmt/format.h>
#include <fmt/xchar.h>
#include <stdexcept>
#include <unordered_set>

namespace benchmarks
{

CBimNameGenerator::CBimNameGenerator(std::uint32_t seed) : engine_(seed) {}

std::size_t CBimNameGenerator::below(std::size_t bound)
{
    return std::uniform_int_distribution<std::size_t>(0, bound - 1)(engine_);
}

const wchar_t* CBimNameGenerator::pick(const std::vector<const wchar_t*>& choices)
{
    return choices[below(choices.size())];
}

// Mostly short numbers, as people number things; now and then with leading zeros ("03", "0012"),
// which projects that sort names as text use to keep them in order.
std::wstring CBimNameGenerator::number(std::size_t maxDigits)
{
    std::size_t limit = 10;
    for (std::size_t digits = below(maxDigits) + 1; digits > 1; --digits)
        limit *= 10;
    const std::size_t value = below(limit);
    if (below(5) == 0)
        return fmt::format(L"{:0{}}", value, maxDigits);
    return fmt::format(L"{}", value);
}

std::wstring CBimNameGenerator::sheetName()
{
    static const std::vector<const wchar_t*> disciplines{L"A", L"S", L"M", L"E", L"P", L"L", L"FP"};
    static const std::vector<const wchar_t*> views{L"Floor Plan",   L"Reflected Ceiling Plan",
                                                   L"Framing Plan", L"Sections",
                                                   L"Elevations",   L"Details",
                                                   L"Grundriss",    L"Coupe",
                                                   L"Façades",      L"Schnitt"};
    switch (below(3))
    {
    case 0:
        return fmt::format(L"{}-{}{:02} - {} {}", pick(disciplines), below(9) + 1, below(100), levelName(),
                           pick(views));
    case 1:
        return fmt::format(L"Sheet {} - {}", number(4), pick(views));
    default:
        return fmt::format(L"{}{}.{} {}", pick(disciplines), below(9), number(2), pick(views));
    }
}

std::wstring CBimNameGenerator::levelName()
{
    static const std::vector<const wchar_t*> named{L"Ground Floor",    L"Roof",    L"Mezzanine",
                                                   L"Basement",        L"Attic",   L"Erdgeschoss",
                                                   L"Rez-de-chaussée", L"Sous-sol"};
    switch (below(4))
    {
    case 0:
        return fmt::format(L"Level {}", number(2));
    case 1:
        return fmt::format(L"L{:02} - {}", below(40), pick(named));
    case 2:
        return fmt::format(L"{} {}", pick(named), below(4) + 1);
    default:
        return fmt::format(L"Niveau {}", static_cast<int>(below(30)) - 5);
    }
}

std::wstring CBimNameGenerator::doorOrWindowName()
{
    static const std::vector<const wchar_t*> kinds{L"Door",    L"Double Door",    L"Window",
                                                   L"Tür",     L"Fenêtre",        L"Sliding Door",
                                                   L"Fenster", L"Porte coupe-feu"};
    static const std::vector<const wchar_t*> ratings{L"", L" EI30", L" T30", L" T90", L" RC2"};
    const std::size_t width = 600 + 100 * below(15);
    const std::size_t height = 1000 + 125 * below(12);
    const wchar_t* const by = below(3) == 0 ? L"×" : L"x";
    switch (below(3))
    {
    case 0:
        return fmt::format(L"{} D-{} {}{}{}{}", pick(kinds), number(3), width, by, height, pick(ratings));
    case 1:
        return fmt::format(L"{} Type {} - {}{}{}mm", pick(kinds), number(2), width, by, height);
    default:
        return fmt::format(L"{} W{:02}{}", pick(kinds), below(100), pick(ratings));
    }
}

std::wstring CBimNameGenerator::wallName()
{
    static const std::vector<const wchar_t*> kinds{L"Basic Wall: Generic",
                                                   L"Wall - Exterior - Brick",
                                                   L"Interior Partition",
                                                   L"Curtain Wall",
                                                   L"Mur béton",
                                                   L"Außenwand KS",
                                                   L"Стена",
                                                   L"Retaining Wall"};
    if (below(2) == 0)
        return fmt::format(L"{} - {}mm", pick(kinds), 50 + 10 * below(40));
    return fmt::format(L"{} {} ({})", pick(kinds), 100 + 25 * below(16), materialName());
}

std::wstring CBimNameGenerator::materialName()
{
    static const std::vector<const wchar_t*> concrete{L"C20/25", L"C25/30", L"C30/37", L"C35/45", L"C40/50"};
    static const std::vector<const wchar_t*> named{L"Concrete", L"Béton armé", L"Beton", L"Бетон"};
    static const std::vector<const wchar_t*> others{
        L"Steel S235JR", L"Steel S355", L"Stahl S275", L"Timber GL24h",   L"Glass",
        L"Gypsum Board", L"Plâtre",     L"Ξύλο",       L"Insulation EPS", L"Mineral Wool",
        L"Brick",        L"Ziegel",     L"Aluminium",  L"Acier galvanisé"};
    switch (below(3))
    {
    case 0:
        return fmt::format(L"{} {}", pick(named), pick(concrete));
    case 1:
        return fmt::format(L"{} {}mm", pick(others), number(3));
    default:
        return fmt::format(L"{} {}", pick(others), below(50) + 1);
    }
}

std::wstring CBimNameGenerator::reinforcementName()
{
    static const std::vector<const wchar_t*> kinds{L"Rebar", L"Bewehrung", L"Armature", L"Mesh"};
    static const std::vector<const wchar_t*> grades{L"B500B", L"B500A", L"Grade 60", L"BSt 500"};
    return fmt::format(L"{} Ø{} {} @{}", pick(kinds), 6 + 2 * below(14), pick(grades), 50 + 25 * below(12));
}

std::wstring CBimNameGenerator::scheduleName()
{
    static const std::vector<const wchar_t*> kinds{L"Door Schedule",    L"Room Schedule", L"Window Schedule",
                                                   L"Material Takeoff", L"Türliste",      L"Nomenclature"};
    return fmt::format(L"{} {} - {}", pick(kinds), number(2), levelName());
}

// Users type names in any case; the comparison must see "door" and "Door" as one name.
void CBimNameGenerator::varyCase(std::wstring& name)
{
    if (const std::size_t variant = below(10); variant <= 1)
        setAsciiCase(name, variant == 1);
}

std::wstring CBimNameGenerator::next()
{
    std::wstring name;
    switch (below(7))
    {
    case 0:
        name = sheetName();
        break;
    case 1:
        name = levelName();
        break;
    case 2:
        name = doorOrWindowName();
        break;
    case 3:
        name = wallName();
        break;
    case 4:
        name = materialName();
        break;
    case 5:
        name = reinforcementName();
        break;
    default:
        name = scheduleName();
        break;
    }
    varyCase(name);
    return name;
}

std::vector<std::wstring> CBimNameGenerator::distinct(std::size_t count)
{
    std::vector<std::wstring> names;
    names.reserve(count);
    std::unordered_set<std::wstring> seen;
    // The templates yield millions of names; many misses in a row mean they cannot yield `count`.
    std::size_t missesInARow = 0;
    while (names.size() < count)
    {
        std::wstring name = next();
        if (seen.insert(name).second)
        {
            names.push_back(std::move(name));
            missesInARow = 0;
        }
        else if (++missesInARow > 10000)
            throw std::runtime_error(fmt::format("the name templates yield fewer than {} names", count));
    }
    return names;
}

std::vector<std::wstring> CBimNameGenerator::drawFrom(const std::vector<std::wstring>& pool,
                                                      std::size_t count)
{
    std::vector<std::wstring> names;
    names.reserve(count);
    for (std::size_t drawn = 0; drawn < count; ++drawn)
        names.push_back(pool[below(pool.size())]);
    return names;
}

} // namespace benchmarks
