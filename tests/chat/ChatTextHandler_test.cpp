#include "chat/ChatTextHandler.h"

#include "chat/ListCache.h"
#include "core/failure.h"
#include "tests/chat/ChatTest.h"

namespace ombrel::test {
namespace {

using ChatTextHandlerTest = ChatTest;

TEST_F(ChatTextHandlerTest, ColourNamesHaveTheClientsNumbersAndMarkers) {
    const struct {
        const char* name;
        std::int32_t color, icon;
    } rows[] = {{"White", 2, 101},    {"Grey", 12, 102}, {"Dark Yellow", 4, 110}, {"Orange", 18, 113},
                {"Default", -1, 114}, {"white", 2, 101}, {"Mauve", 2, 101},       {"", 2, 101}};
    for (const auto& row : rows) {
        EXPECT_EQ(chat().ConvertColor(row.name), row.color) << row.name;
        EXPECT_EQ(chat().GetIconFromColor(row.name), row.icon) << row.name;
    }
    for (std::int32_t icon = 101; icon <= 114; ++icon)
        EXPECT_EQ(chat().GetIconFromColor(chat().GetColorFromIcon(icon)), icon);
    for (const std::int32_t icon : {-1, 0, 100, 115, 0x60011F8}) EXPECT_EQ(chat().GetColorFromIcon(icon), "Default");
}

TEST_F(ChatTextHandlerTest, AResetOfTheWindowsLeavesThePluginsOwnType) {
    ShowType(32, {3});
    ShowType(7, {0, 3});
    chat().ResetTargetList();
    EXPECT_EQ(chat().TargetCount, 0);
    EXPECT_TRUE(chat().GetTargetList(3, 32));
    EXPECT_FALSE(chat().GetTargetList(0, 7) || chat().GetTargetList(3, 7));
    chat().SetTargetList(4, 0, false);
    EXPECT_EQ(chat().TargetCount, 1);
}

TEST_F(ChatTextHandlerTest, WindowsAndTypesOutsideTheTableAreFailure9) {
    const std::pair<std::int32_t, std::int32_t> outside[] = {{-1, 0}, {5, 0}, {0, -1}, {0, 33}};
    for (const auto& [window, type] : outside) {
        try {
            chat().SetTargetList(window, type, true);
            ADD_FAILURE() << window << ", " << type;
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.number(), failure::kSubscript);
        }
        EXPECT_THROW(static_cast<void>(chat().GetTargetList(window, type)), Failure);
    }
}

TEST_F(ChatTextHandlerTest, StatusErrorsGoWhereRareAnnouncementsAreShown) {
    ShowType(26, {0, 4});
    chat().WriteError("You're too busy!");
    EXPECT_THAT(lines, ElementsAre(Line{"You're too busy!", 6, 1}, Line{"You're too busy!", 6, 5}));
}

TEST_F(ChatTextHandlerTest, ComponentsComeFromTheirPeas) {
    const std::pair<const char*, const char*> rows[] = {
        {"Lead Scarab", "Lead Pea"},
        {"Hyssop", "Hyssop Pea"},
        {"Powdered Lapis Lazuli", "Powdered Lapis Lazuli Pea"},
        {"Poplar Talisman", "Poplar Pea"},
        {"Prismatic Taper", "Prismatic Pea"},
        {"Platinum Scarab", "Unknown Pea"},
        {"hyssop", "Unknown Pea"},
        {"Hyssop.", "Unknown Pea"},
        {"", "Unknown Pea"},
    };
    for (const auto& [component, pea] : rows) EXPECT_EQ(chat().PeaName(component), pea) << component;
}

TEST_F(ChatTextHandlerTest, CoordinatesAreFoundInAnyUsualForm) {
    const struct {
        const char* text;
        const char *ns, *ns_side, *ew, *ew_side;
    } rows[] = {
        {"Meet at 42.1N, 33.6E, now", "42.1", "N", "33.6", "E"},
        {"42N33W", "42", "N", "33", "W"},
        {".5 s ; / .25 w", ".5", "s", ".25", "w"},
        {"1242.1n 3e", "242.1", "n", "3", "e"},
    };
    for (const auto& row : rows) {
        const auto found = chat().MatchCoords(row.text);
        ASSERT_THAT(found, SizeIs(1)) << row.text;
        EXPECT_EQ(found[0].ns + found[0].ns_side, std::string(row.ns) + row.ns_side) << row.text;
        EXPECT_EQ(found[0].ew + found[0].ew_side, std::string(row.ew) + row.ew_side) << row.text;
    }
    EXPECT_THAT(chat().MatchCoords("1.0N, 2.0E and 3.0S, 4.0W"), SizeIs(2));
    EXPECT_THAT(chat().MatchCoords("42.1N or 33.6E"), IsEmpty());
    EXPECT_THAT(chat().MatchCoords("1N" + std::string(5000, ' ') + "2E"), IsEmpty());
    EXPECT_THAT(TakeReports(), ElementsAre("Error #28 occured in 'MatchCoords' of class 'ChatTextHandler'"));
}

TEST_F(ChatTextHandlerTest, WhatIsMadeOfAListIsMadeAnewOnlyWhenItChanges) {
    host::List& list = *options().ChatFilter;
    ListCache<std::int32_t> rows;
    int builds = 0;
    const auto count = [&](const host::List& each) {
        if (++builds == 3) throw Failure(failure::kTypeMismatch);
        return each.Count();
    };
    list.AddRow();
    EXPECT_EQ(rows.Get(list, count), 1);
    EXPECT_EQ(rows.Get(list, count), 1);
    EXPECT_EQ(builds, 1);
    list.AddRow();
    EXPECT_EQ(rows.Get(list, count), 2);
    list.AddRow();
    EXPECT_THROW(rows.Get(list, count), Failure);
    EXPECT_EQ(rows.Get(list, count), 3);
}

}  // namespace
}  // namespace ombrel::test
