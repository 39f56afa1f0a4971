#include "adapters/decal/Convert.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "adapters/decal/DecalView.h"
#include "core/failure.h"

namespace ombrel::decal {
namespace {

using std::int32_t;

std::int32_t NumberOfFailure(const std::function<void()>& body) {
    try {
        body();
    } catch (const Failure& thrown) {
        return thrown.number();
    }
    return 0;
}

TEST(Convert, KeepsTextOfAnyLettersBothWays) {
    for (const std::string text : {"", "Drudge", "Rand\u2019s", "\u00e9\u00f1\u4e2d", "\U0001F404 moo"}) {
        EXPECT_EQ(ToUtf8(ToUtf16(text)), text);
        EXPECT_EQ(Bstr(text).Utf8(), text);
    }
    EXPECT_EQ(ToUtf16("\U0001F404").size(), 2u);
    EXPECT_EQ(ToUtf8(L"a\xD83Dz"), "a\uFFFDz");
    EXPECT_EQ(Bstr().Utf8(), "");
}

TEST(Convert, ReadsNumbersOfEveryKindThatTheFrameworkSends) {
    struct Row {
        VARTYPE kind;
        LONGLONG value;
        int32_t read;
    };
    for (const Row& row : {Row{VT_UI1, 200, 200}, Row{VT_I2, -3, -3}, Row{VT_I4, -7, -7}, Row{VT_INT, 12, 12},
                           Row{VT_UI4, 0x80000001, INT32_MIN + 1}, Row{VT_I8, 0x1'8000'0002, INT32_MIN + 2},
                           Row{VT_BOOL, VARIANT_TRUE, -1}}) {
        VARIANT value{};
        value.vt = row.kind;
        value.llVal = row.value;
        EXPECT_EQ(LongOf(value), row.read) << row.kind;
    }
    EXPECT_EQ(Variant(std::string_view("42")).Long(), 42);
    EXPECT_DOUBLE_EQ(Variant(std::string_view("1.5")).Double(), 1.5);
    EXPECT_EQ(Variant(int32_t{7}).Text(), "7");
    EXPECT_TRUE(Variant(int32_t{7}).Bool());
    EXPECT_FALSE(Variant(false).Bool());
}

TEST(Convert, ReadsThroughReferences) {
    VARIANT number{}, reference{};
    number.vt = VT_I4;
    number.lVal = 31;
    reference.vt = VT_BYREF | VT_VARIANT;
    reference.pvarVal = &number;
    EXPECT_EQ(LongOf(reference), 31);

    const Bstr text("line");
    BSTR line = text.get();
    VARIANT behind{};
    behind.vt = VT_BYREF | VT_BSTR;
    behind.pbstrVal = &line;
    EXPECT_EQ(TextOf(behind), "line");
}

TEST(Convert, FailsForWhatIsNotThereOrOfAnotherKind) {
    EXPECT_EQ(NumberOfFailure([] { Variant().Long(); }), failure::kTypeMismatch);
    EXPECT_EQ(NumberOfFailure([] { Variant().Text(); }), failure::kTypeMismatch);
    EXPECT_EQ(NumberOfFailure([] { Variant(std::string_view("moo")).Long(); }), failure::kTypeMismatch);
    EXPECT_EQ(ObjectOf(Variant(int32_t{1}).get()), nullptr);
}

TEST(Convert, TakesByteArraysOver) {
    SAFEARRAY* bytes = SafeArrayCreateVector(VT_UI1, 0, 3);
    for (LONG i = 0; i < 3; ++i) {
        auto byte = static_cast<BYTE>(250 + i);
        SafeArrayPutElement(bytes, &i, &byte);
    }
    EXPECT_EQ(TakeBytes(bytes), (std::vector<std::uint8_t>{250, 251, 252}));
    EXPECT_TRUE(TakeBytes(nullptr).empty());
}

TEST(ViewDescription, BeginsAsTheFrameworkWantsIt) {
    constexpr std::string_view wanted = "<?xml version=\"1.0\"?>\n<view/>";
    EXPECT_EQ(AsFrameworkXml("\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<view/>"), wanted);
    EXPECT_EQ(AsFrameworkXml(wanted), wanted);
    EXPECT_EQ(AsFrameworkXml("<view/>"), "<?xml version=\"1.0\"?><view/>");
}

TEST(ViewDescription, TellsTheKindsOfTheColumnsOfEachList) {
    const auto lists = ColumnsOf(R"(<view><control progid="DecalControls.Notebook"><page>
        <control progid="DecalControls.List" name="Rows"><column progid="DecalControls.CheckColumn"/>
        <column progid="decalcontrols.textcolumn"/><column progid="DecalControls.IconColumn"/></control>
        <control progid="DecalControls.Edit" name="Box"/></page></control></view>)");
    ASSERT_EQ(lists.size(), 1u);
    EXPECT_EQ(lists.at("Rows"), (std::vector{ColumnKind::kCheck, ColumnKind::kText, ColumnKind::kIcon}));
    EXPECT_TRUE(ColumnsOf("no view").empty());
}

}  // namespace
}  // namespace ombrel::decal
