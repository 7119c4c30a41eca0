#include "AecModel/NumberFormat.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace aec::model
{
namespace
{

struct FormatCase
{
    std::string code;
    double value;
    std::string shown;
};

void check(const std::vector<FormatCase>& cases,
           CNumberFormat::DateSystem dates = CNumberFormat::DateSystem::From1900)
{
    for (const FormatCase& number : cases)
        EXPECT_EQ(CNumberFormat(number.code, dates).format(number.value), number.shown)
            << number.code << " on " << number.value;
}

TEST(NumberFormatTest, NumbersShowTheirDecimalsSeparatorsPercentAndExponent)
{
    check({
        {"General", 0.30000000000000004, "0.3"},
        {"General", 1e20, "1E+20"},
        {"General", -12.5, "-12.5"},
        {"@", 12, "12"},
        {"0", 2.5, "3"},
        {"0", -2.5, "-3"},
        {"0.00", 2.675, "2.68"}, // rounded on its decimal digits, although the double is 2.67499...
        {"0.00", 0, "0.00"},
        {"0.00", 9.999, "10.00"},
        {"#,##0", 1234567.8, "1,234,568"},
        {"#,##0", 0, "0"},
        {"#,##0.00", -1234.5, "-1,234.50"},
        {"#,##0,\"k\"", 1234567, "1,235k"},
        {"0%", 0.256, "26%"},
        {"0.00%", 0.0125, "1.25%"},
        {"0.00E+00", 12345, "1.23E+04"},
        {"0.00E+00", 0.00012, "1.20E-04"},
        {"0.00E+00", 9.999e9, "1.00E+10"},
        {"##0.0E+0", 123456, "123.5E+3"},
        {"#.##", 0.5, ".5"},
        {"0.0#", 1.5, "1.5"},
        {"0.0#", 1.25, "1.25"},
        {"000-000", 12345, "012-345"},
        {".00", 12.5, "12.50"},
        {"0.00E+00", 5e-324, "4.94E-324"},     // the smallest double
        {"0" + std::string(200, '%'), 2, "2"}, // beyond the doubles: shown as General
    });
}

TEST(NumberFormatTest, SectionsAndLiteralTextFrameTheNumber)
{
    check({
        {"\"Area: \"0.0\" m²\"", 12.34, "Area: 12.3 m²"},
        {"#,##0.00 \\€", 1234.5, "1,234.50 €"},
        {"[$€-407] #,##0.00", 1234.5, "€ 1,234.50"},
        {"#,##0 ;(#,##0)", -1234, "(1,234)"},
        {"#,##0 ;(#,##0)", 1234, "1,234 "},
        {"0_);(0)", 5, "5 "},
        {"0;-0;\"zero\"", 0, "zero"},
        {"0;-0;\"zero\"", -4, "-4"},
        {"0;;", 0, ""},
        {"[Red]0.0;[Blue]-0.0", -3, "-3.0"},
        {"General\" m\"", 3, "3 m"},
        {"\"n/a\"", 7, "n/a"},
        {"\"unclosed", 7, "unclosed"},
        {"0." + std::string(300, '0'), 7, "7"}, // longer than a spreadsheet program allows: General
    });
}

TEST(NumberFormatTest, DatesAndTimesCountDaysFromTheWorkbooksDateSystem)
{
    check({
        {CNumberFormat::builtInCode(14), 45000, "2023-03-15"},
        {CNumberFormat::builtInCode(22), 45000.5, "2023-03-15 12:00"},
        {CNumberFormat::builtInCode(21), 0.2500115740740741, "06:00:01"},
        {"dd.mm.yyyy", 45000, "15.03.2023"},
        {"d mmmm yy", 45000, "15 March 23"},
        {"ddd d mmm", 45000, "Wed 15 Mar"},
        {"h:mm AM/PM", 0.75, "6:00 PM"},
        {"h:mm A/P", 0.0, "12:00 A"},
        {"[h]:mm:ss", 1.5, "36:00:00"},
        {"[mm]:ss", 0.05, "72:00"},
        {"mm:ss.0", 1.0 / 86400, "00:01.0"},
        {"yyyy-mm-dd", 1, "1900-01-01"},
        {"yyyy-mm-dd", 59, "1900-02-28"},
        {"yyyy-mm-dd", 60, "1900-02-29"}, // the day the 1900 system counts and the calendar has not
        {"yyyy-mm-dd", 61, "1900-03-01"},
        {"yyyy-mm-dd", -1, "-1"},       // no date: shown as a number
        {"yyyy-mm-dd", 3e6, "3000000"}, // past 9999
    });
    check({{"yyyy-mm-dd", 0, "1904-01-01"}, {"yyyy-mm-dd hh:mm", 45000.25, "2027-03-16 06:00"}},
          CNumberFormat::DateSystem::From1904);
}

} // namespace
} // namespace aec::model
