#pragma once

#include "AecModel/AecModelApi.h"

#include <string>
#include <string_view>
#include <vector>

namespace aec::model
{

// A spreadsheet's number format code (the formatCode of an .xlsx file's styles), applied to a
// number as the spreadsheet shows it: up to four sections (positive; negative; zero; text), digit
// placeholders 0 # ?, decimals, thousands separators and scaling commas, percent, scientific
// notation, literal text ("m²", \x, $ - + ( ) : and spaces), currency symbols ([$€-407]), colours
// (ignored), and dates and times (y m d h s, AM/PM, elapsed [h] [mm] [ss], fractions of seconds)
// in the 1900 or 1904 date system. Month and day names are English.
//
// Written by hand: Debian has no C or C++ library that applies these codes (ICU's patterns are a
// different language, whose quoting, "m" and "@" mean other things), and the importer needs only
// the display of a number, not the whole of a spreadsheet's formatting.
class AECMODEL_API CNumberFormat
{
public:
    enum class DateSystem
    {
        From1900, // serial 1 is 1900-01-01, with the 29th of February 1900 that spreadsheets count
        From1904, // serial 0 is 1904-01-01
    };

    explicit CNumberFormat(std::string_view code = "General", DateSystem dates = DateSystem::From1900);

    // The code of a built-in format (numFmtId 0 to 49) as this reader shows it: the dates and times
    // that follow the reader's locale in a spreadsheet program (14 to 22) in ISO order; General
    // for the identifiers that have none.
    static std::string builtInCode(unsigned identifier);
    // The General format: at most 15 significant digits, so that binary fractions such as
    // 0.30000000000000004 read as 0.3, and an exponent for very large and small numbers.
    static std::string general(double value);

    std::string format(double value) const;

private:
    enum class Kind
    {
        Literal,
        Digit, // text: the placeholder, 0, # or ?
        Point,
        Percent,
        Exponent, // text: E+ or E-
        Year,
        Month,
        Minute,
        Day,
        Hour,
        Second,
        SubSecond,
        AmPm, // text: AM/PM or A/P as written
        ElapsedHours,
        ElapsedMinutes,
        ElapsedSeconds,
        General,
    };
    struct Token
    {
        Kind kind;
        std::string text;
        int count = 0; // how many letters a date or time token has
    };
    struct Section
    {
        std::vector<Token> tokens;
        bool isDate = false;
        bool grouping = false; // thousands separators
        int scaling = 0;       // commas after the last digit: thousands each
        int subSecondDigits = 0;
    };

    static Section parseSection(std::string_view code);
    std::string formatNumber(const Section& section, double value) const;
    std::string formatDate(const Section& section, double value) const;

    std::vector<Section> sections_;
    DateSystem dates_;
};

} // namespace aec::model
