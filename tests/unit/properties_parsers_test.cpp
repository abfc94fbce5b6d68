// The two readers of outside text, over a table of good and hostile inputs: each gives a
// defined answer and none crashes.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "properties/table/CommodityList.h"
#include "properties/table/TitleBlockField.h"

namespace properties {
namespace {

constexpr const char* kTitleSet = "{F29F85E0-4FF9-1068-AB91-08002B27B3D9}";

TEST(TitleBlockField, ReadsTheIdentifiersBehindTheirQuotes) {
    auto field = ParseTitleBlockField(std::string("<Property Document='model' FormatID='") + kTitleSet +
                                      "' PropertyID='2'>TITLE</Property>");
    ASSERT_TRUE(field);
    EXPECT_EQ(field->formatId, kTitleSet);
    EXPECT_EQ(field->propertyId, 2);
    // The first of each key counts.
    field = ParseTitleBlockField(std::string("FormatID='") + kTitleSet +
                                 "' PropertyID='5' FormatID='x' PropertyID='9'");
    EXPECT_EQ(field->propertyId, 5);
}

TEST(TitleBlockField, HostileTextGivesADefinedAnswer) {
    struct Case {
        std::string text;
        bool field;
        std::string formatId;
        int propertyId;
    };
    const std::string set = kTitleSet;
    const std::vector<Case> cases = {
        {"plain text, no fields", false, "", 0},
        {"", false, "", 0},
        {"formatid='" + set + "'", false, "", 0},              // the key is case-sensitive
        {"FormatID='" + set + "'>no property", true, set, 0},  // no PropertyID: 0
        {"FormatID='{short}' PropertyID='3'", true, "{short}' PropertyID='3'", 3},  // the next 38 characters
        {"FormatID=", true, "", 0},                                                 // ends at the key
        {"FormatID='" + set + "' PropertyID='", true, set, 0},                      // no number
        {"FormatID='" + set + "' PropertyID='abc'", true, set, 0},                  // not a number
        {"FormatID='" + set + "' PropertyID='32767'", true, set, 32767},
        {"FormatID='" + set + "' PropertyID='-32768'", true, set, -32768},
        {"FormatID='" + set + "' PropertyID='32768'", false, "", 0},  // beyond 16 bits
        {"FormatID='" + set + "' PropertyID='1e300'", false, "", 0},
        {"FormatID='" + set + "' PropertyID='555e5555'", false, "", 0},   // found by fuzzing
        {"<<FormatID='" + set + "' <PropertyID='7'>>></", true, set, 7},  // unbalanced markup
        {std::string("FormatID='\xff\xfe\0\x01", 14) + "' PropertyID='4'", true,
         std::string("\xff\xfe\0\x01", 4) + "' PropertyID='4'", 4},  // binary bytes
    };
    for (const auto& c : cases) {
        auto field = ParseTitleBlockField(c.text);
        EXPECT_EQ(field.has_value(), c.field) << c.text;
        if (!field || !c.field) continue;
        EXPECT_EQ(field->formatId, c.formatId) << c.text;
        EXPECT_EQ(field->propertyId, c.propertyId) << c.text;
    }
}

TEST(CommodityList, EachLineTrimmedLosesItsTerminator) {
    EXPECT_EQ(ReadCommodityEntries("1234 Bolts;\r\n  5678 Nuts; \n9012 Washers;\r"),
              (std::vector<std::string>{"1234 Bolts", "5678 Nuts", "9012 Washers"}));
    EXPECT_EQ(CommodityCode("1234 Bolts"), "1234");
    EXPECT_EQ(CommodityCode("12"), "12");
    EXPECT_EQ(CommodityCode("\xc3\xa9t\xc3\xa9s Stahl"), "\xc3\xa9t\xc3\xa9s");  // four characters, not bytes
}

TEST(CommodityList, HostileFilesGiveStorableEntries) {
    const std::vector<std::pair<std::string, std::vector<std::string>>> cases = {
        {"", {}},
        {"\r\n\r\n", {}},
        {"x\n;\n  \n", {}},       // a line of one character gives nothing
        {"Bolts;\n", {"Bolts"}},  // no code: the entry stands, its code is "Bolt"
        {std::string("12\0"
                     "34 Bolts;",
                     12),
         {"1234 Bolts"}},  // NUL dropped
        {"1234 \xe9"
         "crou;\n",
         {"1234 \xc3\xa9"
          "crou"}},  // Windows-1252 read as such
        {"1234 \x80uro;",
         {"1234 \xe2\x82\xac"
          "uro"}},
        {"1234 caf\xc3\xa9\n", {"1234 caf"}},                 // the last character is the terminator, whole
        {"\xed\xa0\x80;", {"\xc3\xad\xc2\xa0\xe2\x82\xac"}},  // an encoded surrogate is no UTF-8
    };
    for (const auto& [text, expected] : cases) EXPECT_EQ(ReadCommodityEntries(text), expected) << text;
}

}  // namespace
}  // namespace properties
