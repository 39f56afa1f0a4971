// The shipped options view against what the plug-in and its player need of it.
#include "adapters/sim/View.h"

#include <fmt/format.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "adapters/sim/Calls.h"
#include "adapters/sim/FontMetrics.h"
#include "config/ControlTable.h"
#include "core/files.h"
#include "tests/support/Matchers.h"
#include "tests/support/SourceFolder.h"

namespace ombrel::sim {
namespace {

using host::Rect;

std::string Description() { return ReadFile(test::SourceFolder() + "/resources/Ombrel_View.xml"); }

class ShippedView : public testing::Test {
protected:
    std::vector<std::string> Texts(std::string_view choice) {
        std::vector<std::string> texts;
        for (const auto& entry : view.Get<SimChoice>(choice)->entries()) texts.push_back(entry.text);
        return texts;
    }
    std::vector<std::string> Data(std::string_view choice) {
        std::vector<std::string> data;
        for (const auto& entry : view.Get<SimChoice>(choice)->entries()) data.push_back(entry.data);
        return data;
    }

    Calls calls;
    SimView view{calls, Description()};
};

template <class Kind, std::size_t N>
void ExpectAll(SimView& view, const ControlRow<Kind> (&rows)[N]) {
    for (const auto& row : rows) EXPECT_NE(dynamic_cast<Kind*>(view.Control(row.name)), nullptr) << row.name;
}

TEST_F(ShippedView, HasEveryControlInItsKind) {
    ExpectAll(view, kStaticTexts);
    ExpectAll(view, kPushButtons);
    ExpectAll(view, kCheckboxes);
    ExpectAll(view, kNotebooks);
    ExpectAll(view, kEdits);
    ExpectAll(view, kChoices);
    ExpectAll(view, kLists);
    ExpectAll(view, kProgresses);
    ExpectAll(view, kSliders);
}

TEST_F(ShippedView, TakesTheSizeThatALoadGivesIt) {
    EXPECT_EQ(view.position().right - view.position().left, 230);
    EXPECT_EQ(view.position().bottom - view.position().top, 260);
}

// Where it stands and what stands beside it

Rect Grown(const Rect& rect, std::int32_t left, std::int32_t top) {
    return {rect.left + left, rect.top + top, rect.right + left, rect.bottom + top};
}

bool Overlap(const Rect& a, const Rect& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

bool Holds(const Rect& outer, const Rect& inner) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

std::string Label(const Element& element) {
    return element.name.empty() ? fmt::format("\"{}\"", element.Text("text")) : element.name;
}

// Fonts differ by machine; a text measured two pixels higher than it is leaves room for the widest of them.
std::int32_t Width(const Element& element, std::string_view text) {
    const bool bold = element.Text("fontstyle").find("bold") != std::string_view::npos;
    return TextWidth(text, "Arial", element.Number("fontsize", 14) + 2, bold);
}

std::int32_t RoomForText(const Element& element) {
    const std::int32_t width = element.rect.right - element.rect.left;
    switch (element.kind) {
        case ElementKind::kCheckbox:
            return width - kCheckWidth;
        case ElementKind::kChoice:
            return width - kChoiceButton - 4;
        case ElementKind::kEdit:
            return width - 2 * element.Number("marginx");
        case ElementKind::kPushButton:
            return width - 4;
        default:
            return width;
    }
}

void ExpectToFit(const Element& element) {
    const std::int32_t room = RoomForText(element);
    EXPECT_LE(Width(element, element.Text("text")), room) << Label(element);
    if (element.kind == ElementKind::kChoice) {
        for (const auto& entry : static_cast<const SimChoice&>(*element.control).entries())
            EXPECT_LE(Width(element, entry.text), room) << element.name << " entry " << entry.text;
    }
    if (element.kind == ElementKind::kList) {
        const auto widths = ColumnWidths(element);
        std::int32_t sum = kScrollBar;
        for (const std::int32_t width : widths) sum += width;
        EXPECT_LE(sum, element.rect.right - element.rect.left) << element.name;
    }
    if (element.kind != ElementKind::kList && element.kind != ElementKind::kProgress) {
        EXPECT_GE(element.rect.bottom - element.rect.top, element.Number("fontsize", 14) + 2) << Label(element);
    }
}

// `page` is what the element's parent shows, in the view's pixels.
void ExpectInOrder(const Element& element, const Rect& page) {
    if (element.kind == ElementKind::kNotebook) {
        const Rect rect = Grown(element.rect, page.left, page.top);
        EXPECT_TRUE(Holds(page, rect)) << element.name;
        std::int32_t tabs = 0;
        for (const auto& tab : element.pages) {
            tabs += TextWidth(tab.label, "Arial", 16, false) + kTabPadding;
            if (tab.content) ExpectInOrder(*tab.content, {rect.left, rect.top + kTabHeight, rect.right, rect.bottom});
        }
        EXPECT_LE(tabs, rect.right - rect.left) << "tabs of " << element.name;
        return;
    }
    for (std::size_t i = 0; i < element.children.size(); ++i) {
        const Element& child = *element.children[i];
        if (child.kind == ElementKind::kNotebook || child.kind == ElementKind::kLayout) {
            ExpectInOrder(child, page);
            continue;
        }
        const Rect rect = Grown(child.rect, page.left, page.top);
        EXPECT_TRUE(Holds({page.left + 4, page.top, page.right - 4, page.bottom - 4}, rect)) << Label(child);
        EXPECT_LT(rect.left, rect.right) << Label(child);
        EXPECT_LT(rect.top, rect.bottom) << Label(child);
        ExpectToFit(child);
        for (std::size_t other = 0; other < i; ++other)
            EXPECT_FALSE(Overlap(child.rect, element.children[other]->rect))
                << Label(child) << " and " << Label(*element.children[other]);
    }
}

TEST_F(ShippedView, NothingIsCutOrOverlapsAndEveryTextFits) {
    ASSERT_NE(view.root(), nullptr);
    ExpectInOrder(*view.root(), {0, 0, 230, 260});
}

// What the lists and choices hold

TEST_F(ShippedView, ListsHaveTheColumnsThatAreReadAndWritten) {
    const std::pair<std::string_view, std::string_view> lists[] = {
        {"HUD_General", "ctttitc"}, {"HUD_Clock", "cttti"},        {"Buff_List", "itt"},
        {"Debuff_List", "itt"},     {"HUD_LIST", "cti"},           {"HUD_Items", "cttiiit"},
        {"Chat_Options", "ct"},     {"Chat_Filter", "cttti"},      {"Chat_Alias", "ctti"},
        {"Chat_Color", "cttit"},    {"Chat_Custom", "ctttitt"},    {"Corpses_List", "ttti"},
        {"Chat_Log_View", "tt"},    {"Chat_Log_Options", "ttctc"}, {"Vitals_listExceptions", "ti"},
    };
    EXPECT_EQ(std::size(lists), std::size(kLists));
    for (const auto& [name, kinds] : lists) {
        std::string found;
        for (const auto kind : view.Get<SimList>(name)->columns()) found += "tci"[static_cast<std::size_t>(kind)];
        EXPECT_EQ(found, kinds) << name;
    }
}

TEST_F(ShippedView, NumbersThatServeOnlyThePlugInDoNotShow) {
    EXPECT_EQ(ColumnWidths(*view.Find("HUD_Items"))[6], 1);
    EXPECT_EQ(ColumnWidths(*view.Find("Chat_Log_View"))[1], 1);
}

TEST_F(ShippedView, ColorChoicesNameTheColorsInTheirOrder) {
    const char* const hud[] = {"White",      "Grey",         "Black", "Red",         "Light Red", "Blue",
                               "Light Blue", "Turquoise",    "Green", "Light Green", "Yellow",    "Dark Yellow",
                               "Purple",     "Light Purple", "Pink",  "Peach",       "Orange",    "Light Orange"};
    for (const auto* name : {"HUD_General_BG_Color", "HUD_Clock_Color", "HUD_Main_Color", "HUD_Items_Color",
                             "HUD_Target_Color", "HUD_Status_Color"})
        EXPECT_THAT(Texts(name), ElementsAreArray(hud)) << name;

    // The first entry, which keeps a line's own colour, is left out where the colours are shown in chat.
    const char* const chat[] = {"Default",   "White", "Grey",   "Red",         "Light Red", "Blue", "Light Blue",
                                "Turquoise", "Green", "Yellow", "Dark Yellow", "Purple",    "Pink", "Orange"};
    const char* const numbers[] = {"-1", "2", "12", "21", "22", "7", "14", "13", "0", "10", "4", "5", "8", "18"};
    for (const auto* name : {"Chat_Color_Color", "Chat_Custom_Color"}) {
        EXPECT_THAT(Texts(name), ElementsAreArray(chat)) << name;
        EXPECT_THAT(Data(name), ElementsAreArray(numbers)) << name;
    }
}

TEST_F(ShippedView, ChoicesOfTheDisplaysHoldWhatTheDisplaysRead) {
    EXPECT_THAT(Texts("HUD_General_BG_Alpha"),
                ElementsAreArray({"100%", "90%", "80%", "70%", "60%", "50%", "40%", "30%", "20%", "10%", "0%"}));
    EXPECT_THAT(Texts("HUD_General_Font"),
                ElementsAreArray({"Arial", "Courier", "Franklin", "Impact", "Palatino", "Times", "Verdana"}));
    EXPECT_THAT(Texts("HUD_Target_Level"), ElementsAreArray({"I", "II", "III", "IV", "V", "VI", "VII"}));
    EXPECT_THAT(Texts("HUD_Status_Lines"), ElementsAreArray({"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}));
    EXPECT_EQ(Texts("HUD_General_Size").front(), "8");
    EXPECT_EQ(Texts("HUD_General_Size").back(), "24");
    EXPECT_EQ(Texts("HUD_Items_Icon_Size").front(), "16");
    EXPECT_EQ(Data("HUD_Timeout").front(), "1000") << "milliseconds";
    for (const std::string& period : Data("HUD_Timeout")) EXPECT_GE(std::stoi(period), 250) << period;
}

TEST_F(ShippedView, ChoicesOfChatHoldWhatTheRulesRead) {
    EXPECT_THAT(Texts("Chat_Log_Filter"), ElementsAreArray({"All", "Open Chat", "Tells", "Fellowship",
                                                            "Patron/Covassal", "Vassal", "Allegiance", "Channels"}));
    EXPECT_THAT(Data("Chat_Color_Window"), ElementsAreArray({"D", "B", "M", "1", "2", "3", "4"}));
    const auto types = Data("Chat_Custom_Type");
    EXPECT_EQ(types.front(), "All");
    EXPECT_THAT(types, IsSupersetOf({"OM", "0", "2", "3", "7", "18", "30"}));
    EXPECT_EQ(std::set<std::string>(types.begin(), types.end()).size(), types.size());
    for (const auto* name : {"Chat_Color_Sound", "Chat_Custom_Sound", "Util_cboVitalHealthSound",
                             "Util_cboVitalStaminaSound", "Util_cboVitalManaSound"})
        EXPECT_THAT(Texts(name), ElementsAre("None")) << name << ": sounds are added as they are found";
}

TEST_F(ShippedView, NoOptionBeginsEmpty) {
    const std::set<std::string_view> entries = {
        "HUD_Items_Text",   "Filter_Box",         "Alias_Abbr",      "Alias_Full",
        "Chat_Custom_Text", "Chat_Custom_Action", "Chat_Log_Search", "Vitals_txtAddException"};
    for (const auto& row : kEdits) {
        EXPECT_EQ(view.Get<SimEdit>(row.name)->text().empty(), entries.contains(row.name)) << row.name;
    }
    for (const auto& row : kChoices) EXPECT_GE(view.Get<SimChoice>(row.name)->selected(), 0) << row.name;
    EXPECT_EQ(view.Get<SimStaticText>("Spells_Tracked")->text(), "N/A");
    EXPECT_EQ(view.Get<SimChoice>("HUD_Target_Level")->selected(), 6);
    for (const std::string part : {"Block", "Success", "Cheap", "Fallback"}) {
        const std::int32_t position = view.Get<SimSlider>("Vitals_sldr" + part)->position();
        EXPECT_EQ(view.Get<SimEdit>("Vitals_txt" + part)->text(), fmt::format("{}%", position)) << part;
    }
}

}  // namespace
}  // namespace ombrel::sim
