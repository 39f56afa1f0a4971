// Settings and data files with any content. An input is a settings file, a line "====", and a data file; what is empty
// is no file.
#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <pugixml.hpp>
#include <sstream>
#include <string>
#include <string_view>

#include "chat/LogHandler.h"
#include "config/ControlHandler.h"
#include "core/Vars.h"
#include "corpses/CorpseHandler.h"
#include "fuzz/support/Game.h"
#include "spells/SpellHandler.h"

namespace ombrel::fuzz {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLongest = 20'000;
constexpr std::string_view kDivider = "\n====\n";

bool IsOurs(const std::string& content) {
    pugi::xml_document document;
    return document.load_buffer(content.data(), content.size()) &&
           std::string_view(document.document_element().name()) == "Ombrel";
}

// Some file in the folder of `file` but itself has that content.
bool IsKeptBeside(const fs::path& file, const std::string& content) {
    const auto is_copy = [&](const fs::directory_entry& entry) {
        return entry.path() != file && entry.is_regular_file() && ReadWhole(entry.path()) == content;
    };
    return std::any_of(fs::directory_iterator(file.parent_path()), fs::directory_iterator(), is_copy);
}

bool Reported(const Game& game, std::string_view procedure) {
    return std::ranges::any_of(
        game.reports, [procedure](const std::string& report) { return report.find(procedure) != std::string::npos; });
}

class Files {
public:
    explicit Files(const Game& game)
        : folder_(game.common_data.path() / "Ombrel"),
          settings(folder_ / "Settings/Ombrel_Settings_Alpha_Bob.xml"),
          global(folder_ / "Settings/Ombrel_Global_Settings.xml"),
          data(folder_ / "Data/Ombrel_Data_Alpha_Bob.xml") {}

    const fs::path& own() const { return Vars::ControlHandler->GlobalSettings->Checked() ? global : settings; }

private:
    fs::path folder_;

public:
    fs::path settings, global, data;
};

// The settings without the places of the displays: one that is docked follows its width, and takes its place only once
// it has been drawn.
std::string WithoutPlaces(const std::string& settings) {
    pugi::xml_document document;
    document.load_buffer(settings.data(), settings.size());
    for (pugi::xml_node element : document.document_element().children()) {
        element.remove_attribute("x");
        element.remove_attribute("y");
    }
    std::ostringstream text;
    document.save(text);
    return text.str();
}

std::string LoadedAndSaved(const Files& files) {
    ControlHandler& controls = *Vars::ControlHandler;
    controls.Settings_Load(0);
    Require(Vars::SettingsState == 2, "saved settings don't load");
    controls.Settings_Save(0);
    return ReadWhole(files.own());
}

// What is saved loads to what saves the same bytes.
void RequireStable(const Files& files) {
    ControlHandler& controls = *Vars::ControlHandler;
    controls.Settings_Save(0);
    const std::string settings = ReadWhole(files.own());
    Require(IsOurs(settings), "saved settings are no settings");
    const std::string again = LoadedAndSaved(files);
    Require(WithoutPlaces(again) == WithoutPlaces(settings), "settings change by being loaded and saved");
    Require(LoadedAndSaved(files) == again, "displays move by being loaded and saved");

    controls.Data_Save();
    const std::string data = ReadWhole(files.data);
    Require(IsOurs(data), "saved data are no data");
    Vars::CorpseHandler->Corpses.clear();
    Vars::SpellHandler->ItemSpells.clear();
    Vars::LogHandler->Log.clear();
    controls.Data_Load(0);
    Require(ReadWhole(files.data) == data, "data change by being loaded and saved");
}

void Play(const std::string& settings, const std::string& data) {
    Game game;
    const Files files(game);
    if (!settings.empty()) WriteWhole(files.settings, settings);
    if (!data.empty()) WriteWhole(files.data, data);

    game.client.LoginComplete();

    const bool walk_failed = Reported(game, "'Settings_Load 1'");
    Require(Vars::SettingsState == (walk_failed ? 1 : 2), "a state that doesn't fit what was reported");
    const bool own = files.own() == files.settings;
    if (!settings.empty() && (walk_failed || !own))
        Require(ReadWhole(files.settings) == settings, "settings that were not read were written over");
    else if (!settings.empty() && !IsOurs(settings))
        Require(IsKeptBeside(files.settings, settings), "settings that were not understood are lost");

    Vars::ControlHandler->Data_Save();
    if (!data.empty() && (!IsOurs(data) || Reported(game, "'Data_Load'")))
        Require(IsKeptBeside(files.data, data), "data that were not understood are lost");

    if (Vars::SettingsState == 2) RequireStable(files);
}

}  // namespace
}  // namespace ombrel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace ombrel::fuzz;
    if (size > kLongest) return 0;
    const std::string_view input = TextOf(data, size);
    const std::size_t end = std::min(input.find(kDivider), input.size());
    Play(std::string(input.substr(0, end)), std::string(input.substr(std::min(end + kDivider.size(), input.size()))));
    return 0;
}
