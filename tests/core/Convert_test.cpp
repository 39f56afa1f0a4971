#include "core/convert.h"

#include <functional>
#include <limits>

#include "core/failure.h"
#include "tests/support/Matchers.h"

namespace ombrel {
namespace {

std::int32_t NumberOf(const std::function<void()>& procedure) {
    try {
        procedure();
    } catch (const Failure& thrown) {
        return thrown.number();
    }
    return 0;
}

TEST(Convert, KnowsANumberWhenItSeesOne) {
    for (const char* text : {"0", " 12 ", "-1.5", "+.5", "5.", "1,234,567", "1e3", "1E-3", "1d2", "\t7\r\n"}) {
        EXPECT_TRUE(IsNumeric(text)) << text;
    }
    for (const char* text : {"", " ", ".", "-", "1.2.3", "1 2", "abc", "5x", ",5", "e5", "1e", "--1", "1.5,0", "nan",
                             "inf", "0x10", "1e999"}) {
        EXPECT_FALSE(IsNumeric(text)) << text;
    }
}

TEST(Convert, ReadsWholeNumbersWithHalvesToEven) {
    EXPECT_EQ(ToLong("2.5"), 2);
    EXPECT_EQ(ToLong("3.5"), 4);
    EXPECT_EQ(ToLong("-2.5"), -2);
    EXPECT_EQ(ToLong(" 1,234 "), 1234);
    EXPECT_EQ(ToLong("2147483647.4"), 2147483647);
    EXPECT_EQ(ToLong(-2147483648.5), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(NumberOf([] { ToLong("2147483647.5"); }), failure::kOverflow);
    EXPECT_EQ(NumberOf([] { ToLong(std::numeric_limits<double>::quiet_NaN()); }), failure::kOverflow);
    EXPECT_EQ(NumberOf([] { ToLong("twelve"); }), failure::kTypeMismatch);
    EXPECT_EQ(NumberOf([] { ToLong(""); }), failure::kTypeMismatch);
    EXPECT_EQ(NumberOf([] { ToDouble("1e999"); }), failure::kOverflow);
    EXPECT_EQ(ToDouble("1e-999"), 0.0);
}

TEST(Convert, ReadsTruth) {
    EXPECT_TRUE(ToBool("True"));
    EXPECT_TRUE(ToBool("TRUE"));
    EXPECT_FALSE(ToBool(" false "));
    EXPECT_TRUE(ToBool("-1"));
    EXPECT_FALSE(ToBool("0.0"));
    EXPECT_EQ(NumberOf([] { ToBool("yes"); }), failure::kTypeMismatch);
    EXPECT_EQ(BoolText(true), "True");
    EXPECT_EQ(BoolText(false), "False");
}

TEST(Convert, ReadsTheNumberThatATextBeginsWith) {
    EXPECT_EQ(Val("12 apples"), 12.0);
    EXPECT_EQ(Val(" 1 2 . 5 x"), 12.5);
    EXPECT_EQ(Val("-.5e1z"), -5.0);
    EXPECT_EQ(Val("1,234"), 1.0);
    EXPECT_EQ(Val("5e"), 5.0);
    EXPECT_EQ(Val("apples"), 0.0);
    EXPECT_EQ(Val(""), 0.0);
}

TEST(Convert, WritesNumbersInTheirShortestForm) {
    const std::pair<double, const char*> cases[] = {
        {0.0, "0"},
        {-0.0, "0"},
        {40.0, "40"},
        {-12.25, "-12.25"},
        {0.5, "0.5"},
        {-0.5, "-0.5"},
        {0.05, "0.05"},
        {0.1 + 0.2, "0.3"},
        {1.0 / 3.0, "0.333333333333333"},
        {2.0 / 3.0, "0.666666666666667"},
        {100000.0 / 3.0, "33333.3333333333"},
        {999999999999999.0, "999999999999999"},
        {1e15, "1E+15"},
        {-1.5e20, "-1.5E+20"},
        {123456789012345678.0, "1.23456789012346E+17"},
        {1.25e-20, "1.25E-20"},
        {9.999999999999999e22, "1E+23"},
        {1e300, "1E+300"},
    };
    for (const auto& [value, text] : cases) EXPECT_EQ(NumberText(value), text);
    EXPECT_EQ(NumberText(0.1f), "0.1");
    EXPECT_EQ(NumberText(12345.678f), "12345.68");
    EXPECT_EQ(NumberText(1e7f), "1E+07");
    EXPECT_EQ(NumberText(std::numeric_limits<std::int32_t>::min()), "-2147483648");
}

TEST(Convert, ReadsBackWhatItWrites) {
    for (const double value : {0.1, -0.001, 12.3456789, 1e15, 1.5e-9, 4294967295.0, 45477.5452430556}) {
        EXPECT_DOUBLE_EQ(ToDouble(NumberText(value)), value);
    }
}

TEST(Convert, RoundsHalvesToEven) {
    EXPECT_EQ(Round(0.5), 0.0);
    EXPECT_EQ(Round(1.5), 2.0);
    EXPECT_EQ(Round(-2.5), -2.0);
    EXPECT_EQ(Round(2.25, 1), 2.2);
    EXPECT_EQ(Round(2.35, 1), 2.4);
    EXPECT_EQ(Round(1e300, 20), 1e300);
}

TEST(Convert, FormatsWithHalvesAwayFromZero) {
    const struct {
        double value;
        int decimals;
        const char* text;
    } cases[] = {
        {0.25, 1, "0.3"},   {0.15, 1, "0.2"},    {0.35, 1, "0.4"},
        {-0.25, 1, "-0.3"}, {0.04, 1, "0.0"},    {-0.04, 1, "0.0"},
        {0.05, 1, "0.1"},   {9.95, 1, "10.0"},   {99.99, 1, "100.0"},
        {0.5, 0, "1"},      {2.5, 0, "3"},       {0.4, 0, "0"},
        {12.0, 1, "12.0"},  {1200.0, 0, "1200"}, {1e15, 1, "1000000000000000.0"},
        {0.001, 2, "0.00"}, {0.996, 2, "1.00"},  {45.678, 2, "45.68"},
        {0.0, 1, "0.0"},
    };
    for (const auto& row : cases) EXPECT_EQ(FormatFixed(row.value, row.decimals), row.text) << row.value;
    EXPECT_EQ(NumberOf([] { FormatFixed(std::numeric_limits<double>::infinity(), 1); }), failure::kOverflow);
}

}  // namespace
}  // namespace ombrel
