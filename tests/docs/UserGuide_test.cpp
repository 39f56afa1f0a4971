// The user guide against the options view, the commands and the hotkeys that it tells of.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>

#include "adapters/sim/View.h"
#include "chat/ChatCommands.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

const std::string kGuide = SourceFolder() + "/docs/user-guide.md";

using Sections = std::map<std::string, std::vector<std::string>>;  // "Chat/Color": the lines below that heading

Sections ReadGuide() {
    std::ifstream file(kGuide);
    Sections sections;
    std::string chapter, section;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("## ")) {
            chapter = section = line.substr(3);
        } else if (line.starts_with("### ")) {
            section = chapter + "/" + line.substr(4);
        } else {
            sections[section].push_back(line);
        }
    }
    return sections;
}

// The first cells of the tables below a heading: all, or of those tables that are headed so.
std::vector<std::string> FirstCells(const std::vector<std::string>& lines, std::string_view heading) {
    std::vector<std::string> cells;
    bool wanted = false;
    for (const std::string& line : lines) {
        if (!line.starts_with("| ")) {
            wanted = false;
            continue;
        }
        const std::string cell = line.substr(2, line.find(" |", 2) - 2);
        if (cell == heading)
            wanted = true;
        else if (wanted && cell != "---")
            cells.push_back(cell);
    }
    return cells;
}

std::vector<std::string> QuotedWords(std::string_view line) {
    std::vector<std::string> words;
    for (std::size_t start = line.find('`'); start != line.npos;) {
        const std::size_t end = line.find('`', start + 1);
        words.emplace_back(line.substr(start + 1, end - start - 1));
        start = line.find('`', end + 1);
    }
    return words;
}

// What a tab says, and which of that are boxes and buttons, which tell themselves what they do.
struct Tab {
    std::set<std::string> captions, own;
};

void ReadTabs(const sim::Element& element, const std::string& path, std::map<std::string, Tab>& tabs) {
    for (const auto& page : element.pages)
        ReadTabs(*page.content, path.empty() ? page.label : path + "/" + page.label, tabs);
    for (const auto& child : element.children) ReadTabs(*child, path, tabs);
    std::string caption;
    if (const auto* button = dynamic_cast<const sim::SimPushButton*>(element.control.get())) caption = button->text();
    if (element.kind == sim::ElementKind::kCheckbox) caption = element.Text("text");
    if (!caption.empty()) tabs[path].own.insert(caption);
    if (const auto* text = dynamic_cast<const sim::SimStaticText*>(element.control.get())) caption = text->text();
    if (!caption.empty()) tabs[path].captions.insert(caption);
}

class UserGuide : public PluginTest {
protected:
    void SetUp() override {
        Start();
        ReadTabs(*client.view()->root(), "", tabs);
    }
    Sections guide = ReadGuide();
    std::map<std::string, Tab> tabs;
};

TEST_F(UserGuide, TellsWhatEveryBoxAndButtonDoes) {
    ASSERT_GE(tabs.size(), 20U);
    for (const auto& [path, tab] : tabs) {
        ASSERT_TRUE(guide.contains(path)) << path;
        const auto told = FirstCells(guide[path], "Option");
        for (const std::string& caption : tab.own) {
            const bool window =
                path == "Chat/Extra" && caption.size() == 1 && caption > "1";  // told with the first one
            EXPECT_TRUE(window || std::ranges::count(told, caption) == 1) << path << " does not tell of " << caption;
        }
        for (const std::string& cell : told) EXPECT_TRUE(tab.captions.contains(cell)) << path << " has no " << cell;
    }
}

TEST_F(UserGuide, ShowsAPictureOfEveryTab) {
    for (const auto& [path, tab] : tabs) {
        std::string picture = path + ".png";
        picture.replace(picture.find('/'), 1, "-");
        EXPECT_THAT(guide[path], Contains(HasSubstr("(tabs/" + picture + ")"))) << path;
        EXPECT_TRUE(std::filesystem::exists(SourceFolder() + "/docs/tabs/" + picture)) << picture;
    }
}

TEST_F(UserGuide, TellsOfEveryRowOfTheChatOptions) {
    LogIn();
    std::vector<std::string> rows;
    const host::List& list = *options().ChatOptions;
    for (std::int32_t row = 0; row < list.Count(); ++row) rows.push_back(std::get<std::string>(list.Data(1, row)));
    EXPECT_EQ(FirstCells(guide["Chat/Extra"], "Row"), rows);
}

TEST_F(UserGuide, ListsTheCommandsThatThereAre) {
    std::multiset<std::string> told, there;
    for (const std::string& line : guide["Commands"]) {
        if (!line.starts_with("| `")) continue;
        for (const std::string& word : QuotedWords(line)) told.insert(word);
    }
    for (const std::string_view test : ChatCommands()) {
        std::string command(test);
        std::erase(command, '*');
        there.insert(command);
    }
    EXPECT_EQ(told, there);
}

TEST_F(UserGuide, ListsTheHotkeysThatThereAre) {
    LogIn();
    std::set<std::string, std::less<>> told;
    for (const std::string& cell : FirstCells(guide["Hotkeys"], "Hotkey")) told.insert(QuotedWords(cell).at(0));
    EXPECT_EQ(told, client.known_hotkeys);
}

}  // namespace
}  // namespace ombrel::test
