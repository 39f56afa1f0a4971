#include "fuzz/support/Game.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <system_error>

#include "automation/EventQueue.h"
#include "chat/ChatTextHandler.h"
#include "chat/LogHandler.h"
#include "config/ControlHandler.h"
#include "core/FilterHandler.h"
#include "core/Vars.h"
#include "corpses/CorpseHandler.h"
#include "spells/SpellHandler.h"

namespace ombrel::fuzz {

namespace fs = std::filesystem;

namespace {

constexpr const char* kResources = OMBREL_RESOURCES;
constexpr const char* kDefaultSettings = "Ombrel/Settings/Ombrel_Settings.xml";
constexpr host::Id kFirstThing = 0x70000000;
constexpr std::int64_t kLongestWait = 10;

// More than any sound set of rules writes for one line, and far less than what would stop the game.
constexpr std::size_t kMostLines = 5000;

using Box = Ref<host::Checkbox> ControlHandler::*;
constexpr std::array kBoxes = {
    &ControlHandler::OutputMain,    &ControlHandler::Output1,          &ControlHandler::Output2,
    &ControlHandler::Output3,       &ControlHandler::Output4,          &ControlHandler::ChatLogAFK,
    &ControlHandler::ChatLogEnable, &ControlHandler::ChatLogXML,       &ControlHandler::ChatLogAuto,
    &ControlHandler::ChatLogByDate, &ControlHandler::ChatLogTimestamp, &ControlHandler::XPAuto,
    &ControlHandler::XPFilter,      &ControlHandler::FillMana,         &ControlHandler::LevelSS,
    &ControlHandler::SplitPeas,     &ControlHandler::SpellsItem,       &ControlHandler::CorpsesTrack,
    &ControlHandler::CorpsesAuto,   &ControlHandler::CorpsesAbsolute,  &ControlHandler::AllegChange,
    &ControlHandler::EventStart,    &ControlHandler::StatusText,       &ControlHandler::ShowErrors,
};

constexpr std::array kEdits = {
    &ControlHandler::StartLevel,    &ControlHandler::FillThreshold,     &ControlHandler::PeaThreshold,
    &ControlHandler::ChatLogSearch, &ControlHandler::ChatLogAFKMessage, &ControlHandler::XPFilterThreshold,
    &ControlHandler::SpellsOffset,
};

std::size_t PlaceIn(const Statement& statement, std::size_t field, std::size_t size) {
    return static_cast<std::size_t>(statement.Number(field, 0, static_cast<std::int32_t>(size) - 1));
}

// A row by its number, or by the name in its column 1.
std::int32_t RowOf(const host::List& list, const Statement& statement, std::size_t field) {
    for (std::int32_t row = 0; row < list.Count(); ++row) {
        if (std::get<std::string>(list.Data(1, row)) == statement[field]) return row;
    }
    return statement.Number(field, 0, list.Count() - 1);
}

}  // namespace

Folder::Folder() {
    const fs::path memory = "/dev/shm";
    const char* wanted = std::getenv("TMPDIR");
    const fs::path base = !wanted && fs::is_directory(memory) ? memory : fs::temp_directory_path();
    std::string pattern = (base / "ombrel-fuzz-XXXXXX").string();
    if (!mkdtemp(pattern.data())) throw std::system_error(errno, std::generic_category(), pattern);
    path_ = pattern;
}

Folder::~Folder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

void Folder::Empty() const {
    for (const auto& entry : fs::directory_iterator(path_)) {
        std::error_code ignored;
        fs::remove_all(entry.path(), ignored);
    }
}

std::string ReadWhole(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void WriteWhole(const fs::path& file, std::string_view content) {
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
}

void Install(sim::Client& client, const Folder& documents, const Folder& common_data) {
    client.system.documents = documents.path().string();
    client.system.common_data = common_data.path().string();
    client.system.plugin_folder = kResources;
    const fs::path settings = common_data.path() / kDefaultSettings;
    if (fs::exists(settings)) return;
    fs::create_directories(settings.parent_path());
    fs::copy_file(fs::path(kResources) / kDefaultSettings, settings);
}

Game& Game::Shared() {
    static Game game;
    static const bool logged_in = game.LogIn();
    Require(logged_in, "the login did not work");
    return game;
}

bool Game::LogIn() {
    client.LoadSpells(std::string(kResources) + "/sim/spells.tsv");
    client.LoginComplete();
    if (!Vars::Loaded) return false;
    Calm();
    return true;
}

Game::Game() {
    Install(client, documents, common_data);
    client.object(client.sheet.Character).Name = client.sheet.Name;
    client.object(client.sheet.Character).Coordinates = {12.3, -45.6};
    client.chat_listener = [this](const sim::Client::ChatLine& line) {
        if (!line.from_plugin) return;
        ++written;
        if (line.text.starts_with("<Ombrel> Error #")) reports.push_back(line.text);
    };
    client.Start();
}

void Game::Calm() {
    ControlHandler& controls = *Vars::ControlHandler;
    controls.Init_Lists(std::array{1, 1, 0, 1});
    for (const Box box : kBoxes) (controls.*box)->SetChecked(box == &ControlHandler::OutputMain);
    for (const auto edit : kEdits) (controls.*edit)->SetText("10");

    ChatTextHandler& chat = *Vars::ChatTextHandler;
    chat.ResetTargetList();
    for (std::int32_t window = 0; window < 5; ++window) chat.SetTargetList(window, chat_type::kOmbrel, window == 0);
    chat.SpellsCast.clear();
    chat.SpellsExpiring.clear();
    chat.templeEnlightenPending = chat.templeForgetPending = chat.showChatTypes = chat.expireFlag = false;
    Vars::DebugMode = Vars::DebugSilent = false;
    Vars::LastKillText = "Nothing was killed.";
    Vars::FilterHandler->FriendsCheck = Vars::FilterHandler->DevMode = false;
    Vars::EventQueue->Clear();
    Vars::EventQueue->autorun = false;
    Vars::CorpseHandler->Corpses.clear();
    Vars::SpellHandler->ItemSpells.clear();
    Vars::LogHandler->SetFileLogging(false);
    Vars::LogHandler->Log.clear();

    std::vector<host::Id> things;
    for (const auto& thing : client.objects()) {
        if (thing->id != client.sheet.Character) things.push_back(thing->id);
    }
    for (const host::Id thing : things) client.RemoveObject(thing);
    client.hooks = {};
    client.sheet.Level = 42;
    waited_ = 0;
    documents.Empty();
    Forget();
}

void Game::Forget() {
    written = 0;
    reports.clear();
}

bool Game::Hear(std::int32_t type, std::int32_t window, std::string_view text) {
    Forget();
    const bool eaten = client.ChatText(std::string(text) + "\n", type, window);
    Require(written < kMostLines, "a line brought forth thousands of others");
    return eaten;
}

void Game::EndCalmly() {
    Calm();
    Require(!Hear(2, 0, "Tom says, \"hello\""), "a plain line was eaten");
    Require(!client.ChatParser("hello there"), "a plain typed line was eaten");
    Require(written == 0, "a plain line brought forth others");
}

void Game::AddRule(const Statement& statement) {
    host::List& list = *Vars::ControlHandler->ChatCustom;
    const std::int32_t row = list.AddRow();
    list.SetData(0, row, true);
    list.SetData(1, row, std::string(statement[1]));
    list.SetData(2, row, std::string(statement[2]));
    list.SetData(3, row, std::string(statement[3]));
    list.SetData(4, row, Vars::ChatTextHandler->GetIconFromColor(statement[4]), 1);
    list.SetData(5, row, std::string(statement[5].empty() ? "None" : statement[5]));
    list.SetData(6, row, std::string(statement.From(6)));
}

bool Game::Do(const Statement& statement) {
    ControlHandler& controls = *Vars::ControlHandler;
    switch (statement.verb()) {
        case 'f': {
            host::List& list = *controls.ChatFilter;
            const std::int32_t row = list.AddRow();
            list.SetData(0, row, true);
            for (std::int32_t column = 1; column <= 3; ++column)
                list.SetData(column, row, std::string(statement[static_cast<std::size_t>(column)]));
            return true;
        }
        case 'r':
            AddRule(statement);
            return true;
        case 'a': {
            host::List& list = *controls.ChatAlias;
            const std::int32_t row = list.AddRow();
            list.SetData(0, row, true);
            list.SetData(1, row, std::string(statement[1]));
            list.SetData(2, row, std::string(statement.From(2)));
            return true;
        }
        case 'p': {
            host::List& list = *controls.ChatColor;
            const std::int32_t row = RowOf(list, statement, 1);
            list.SetData(0, row, true);
            list.SetData(2, row, std::string(statement[2]));
            list.SetData(3, row, Vars::ChatTextHandler->GetIconFromColor(statement[3]), 1);
            list.SetData(4, row, std::string(statement[4].empty() ? "None" : statement[4]));
            return true;
        }
        case 'o':
            controls.ChatOptions->SetData(0, RowOf(*controls.ChatOptions, statement, 1), true);
            return true;
        case 'b':
            (controls.*kBoxes[PlaceIn(statement, 1, kBoxes.size())])->SetChecked(true);
            return true;
        case 'e':
            (controls.*kEdits[PlaceIn(statement, 1, kEdits.size())])->SetText(statement.From(2));
            return true;
        case 'l': {
            const std::int32_t row = RowOf(*controls.ChatLogOptions, statement, 1);
            controls.ChatLogOptions->SetData(2, row, !statement[2].empty());
            controls.ChatLogOptions->SetData(4, row, !statement[3].empty());
            return true;
        }
        case 't':
            for (std::size_t field = 2; field < statement.size(); ++field)
                Vars::ChatTextHandler->SetTargetList(statement.Number(1, 0, 4), statement.Number(field, 0, 32), true);
            return true;
        case 'h': {
            sim::Object& thing = client.object(kFirstThing + statement.Number(1, 0, 99));
            thing.Name = statement[2];
            thing.Container = client.sheet.Character;
            thing.Long[0x0D000006] = statement.Number(3, 1);
            return true;
        }
        case 'n': {
            sim::Object& thing = client.object(kFirstThing + statement.Number(1, 0, 99));
            thing.Name = statement[2];
            thing.Type = statement.Number(3);
            return true;
        }
        case 'w': {
            const std::int64_t seconds = std::min<std::int64_t>(statement.Number(1, 0, 90), kLongestWait - waited_);
            waited_ += seconds;
            client.clock.Advance(std::chrono::seconds(seconds));
            return true;
        }
        case 'c':
            client.ObjectSelected(kFirstThing + statement.Number(1, 0, 99));
            return true;
        case 'k':
            client.sheet.Level = statement.Number(1);
            return true;
        default:
            return false;
    }
}

}  // namespace ombrel::fuzz
