#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "support/Error.h"
#include "support/Suggest.h"
#include "support/Text.h"
#include "test_support.h"

namespace support {
namespace {

using test_support::ErrorNumber;

TEST(Substrings, ClampAtTheEndsAndRefuseNegativeArguments) {
    EXPECT_EQ(Left("abc", 0), "");
    EXPECT_EQ(Left("abc", 5), "abc");
    EXPECT_EQ(Right("abc", 2), "bc");
    EXPECT_EQ(Right("abc", 9), "abc");
    EXPECT_EQ(Mid("abcdef", 2, 3), "bcd");
    EXPECT_EQ(Mid("abcdef", 5, 10), "ef");
    EXPECT_EQ(Mid("abcdef", 4), "def");
    EXPECT_EQ(Mid("abc", 4), "");
    EXPECT_EQ(Mid("abc", 9, 1), "");
    EXPECT_EQ(Mid("abc", 1, 0), "");

    EXPECT_EQ(ErrorNumber([] { Left("abc", -1); }), errors::kInvalidCall);
    EXPECT_EQ(ErrorNumber([] { Right("abc", -1); }), errors::kInvalidCall);
    EXPECT_EQ(ErrorNumber([] { Mid("abc", 0); }), errors::kInvalidCall);
    EXPECT_EQ(ErrorNumber([] { Mid("abc", 1, -1); }), errors::kInvalidCall);
    EXPECT_EQ(ErrorNumber([] { Mid("abc", 0, 2); }), errors::kInvalidCall);
}

TEST(Search, InStrBoundaries) {
    EXPECT_EQ(InStr("a\\b\\c", "\\"), 2);
    EXPECT_EQ(InStr("a\\b\\c", "\\", 3), 4);
    EXPECT_EQ(InStr("abc", "x"), 0);
    EXPECT_EQ(InStr("abc", "c", 3), 3);
    EXPECT_EQ(InStr("abc", "c", 4), 0);
    EXPECT_EQ(InStr("abc", "", 2), 2);
    EXPECT_EQ(InStr("abc", "", 4), 4);
    EXPECT_EQ(InStr("abc", "", 5), 0);
    EXPECT_EQ(InStr("", ""), 0);
    EXPECT_EQ(InStr("abc", "abcd"), 0);
    EXPECT_EQ(ErrorNumber([] { InStr("abc", "a", 0); }), errors::kInvalidCall);

    EXPECT_EQ(InStrRev("C:\\Work\\Frame.iam", "\\"), 8);
    EXPECT_EQ(InStrRev("aaa", "aa"), 2);
    EXPECT_EQ(InStrRev("abc", "x"), 0);
    EXPECT_EQ(InStrRev("abc", ""), 3);
    EXPECT_EQ(InStrRev("", "a"), 0);
}

TEST(Editing, TrimCaseAndReplace) {
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("\ta\t"), "\ta\t");  // tabs are not blanks to Trim
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(LTrim("  a "), "a ");
    EXPECT_EQ(RTrim("  a "), "  a");
    EXPECT_EQ(UCase("Frame-1.iam"), "FRAME-1.IAM");
    EXPECT_EQ(LCase("ÉTÉ Abc"), "ÉtÉ abc");  // UTF-8 bytes pass through untouched
    EXPECT_EQ(UCase("été"), "éTé");
    EXPECT_EQ(Replace("aaaa", "aa", "b"), "bb");
    EXPECT_EQ(Replace("abc", "", "x"), "abc");
    EXPECT_EQ(Replace("a.b.c", ".", ".."), "a..b..c");  // no re-scan of inserted text
    EXPECT_EQ(Replace("abc", "abc", ""), "");
}

TEST(Val, ReadsTheLeadingNumber) {
    EXPECT_EQ(Val("12abc"), 12);
    EXPECT_EQ(Val("abc"), 0);
    EXPECT_EQ(Val(" 1 2"), 12);
    EXPECT_EQ(Val("1\t2\n3"), 123);
    EXPECT_EQ(Val("1e3"), 1000);
    EXPECT_EQ(Val("1 e 3"), 1000);
    EXPECT_EQ(Val("-3.5x"), -3.5);
    EXPECT_EQ(Val(".5"), 0.5);
    EXPECT_EQ(Val("1.2.3"), 1.2);
    EXPECT_EQ(Val("1,000"), 1);
    EXPECT_EQ(Val("12e"), 12);
    EXPECT_EQ(Val("12e+"), 12);
    EXPECT_EQ(Val("2e-2mm"), 0.02);
    EXPECT_EQ(Val("-"), 0);
    EXPECT_EQ(Val(""), 0);
    EXPECT_EQ(Val("1e-400"), 0);
    EXPECT_FALSE(std::signbit(Val("-0")));
    EXPECT_EQ(ErrorNumber([] { Val("1e400"); }), errors::kOverflow);
}

TEST(Numeric, AcceptedTexts) {
    struct Case {
        const char* text;
        double value;
    };
    for (const Case& c : {Case{"5", 5},
                          {" 5 ", 5},
                          {"-5", -5},
                          {"5-", -5},
                          {"+5", 5},
                          {"$5", 5},
                          {"-$5", -5},
                          {"$-5", -5},
                          {"1,234.5", 1234.5},
                          {"1,2", 12},
                          {"12,34,5", 12345},
                          {".5", 0.5},
                          {"5.", 5},
                          {"1e3", 1000},
                          {"1.5E-2", 0.015},
                          {"-1e+2", -100},
                          {"0012", 12}}) {
        SCOPED_TRACE(c.text);
        EXPECT_TRUE(IsNumeric(c.text));
        std::optional<double> value = ParseNumber(c.text);
        ASSERT_TRUE(value.has_value());
        EXPECT_EQ(*value, c.value);
    }
}

TEST(Numeric, RejectedTexts) {
    for (const char* text :
         {"",      " ",     ".",   "-",   "$",   "abc", "1a",  "1e",  "e5",    ",5",   "5,",   "1,,2",
          "1.2,3", "1.2.3", "-5-", "+-5", "$$5", "5$",  "(5)", "- 5", "1 000", "&H10", "1e400"}) {
        SCOPED_TRACE(text);
        EXPECT_FALSE(IsNumeric(text));
        EXPECT_FALSE(ParseNumber(text).has_value());
    }
}

TEST(Numeric, CurrencyIsExactFromText) {
    EXPECT_EQ(ParseCurrency("922337203685477.5807")->scaled, std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(ParseCurrency("-922337203685477.5808")->scaled, std::numeric_limits<std::int64_t>::min());
    EXPECT_FALSE(ParseCurrency("922337203685477.5808").has_value());
    EXPECT_FALSE(ParseCurrency("1e16").has_value());
    EXPECT_FALSE(ParseCurrency("1e100000").has_value());
    EXPECT_EQ(ParseCurrency("1.00005")->scaled, 10001);
    EXPECT_EQ(ParseCurrency("-1.00005")->scaled, -10001);
    EXPECT_EQ(ParseCurrency("1.00004999")->scaled, 10000);
    EXPECT_EQ(ParseCurrency("$1,234.5")->scaled, 12345000);
    EXPECT_EQ(ParseCurrency("1e-9")->scaled, 0);
    EXPECT_FALSE(ParseCurrency("abc").has_value());
}

TEST(NumberText, FifteenSignificantDigits) {
    struct Case {
        double value;
        const char* text;
    };
    for (const Case& c : {Case{12.5, "12.5"},
                          {1e20, "1E+20"},
                          {0.0001, "0.0001"},
                          {1e-5, "1E-05"},
                          {0, "0"},
                          {-0.0, "0"},
                          {-12.5, "-12.5"},
                          {1.0 / 3, "0.333333333333333"},
                          {2.0 / 3, "0.666666666666667"},
                          {0.1 + 0.2, "0.3"},
                          {1e14, "100000000000000"},
                          {1e15, "1E+15"},
                          {999999999999999.9, "1E+15"},
                          {123456789012345678.0, "1.23456789012346E+17"},
                          {0.00012345, "0.00012345"},
                          {1.5e-300, "1.5E-300"},
                          {-2.5e21, "-2.5E+21"},
                          {100, "100"}}) {
        EXPECT_EQ(NumberToText(c.value), c.text) << "for " << c.text;
    }
}

TEST(NumberText, ReadsBackWithinFifteenDigits) {
    for (double v :
         {3.14159265358979, -271.828182845905, 6.02214076e23, 1.602176634e-19, 0.1, 4503599627370496.0}) {
        std::optional<double> back = ParseNumber(NumberToText(v));
        ASSERT_TRUE(back.has_value()) << NumberToText(v);
        EXPECT_NEAR(*back, v, std::fabs(v) * 1e-14);
    }
}

TEST(NumberText, CurrencyAndFixed) {
    EXPECT_EQ(CurrencyToText(Currency{125000}), "12.5");
    EXPECT_EQ(CurrencyToText(Currency{-5}), "-0.0005");
    EXPECT_EQ(CurrencyToText(Currency{0}), "0");
    EXPECT_EQ(CurrencyToText(Currency{std::numeric_limits<std::int64_t>::min()}), "-922337203685477.5808");

    EXPECT_EQ(FormatFixed(1.5, 6), "1.500000");
    EXPECT_EQ(FormatFixed(2.675, 2), "2.68");  // the double is just below 2.675
    EXPECT_EQ(FormatFixed(-2.5, 0), "-3");
    EXPECT_EQ(FormatFixed(0.5, 0), "1");
    EXPECT_EQ(FormatFixed(9.9999999, 6), "10.000000");
    EXPECT_EQ(FormatFixed(-0.0000001, 6), "0.000000");
    EXPECT_EQ(FormatFixed(0.00012, 6), "0.000120");
    EXPECT_EQ(FormatFixed(1e20, 2), "100000000000000000000.00");
    EXPECT_EQ(FormatFixed(1234.5678, 0), "1235");
    EXPECT_EQ(ErrorNumber([] { FormatFixed(1, -1); }), errors::kInvalidCall);
}

TEST(Dates, SerialAnchors) {
    EXPECT_EQ(MakeDate(1899, 12, 30).serial, 0);
    EXPECT_EQ(MakeDate(1900, 1, 1).serial, 2);
    EXPECT_EQ(MakeDate(2024, 1, 5).serial, 45296);
    EXPECT_EQ(MakeDate(2024, 1, 5, 18).serial, 45296.75);
    EXPECT_EQ(MakeDate(1899, 12, 29, 6).serial, -1.25);  // days count back, the time forward
    // Parts out of range carry over.
    EXPECT_EQ(MakeDate(2023, 13, 1), MakeDate(2024, 1, 1));
    EXPECT_EQ(MakeDate(2024, 3, 0), MakeDate(2024, 2, 29));
    EXPECT_EQ(MakeDate(2024, 1, 5, 24), MakeDate(2024, 1, 6));
    EXPECT_EQ(MakeDate(2024, 1, 1, 0, 0, -1), MakeDate(2023, 12, 31, 23, 59, 59));
    EXPECT_EQ(ErrorNumber([] { MakeDate(10000, 1, 1); }), errors::kOverflow);
    EXPECT_EQ(ErrorNumber([] { MakeDate(99, 12, 31); }), errors::kOverflow);
}

TEST(Dates, ParsesEnUsForms) {
    const Date jan5 = MakeDate(2024, 1, 5);
    for (const char* text :
         {"1/5/2024", "01/05/2024", "1/5/24", "1-5-2024", "2024-01-05", "2024/1/5", "Jan 5, 2024",
          "january 5 2024", "5 January 2024", "5 JAN, 2024", "  1/5/2024  "}) {
        SCOPED_TRACE(text);
        ASSERT_TRUE(IsDate(text));
        EXPECT_EQ(*ParseDate(text), jan5);
    }
    EXPECT_EQ(*ParseDate("1/5/2024 3:04 PM"), MakeDate(2024, 1, 5, 15, 4));
    EXPECT_EQ(*ParseDate("2024-01-05 15:04:05"), MakeDate(2024, 1, 5, 15, 4, 5));
    EXPECT_EQ(*ParseDate("Jan 5, 2024 12:30am"), MakeDate(2024, 1, 5, 0, 30));
    EXPECT_EQ(*ParseDate("12:00 PM"), Date{0.5});
    EXPECT_EQ(*ParseDate("0:00"), Date{0});
    EXPECT_EQ(*ParseDate("2/29/2024"), MakeDate(2024, 2, 29));
    EXPECT_EQ(*ParseDate("1/5/29"), MakeDate(2029, 1, 5));
    EXPECT_EQ(*ParseDate("1/5/30"), MakeDate(1930, 1, 5));
    EXPECT_EQ(*ParseDate("1/5/00"), MakeDate(2000, 1, 5));
}

TEST(Dates, RejectsNonDates) {
    for (const char* text : {"",          "abc",       "2/30/2024",     "2/29/2023",    "13/5/2024",
                             "0/5/2024",  "1/0/2024",  "1/5",           "1/5/099",      "1/5-2024",
                             "1/5/2024x", "1/5/20241", "Foo 5, 2024",   "Jan 32, 2024", "1/5/2024 3:04 XM",
                             "25:00",     "13:00 PM",  "0:30 AM",       "3:60",         "3:04:60",
                             "3",         "12.5",      "1/5/2024,3:04", "1/5 Jan, 24"}) {
        SCOPED_TRACE(text);
        EXPECT_FALSE(IsDate(text));
    }
}

TEST(Dates, GeneralDate) {
    EXPECT_EQ(FormatGeneralDate(MakeDate(2024, 1, 5)), "1/5/2024");
    EXPECT_EQ(FormatGeneralDate(MakeDate(2024, 1, 5, 15, 4, 5)), "1/5/2024 3:04:05 PM");
    EXPECT_EQ(FormatGeneralDate(MakeDate(2024, 12, 25, 0, 0, 1)), "12/25/2024 12:00:01 AM");
    EXPECT_EQ(FormatGeneralDate(MakeDate(2024, 12, 25, 12)), "12/25/2024 12:00:00 PM");
    EXPECT_EQ(FormatGeneralDate(Date{15.0 / 24 + 4.0 / 1440 + 5.0 / 86400}), "3:04:05 PM");
    EXPECT_EQ(FormatGeneralDate(Date{0}), "12:00:00 AM");
    EXPECT_EQ(FormatGeneralDate(Date{-1.25}), "12/29/1899 6:00:00 AM");
    EXPECT_EQ(FormatGeneralDate(Date{2}), "1/1/1900");
    // Less than half a second before midnight is the next day, not "24:00:00".
    EXPECT_EQ(FormatGeneralDate(Date{45296 - 0.2 / 86400}), "1/5/2024");
    EXPECT_EQ(FormatGeneralDate(Date{2958465.5}), "12/31/9999 12:00:00 PM");
    EXPECT_EQ(ErrorNumber([] { FormatGeneralDate(Date{2958466}); }), errors::kOverflow);
    EXPECT_EQ(ErrorNumber([] { FormatGeneralDate(Date{std::nan("")}); }), errors::kOverflow);
}

TEST(Dates, TextRoundTrip) {
    for (const char* text : {"1/5/2024", "2/29/2000", "12/31/9999 11:59:59 PM", "1/1/100", "3:04:05 PM",
                             "7/4/1776 9:30:00 AM"}) {
        std::optional<Date> d = ParseDate(text);
        ASSERT_TRUE(d.has_value()) << text;
        EXPECT_EQ(FormatGeneralDate(*d), text);
    }
}

}  // namespace
}  // namespace support

TEST(Suggest, TheClosestSlipOrNothing) {
    const std::vector<std::string> verbs{"click", "check", "close", "choose", "print", "pick"};
    EXPECT_EQ(support::ClosestMatch("clik", verbs), "click");     // a letter left out
    EXPECT_EQ(support::ClosestMatch("cilck", verbs), "click");    // two swapped
    EXPECT_EQ(support::ClosestMatch("CHOOSE", verbs), "choose");  // case is no slip
    EXPECT_EQ(support::ClosestMatch("prnit", verbs), "print");
    EXPECT_EQ(support::ClosestMatch("xyzzy", verbs), "");  // too far from all
    EXPECT_EQ(support::ClosestMatch("pk", verbs), "");     // two edits in a short word
    EXPECT_EQ(support::ClosestMatch("anything", {}), "");
    // Longer names allow more: a control typed with two slips.
    EXPECT_EQ(support::ClosestMatch("cmdCancle", {"cmdCancel", "cmdClone"}), "cmdCancel");
    EXPECT_EQ(support::DidYouMean("cmdClon", {"cmdClone"}), " (did you mean cmdClone?)");
    EXPECT_EQ(support::DidYouMean("zzz", {"cmdClone"}), "");
}
