#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "support/Error.h"
#include "support/Text.h"
#include "support/Variant.h"
#include "test_support.h"

namespace support {
namespace {

using test_support::ErrorNumber;

struct Thing : Object {};

TEST(CurrencyFromDouble, RoundsHalfAwayFromZeroOnTheWrittenDigits) {
    EXPECT_EQ(Currency::FromDouble(12.5).scaled, 125000);
    EXPECT_EQ(Currency::FromDouble(0.00005).scaled, 1);
    EXPECT_EQ(Currency::FromDouble(-0.00005).scaled, -1);
    EXPECT_EQ(Currency::FromDouble(0.000049).scaled, 0);
    // 0.00015 x 10000 is 1.4999999999999998 in doubles; the value as written is a tie.
    EXPECT_EQ(Currency::FromDouble(0.00015).scaled, 2);
    EXPECT_EQ(Currency::FromDouble(2.00005).scaled, 20001);
    EXPECT_EQ(Currency::FromDouble(0.1 + 0.2).scaled, 3000);
    EXPECT_EQ(Currency::FromDouble(-0.0).scaled, 0);
}

TEST(CurrencyFromDouble, OverflowsBeyondSixtyFourBits) {
    EXPECT_EQ(Currency::FromDouble(922337203685477.0).scaled, 9223372036854770000);
    EXPECT_EQ(Currency::FromDouble(-922337203685477.0).scaled, -9223372036854770000);
    for (double v : {922337203685478.0, -922337203685478.0, 1e300, std::numeric_limits<double>::infinity(),
                     std::nan("")}) {
        EXPECT_EQ(ErrorNumber([v] { Currency::FromDouble(v); }), errors::kOverflow) << v;
    }
}

TEST(VariantText, EachTypeConvertsAsThePlatformPrintsIt) {
    EXPECT_EQ(Variant().ToText(), "");
    EXPECT_EQ(Variant(true).ToText(), "True");
    EXPECT_EQ(Variant(false).ToText(), "False");
    EXPECT_EQ(Variant(std::int16_t{-32768}).ToText(), "-32768");
    EXPECT_EQ(Variant(std::int32_t{2147483647}).ToText(), "2147483647");
    EXPECT_EQ(Variant(1e20).ToText(), "1E+20");
    EXPECT_EQ(Variant(Currency{125000}).ToText(), "12.5");
    EXPECT_EQ(Variant(MakeDate(2024, 1, 5, 15, 4, 5)).ToText(), "1/5/2024 3:04:05 PM");
    EXPECT_EQ(Variant("abc").ToText(), "abc");
    EXPECT_EQ(ErrorNumber([] { Variant(std::make_shared<Thing>()).ToText(); }), errors::kTypeMismatch);
}

TEST(VariantNumber, ToDoubleAndToBool) {
    EXPECT_EQ(Variant().ToDouble(), 0);
    EXPECT_EQ(Variant(true).ToDouble(), -1);
    EXPECT_EQ(Variant(std::int16_t{7}).ToDouble(), 7);
    EXPECT_EQ(Variant(Currency{-125000}).ToDouble(), -12.5);
    EXPECT_EQ(Variant(MakeDate(2024, 1, 5, 18)).ToDouble(), 45296.75);
    EXPECT_EQ(Variant(" $1,234.5 ").ToDouble(), 1234.5);
    EXPECT_EQ(Variant("5-").ToDouble(), -5);
    for (const char* text : {"", "abc", "12abc", "1/5/2024"}) {
        EXPECT_EQ(ErrorNumber([text] { Variant(text).ToDouble(); }), errors::kTypeMismatch) << text;
    }
    EXPECT_EQ(ErrorNumber([] { Variant(std::shared_ptr<Object>()).ToDouble(); }), errors::kTypeMismatch);

    EXPECT_FALSE(Variant().ToBool());
    EXPECT_TRUE(Variant(0.5).ToBool());
    EXPECT_TRUE(Variant(Currency{1}).ToBool());
    EXPECT_FALSE(Variant(std::int32_t{0}).ToBool());
    EXPECT_TRUE(Variant(" TRUE ").ToBool());
    EXPECT_FALSE(Variant("false").ToBool());
    EXPECT_TRUE(Variant("-1").ToBool());
    EXPECT_FALSE(Variant("0.0").ToBool());
    EXPECT_EQ(ErrorNumber([] { Variant("yes").ToBool(); }), errors::kTypeMismatch);
    EXPECT_EQ(ErrorNumber([] { Variant(std::make_shared<Thing>()).ToBool(); }), errors::kTypeMismatch);
}

TEST(VariantObject, OnlyObjectsConvert) {
    auto thing = std::make_shared<Thing>();
    EXPECT_EQ(Variant(std::shared_ptr<Object>(thing)).ToObject(), thing);
    EXPECT_EQ(Variant(std::shared_ptr<Object>()).ToObject(), nullptr);
    EXPECT_EQ(ErrorNumber([] { Variant().ToObject(); }), errors::kTypeMismatch);
    EXPECT_EQ(ErrorNumber([] { Variant("x").ToObject(); }), errors::kTypeMismatch);
}

TEST(VariantDescribe, TypeAndValueForTranscripts) {
    EXPECT_EQ(Variant().Describe(), "empty");
    EXPECT_EQ(Variant(true).Describe(), "boolean True");
    EXPECT_EQ(Variant(std::int16_t{5}).Describe(), "integer 5");
    EXPECT_EQ(Variant(std::int32_t{5}).Describe(), "long 5");
    EXPECT_EQ(Variant(12.5).Describe(), "double 12.5");
    EXPECT_EQ(Variant(Currency{125000}).Describe(), "currency 12.5000");
    EXPECT_EQ(Variant(Currency{-5}).Describe(), "currency -0.0005");
    EXPECT_EQ(Variant(MakeDate(2024, 1, 5)).Describe(), "date 1/5/2024");
    EXPECT_EQ(Variant(Date{1e9}).Describe(), "date serial 1000000000");
    EXPECT_EQ(Variant("abc").Describe(), "text \"abc\"");
    EXPECT_EQ(Variant("say \"hi\"").Describe(), "text \"say \"\"hi\"\"\"");
    EXPECT_EQ(Variant(std::make_shared<Thing>()).Describe(), "object");
    EXPECT_EQ(Variant(std::shared_ptr<Object>()).Describe(), "object Nothing");

    EXPECT_STREQ(TypeName(Variant(std::int16_t{5}).Type()), "Integer");
    EXPECT_STREQ(TypeName(Variant("x").Type()), "String");
    EXPECT_STREQ(TypeName(Variant(Date{}).Type()), "Date");
}

}  // namespace
}  // namespace support
