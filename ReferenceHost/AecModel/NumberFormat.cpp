#include "AecModel/NumberFormat.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <fmt/format.h>
#include <map>
#include <optional>

namespace aec::model
{

namespace
{

constexpr std::array<std::string_view, 12> monthNames{"January",   "February", "March",    "April",
                                                      "May",       "June",     "July",     "August",
                                                      "September", "October",  "November", "December"};
constexpr std::array<std::string_view, 7> dayNames{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                   "Thursday", "Friday", "Saturday"};
// The last day a spreadsheet shows as a date: 9999-12-31.
constexpr double lastDateSerial = 2958466.0;

bool startsWithNoCase(std::string_view text, std::string_view word)
{
    return text.size() >= word.size() &&
           std::equal(word.begin(), word.end(), text.begin(),
                      [](char left, char right)
                      {
                          return std::tolower(static_cast<unsigned char>(left)) ==
                                 std::tolower(static_cast<unsigned char>(right));
                      });
}

char lower(char character)
{
    return static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
}

bool isPlaceholder(char character)
{
    return character == '0' || character == '#' || character == '?';
}

// The sections of a code, split at the semicolons that are not quoted, escaped or bracketed.
std::vector<std::string_view> splitSections(std::string_view code)
{
    std::vector<std::string_view> sections;
    std::size_t start = 0;
    bool quoted = false;
    bool bracketed = false;
    for (std::size_t at = 0; at < code.size(); ++at)
    {
        const char character = code[at];
        if (character == '"')
            quoted = !quoted;
        else if (quoted)
            continue;
        else if (character == '\\')
            ++at;
        else if (character == '[')
            bracketed = true;
        else if (character == ']')
            bracketed = false;
        else if (character == ';' && !bracketed)
        {
            sections.push_back(code.substr(start, at - start));
            start = at + 1;
        }
    }
    sections.push_back(code.substr(start));
    return sections;
}

// The finite number's magnitude to so many decimals, as its integer digits (none for zero) and its
// decimals. Rounded half away from zero on the decimal digits a spreadsheet keeps (15 significant
// ones), so that 2.675 shows as 2.68 although its binary value is a little less.
std::pair<std::string, std::string> fixedDigits(double value, int decimals)
{
    const std::string scientific = fmt::format("{:.14e}", std::fabs(value)); // d.dddddddddddddde±x
    std::string digits = scientific.substr(0, 1) + scientific.substr(2, 14);
    const std::string_view exponentText = std::string_view(scientific).substr(scientific.find('e') + 1);
    int pointAt = 0;
    std::from_chars(exponentText.data() + (exponentText.starts_with('+') ? 1 : 0),
                    exponentText.data() + exponentText.size(), pointAt);
    ++pointAt;
    if (pointAt < 0)
    {
        digits.insert(0, static_cast<std::size_t>(-pointAt), '0');
        pointAt = 0;
    }
    const auto kept = static_cast<std::size_t>(pointAt + decimals);
    if (digits.size() < kept)
        digits.append(kept - digits.size(), '0');
    const bool roundUp = kept < digits.size() && digits[kept] >= '5';
    digits.resize(kept);
    if (roundUp)
    {
        std::size_t at = kept;
        while (at > 0 && digits[at - 1] == '9')
            digits[--at] = '0';
        if (at == 0)
        {
            digits.insert(digits.begin(), '1');
            ++pointAt;
        }
        else
            ++digits[at - 1];
    }
    std::string integer = digits.substr(0, static_cast<std::size_t>(pointAt));
    integer.erase(0, std::min(integer.find_first_not_of('0'), integer.size()));
    return {integer, digits.substr(static_cast<std::size_t>(pointAt))};
}

std::string grouped(const std::string& digits)
{
    std::string text;
    for (std::size_t at = 0; at < digits.size(); ++at)
    {
        if (at > 0 && (digits.size() - at) % 3 == 0)
            text += ',';
        text += digits[at];
    }
    return text;
}

// What an unfilled placeholder shows: 0 a zero, ? a space, # nothing.
std::string padding(const std::string& placeholder)
{
    return placeholder == "0" ? "0" : placeholder == "?" ? " " : "";
}

// The digits dealt to the placeholders from the right; the first takes all that are left.
std::vector<std::string> fillFromRight(std::string digits, const std::vector<std::string>& placeholders)
{
    std::vector<std::string> filled(placeholders.size());
    for (std::size_t index = placeholders.size(); index-- > 0;)
    {
        if (digits.empty())
            filled[index] = padding(placeholders[index]);
        else if (index == 0)
            filled[index] = std::move(digits);
        else
        {
            filled[index] = digits.substr(digits.size() - 1);
            digits.pop_back();
        }
    }
    return filled;
}

} // namespace

CNumberFormat::CNumberFormat(std::string_view code, DateSystem dates) : dates_(dates)
{
    // Spreadsheet programs keep a code to 255 characters; a longer one (a file made to harm) is taken
    // for General rather than let every cell's text run to any length.
    constexpr std::size_t longestCode = 255;
    if (code.size() > longestCode)
        code = "General";
    for (const std::string_view section : splitSections(code))
        sections_.push_back(parseSection(section));
}

std::string CNumberFormat::builtInCode(unsigned identifier)
{
    static const std::map<unsigned, std::string_view> codes{
        {1, "0"},
        {2, "0.00"},
        {3, "#,##0"},
        {4, "#,##0.00"},
        {9, "0%"},
        {10, "0.00%"},
        {11, "0.00E+00"},
        {14, "yyyy-mm-dd"},
        {15, "yyyy-mm-dd"},
        {16, "mm-dd"},
        {17, "yyyy-mm"},
        {18, "hh:mm"},
        {19, "hh:mm:ss"},
        {20, "hh:mm"},
        {21, "hh:mm:ss"},
        {22, "yyyy-mm-dd hh:mm"},
        {37, "#,##0 ;(#,##0)"},
        {38, "#,##0 ;(#,##0)"},
        {39, "#,##0.00;(#,##0.00)"},
        {40, "#,##0.00;(#,##0.00)"},
        {45, "mm:ss"},
        {46, "[h]:mm:ss"},
        {47, "mm:ss.0"},
        {48, "##0.0E+0"},
    };
    const auto found = codes.find(identifier);
    return std::string(found == codes.end() ? "General" : found->second);
}

std::string CNumberFormat::general(double value)
{
    std::string text = fmt::format("{:.15g}", value);
    if (const std::size_t exponent = text.find('e'); exponent != std::string::npos)
        text[exponent] = 'E';
    return text;
}

CNumberFormat::Section CNumberFormat::parseSection(std::string_view code)
{
    Section section;
    std::vector<Token>& tokens = section.tokens;
    const auto literal = [&tokens](std::string_view text)
    {
        if (tokens.empty() || tokens.back().kind != Kind::Literal)
            tokens.push_back({Kind::Literal, "", 0});
        tokens.back().text += text;
    };
    const auto after = [&tokens](std::initializer_list<Kind> kinds)
    {
        return std::ranges::any_of(tokens, [kinds](const Token& token)
                                   { return std::ranges::count(kinds, token.kind) > 0; });
    };

    for (std::size_t at = 0; at < code.size();)
    {
        const char character = code[at];
        const std::string_view rest = code.substr(at);
        if (character == '"')
        {
            const std::size_t end = std::min(code.find('"', at + 1), code.size());
            literal(code.substr(at + 1, end - at - 1));
            at = end + 1;
        }
        else if (character == '\\' || character == '_' || character == '*')
        {
            // An escaped character; the room of a character (_x), shown as a space; a fill (*x),
            // which has no width to fill here.
            if (character == '\\')
                literal(code.substr(at + 1, 1));
            else if (character == '_')
                literal(" ");
            at += 2;
        }
        else if (character == '[')
        {
            const std::size_t end = std::min(code.find(']', at), code.size());
            const std::string_view inside = code.substr(at + 1, end - at - 1);
            at = end + 1;
            const auto elapsed = [inside](char letter)
            {
                return !inside.empty() &&
                       std::ranges::all_of(inside, [letter](char c) { return lower(c) == letter; });
            };
            // Elapsed times pad to as many digits as the brackets hold letters; a few are plenty.
            const int letters = static_cast<int>(std::min<std::size_t>(inside.size(), 9));
            if (inside.starts_with('$'))
                literal(inside.substr(1, inside.find('-') - 1)); // [$€-407]: the symbol, then a locale
            else if (elapsed('h'))
                tokens.push_back({Kind::ElapsedHours, "", letters});
            else if (elapsed('m'))
                tokens.push_back({Kind::ElapsedMinutes, "", letters});
            else if (elapsed('s'))
                tokens.push_back({Kind::ElapsedSeconds, "", letters});
            // Colours and conditions change nothing in the text.
        }
        else if (isPlaceholder(character))
        {
            tokens.push_back({Kind::Digit, std::string(1, character), 0});
            ++at;
        }
        else if (character == '.' && after({Kind::Second, Kind::ElapsedSeconds}) &&
                 rest.substr(1).starts_with('0'))
        {
            const std::size_t zeros = std::min(rest.find_first_not_of('0', 1), rest.size()) - 1;
            section.subSecondDigits = static_cast<int>(std::min<std::size_t>(zeros, 3));
            tokens.push_back({Kind::SubSecond, "", section.subSecondDigits});
            at += zeros + 1;
        }
        else if (character == '.')
        {
            tokens.push_back({Kind::Point, ".", 0});
            ++at;
        }
        else if (character == ',')
        {
            const bool afterDigit = !tokens.empty() && tokens.back().kind == Kind::Digit;
            if (afterDigit && at + 1 < code.size() && isPlaceholder(code[at + 1]))
                section.grouping = true;
            else if (afterDigit)
                ++section.scaling;
            else
                literal(",");
            ++at;
        }
        else if (character == '%')
        {
            tokens.push_back({Kind::Percent, "%", 0});
            ++at;
        }
        else if (lower(character) == 'e' &&
                 (rest.substr(1).starts_with('+') || rest.substr(1).starts_with('-')))
        {
            tokens.push_back({Kind::Exponent, std::string(rest.substr(0, 2)), 0});
            at += 2;
        }
        else if (startsWithNoCase(rest, "AM/PM") || startsWithNoCase(rest, "A/P"))
        {
            const std::size_t length = startsWithNoCase(rest, "AM/PM") ? 5 : 3;
            tokens.push_back({Kind::AmPm, std::string(rest.substr(0, length)), 0});
            at += length;
        }
        else if (startsWithNoCase(rest, "General") || character == '@')
        {
            tokens.push_back({Kind::General, "", 0});
            at += character == '@' ? 1 : 7;
        }
        else if (std::string_view("ymdhs").find(lower(character)) != std::string_view::npos)
        {
            const char letter = lower(character);
            std::size_t count = 1;
            while (at + count < code.size() && lower(code[at + count]) == letter)
                ++count;
            const Kind kind = letter == 'y'   ? Kind::Year
                              : letter == 'm' ? Kind::Month
                              : letter == 'd' ? Kind::Day
                              : letter == 'h' ? Kind::Hour
                                              : Kind::Second;
            tokens.push_back({kind, "", static_cast<int>(count)});
            at += count;
        }
        else
        {
            literal(code.substr(at, 1));
            ++at;
        }
    }

    // "m" and "mm" are minutes right after an hour or right before a second, months otherwise.
    const auto isTime = [](const Token& token)
    {
        return token.kind != Kind::Literal;
    };
    for (auto token = tokens.begin(); token != tokens.end(); ++token)
    {
        if (token->kind != Kind::Month || token->count > 2)
            continue;
        const auto previous = std::find_if(std::make_reverse_iterator(token), tokens.rend(), isTime);
        const auto next = std::find_if(token + 1, tokens.end(), isTime);
        if ((previous != tokens.rend() &&
             (previous->kind == Kind::Hour || previous->kind == Kind::ElapsedHours)) ||
            (next != tokens.end() && (next->kind == Kind::Second || next->kind == Kind::ElapsedSeconds)))
            token->kind = Kind::Minute;
    }
    section.isDate =
        std::ranges::any_of(tokens, [](const Token& token)
                            { return token.kind >= Kind::Year && token.kind <= Kind::ElapsedSeconds; });
    return section;
}

std::string CNumberFormat::format(double value) const
{
    if (!std::isfinite(value) || sections_.empty())
        return general(value);
    // A second section is for negative numbers and gives their sign itself; a third for zero.
    const Section* section = &sections_[0];
    bool minus = false;
    if (value < 0 && sections_.size() >= 2)
    {
        section = &sections_[1];
        value = -value;
    }
    else if (value == 0 && sections_.size() >= 3)
        section = &sections_[2];
    else if (value < 0 && !section->isDate)
    {
        minus = true;
        value = -value;
    }
    if (section->isDate)
        return formatDate(*section, value);
    std::string text = formatNumber(*section, value);
    if (minus)
        text.insert(text.begin(), '-');
    return text;
}

std::string CNumberFormat::formatNumber(const Section& section, double value) const
{
    const std::vector<Token>& tokens = section.tokens;
    double scaled = value;
    for (const Token& token : tokens)
        scaled *= token.kind == Kind::Percent ? 100.0 : 1.0;
    scaled /= std::pow(1000.0, section.scaling);
    if (!std::isfinite(scaled))
        return general(value);

    // The placeholders of the integer part, the decimals and the exponent.
    std::vector<std::string> integerPlaces, decimalPlaces, exponentPlaces;
    std::optional<std::string> exponentSign;
    bool pointSeen = false;
    for (const Token& token : tokens)
    {
        if (token.kind == Kind::Exponent && !exponentSign)
            exponentSign = token.text.substr(1);
        else if (token.kind == Kind::Point)
            pointSeen = true;
        else if (token.kind == Kind::Digit)
            (exponentSign ? exponentPlaces : pointSeen ? decimalPlaces : integerPlaces).push_back(token.text);
    }
    const int decimals = static_cast<int>(decimalPlaces.size());

    // General and sections of literal text alone show no digits of their own: most cells of most
    // sheets are General, and are spared the work.
    const bool showsDigits = !integerPlaces.empty() || pointSeen || exponentSign;
    auto [integer, fraction] =
        showsDigits ? fixedDigits(scaled, decimals) : std::pair<std::string, std::string>();
    int exponent = 0;
    if (exponentSign)
    {
        // With a # before the point the exponent is a multiple of the integer places (engineering
        // notation); otherwise the integer places are all filled.
        const int places = std::max(1, static_cast<int>(integerPlaces.size()));
        const bool engineering = std::ranges::count(integerPlaces, "#") > 0;
        const auto exponentOf = [places, engineering](int magnitude)
        {
            if (!engineering)
                return magnitude - (places - 1);
            return (magnitude >= 0 ? magnitude : magnitude - places + 1) / places * places;
        };
        const int magnitude = scaled == 0 ? 0 : static_cast<int>(std::floor(std::log10(scaled)));
        exponent = scaled == 0 ? 0 : exponentOf(magnitude);
        // Scaled in two steps: 10 to the power of the exponent alone leaves the doubles' range for
        // the smallest numbers.
        const auto mantissa = [scaled](int power)
        {
            return scaled / std::pow(10.0, power / 2) / std::pow(10.0, power - power / 2);
        };
        std::tie(integer, fraction) = fixedDigits(mantissa(exponent), decimals);
        if (scaled != 0 && static_cast<int>(integer.size()) > places)
        {
            exponent = exponentOf(magnitude + 1);
            std::tie(integer, fraction) = fixedDigits(mantissa(exponent), decimals);
        }
    }

    const std::vector<std::string> integerShown =
        fillFromRight(section.grouping ? grouped(integer) : integer, integerPlaces);
    const std::vector<std::string> exponentShown =
        fillFromRight(std::to_string(std::abs(exponent)), exponentPlaces);
    // Decimals under # or ? that are trailing zeros are left out or shown as spaces.
    std::vector<std::string> decimalShown;
    for (const char digit : fraction)
        decimalShown.emplace_back(1, digit);
    for (std::size_t index = decimalShown.size();
         index-- > 0 && decimalPlaces[index] != "0" && decimalShown[index] == "0";)
        decimalShown[index] = padding(decimalPlaces[index]);

    std::string text;
    std::size_t integerAt = 0, decimalAt = 0, exponentAt = 0;
    bool inDecimals = false;
    bool inExponent = false;
    for (const Token& token : tokens)
    {
        switch (token.kind)
        {
        case Kind::Digit:
            text += inExponent   ? exponentShown[exponentAt++]
                    : inDecimals ? decimalShown[decimalAt++]
                                 : integerShown[integerAt++];
            break;
        case Kind::Point:
            // A format without integer places still shows the integer part, before the point.
            if (!inDecimals && !inExponent && integerPlaces.empty())
                text += section.grouping ? grouped(integer) : integer;
            text += '.';
            inDecimals = true;
            break;
        case Kind::Exponent:
            text += fmt::format("{}{}", token.text.front(),
                                exponent < 0           ? "-"
                                : *exponentSign == "+" ? "+"
                                                       : "");
            inExponent = true;
            break;
        case Kind::General:
            text += general(value);
            break;
        default:
            text += token.text;
            break;
        }
    }
    return text;
}

std::string CNumberFormat::formatDate(const Section& section, double value) const
{
    if (value < 0 || value >= lastDateSerial)
        return general(value);
    using namespace std::chrono;
    std::int64_t unitsPerSecond = 1;
    for (int digit = 0; digit < section.subSecondDigits; ++digit)
        unitsPerSecond *= 10;
    const auto units =
        static_cast<std::int64_t>(std::llround(value * 86400.0 * static_cast<double>(unitsPerSecond)));
    const std::int64_t dayNumber = units / (86400 * unitsPerSecond);
    const std::int64_t seconds = units % (86400 * unitsPerSecond) / unitsPerSecond;
    const std::int64_t subSecond = units % unitsPerSecond;
    const std::int64_t hour = seconds / 3600;
    const std::int64_t minute = seconds / 60 % 60;
    const std::int64_t second = seconds % 60;

    // The 1900 system counts a 29th of February 1900 that never was (serial 60), as the first
    // spreadsheet programs did; the days after it are one off from the calendar.
    const sys_days epoch = dates_ == DateSystem::From1904 ? sys_days(1904y / January / 1)
                           : dayNumber < 60               ? sys_days(1899y / December / 31)
                                                          : sys_days(1899y / December / 30);
    const sys_days day = epoch + days(dayNumber);
    const year_month_day date(day);
    const bool leapDay1900 = dates_ == DateSystem::From1900 && dayNumber == 60;
    const int yearNumber = leapDay1900 ? 1900 : static_cast<int>(date.year());
    const unsigned monthNumber = leapDay1900 ? 2 : static_cast<unsigned>(date.month());
    const unsigned dayOfMonth = leapDay1900 ? 29 : static_cast<unsigned>(date.day());
    const std::string_view weekdayName = dayNames[weekday(day).c_encoding()];
    const bool twelveHours =
        std::ranges::any_of(section.tokens, [](const Token& token) { return token.kind == Kind::AmPm; });
    const std::int64_t hourShown = twelveHours ? (hour % 12 == 0 ? 12 : hour % 12) : hour;
    const auto number = [](std::int64_t shown, int count)
    {
        return fmt::format("{:0{}}", shown, count >= 2 ? 2 : 1);
    };

    std::string text;
    for (const Token& token : section.tokens)
    {
        switch (token.kind)
        {
        case Kind::Year:
            text +=
                token.count <= 2 ? fmt::format("{:02}", yearNumber % 100) : fmt::format("{:04}", yearNumber);
            break;
        case Kind::Month:
            text += token.count <= 2   ? number(monthNumber, token.count)
                    : token.count == 3 ? std::string(monthNames[monthNumber - 1].substr(0, 3))
                    : token.count == 4 ? std::string(monthNames[monthNumber - 1])
                                       : std::string(monthNames[monthNumber - 1].substr(0, 1));
            break;
        case Kind::Day:
            text += token.count <= 2   ? number(dayOfMonth, token.count)
                    : token.count == 3 ? std::string(weekdayName.substr(0, 3))
                                       : std::string(weekdayName);
            break;
        case Kind::Hour:
            text += number(hourShown, token.count);
            break;
        case Kind::Minute:
            text += number(minute, token.count);
            break;
        case Kind::Second:
            text += number(second, token.count);
            break;
        case Kind::SubSecond:
            text += fmt::format(".{:0{}}", subSecond, token.count);
            break;
        case Kind::AmPm:
            text += token.text.size() == 5 ? (hour < 12 ? "AM" : "PM") : (hour < 12 ? "A" : "P");
            break;
        case Kind::ElapsedHours:
            text += fmt::format("{:0{}}", dayNumber * 24 + hour, token.count);
            break;
        case Kind::ElapsedMinutes:
            text += fmt::format("{:0{}}", (dayNumber * 24 + hour) * 60 + minute, token.count);
            break;
        case Kind::ElapsedSeconds:
            text += fmt::format("{:0{}}", units / unitsPerSecond, token.count);
            break;
        case Kind::General:
            text += general(value);
            break;
        case Kind::Digit:
            break;
        default:
            text += token.text;
            break;
        }
    }
    return text;
}

} // namespace aec::model
