#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <string>

#include "core/Hub.h"
#include "core/text.h"
#include "tests/support/Matchers.h"
#include "tests/support/SourceFolder.h"

namespace ombrel {
namespace {

// The options view shows colours as icons of the plug-in's own file, by number.
TEST(Icons, StandUnderTheNumbersOfTheirColours) {
    const std::filesystem::path folder = test::SourceFolder() + "/adapters/decal";
    static const std::regex row(R"re(^(\d+) ICON "(.+)\.ico"$)re");
    std::ifstream resources(folder / "Ombrel.rc.in");
    std::set<std::string> shown;
    for (std::string line; std::getline(resources, line);) {
        std::smatch match;
        if (!std::regex_match(line, match, row)) continue;
        const std::string file = match[2], color(GetColorFromHUDIcon(std::stoi(match[1])));
        EXPECT_EQ(Replace(ToLower(color), " ", "-"), file);
        EXPECT_TRUE(std::filesystem::is_regular_file(folder / "icons" / (file + ".ico")));
        shown.insert(color);
    }
    for (const char* color :
         {"White", "Grey", "Black", "Red", "Light Red", "Blue", "Light Blue", "Turquoise", "Green", "Light Green",
          "Yellow", "Dark Yellow", "Purple", "Light Purple", "Pink", "Peach", "Orange", "Light Orange"})
        EXPECT_TRUE(shown.contains(color)) << color;
}

}  // namespace
}  // namespace ombrel
