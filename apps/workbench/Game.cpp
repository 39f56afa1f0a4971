#include "apps/workbench/Game.h"

#include <fmt/chrono.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>

#include "core/files.h"

namespace ombrel::workbench {
namespace {

constexpr std::size_t kMostLines = 5'000;      // of a chat window, and of calls
constexpr std::size_t kMostRecords = 200'000;  // of a session that is kept
constexpr std::int32_t kSpeech = 2;            // chat type of what is said aloud

std::vector<sim::Record> ReadSession(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file || std::filesystem::is_directory(path)) throw sim::SessionError(path + ": can't be opened");
    sim::SessionReader reader(file, std::filesystem::path(path).filename().string());
    std::vector<sim::Record> records;
    while (auto record = reader.Next()) records.push_back(std::move(*record));
    return records;
}

std::string Today() {
    return fmt::format("{:%Y-%m-%dT%H:%M:%SZ}",
                       std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now()));
}

bool Write(const std::string& path, std::string_view content, std::string& notice) {
    try {
        SaveFile(path, content, Durability::kProcess);
        notice = "Saved " + path;
        return true;
    } catch (const std::exception& error) {
        notice = path + " can't be written: " + error.what();
    }
    return false;
}

// True when the oldest line had to go.
template <class Line>
bool Keep(std::deque<Line>& lines, Line line, std::size_t most = kMostLines) {
    lines.push_back(std::move(line));
    if (lines.size() <= most) return false;
    lines.pop_front();
    return true;
}

}  // namespace

Game::Game(Folders folders, host::RenderService* screen) : folders_(std::move(folders)), screen_(screen) { Begin(); }

Game::~Game() {
    life_->client.calls.listener = nullptr;
    life_->client.chat_listener = nullptr;
}

void Game::Start() {
    if (life_) {
        life_->client.calls.listener = nullptr;
        life_->client.chat_listener = nullptr;
        life_->player.reset();
    }
    life_.reset();  // before the next one: a process holds one plug-in
    chat = {};
    calls.clear();
    records_.clear();
    script_.reset();
    held_.clear();
    notice.clear();
    owed_ = 0;
    in_world_ = false;
    ++changes_;
    if (!journal_path_.empty()) KeepJournal(journal_path_);

    life_ = std::make_unique<Life>();
    sim::Client& client = life_->client;
    client.screen = screen_;
    client.system.documents = folders_.documents;
    client.system.common_data = folders_.common_data;
    client.system.plugin_folder = folders_.plugin_folder;
    client.LoadSpells(folders_.spells);
    result_recorder_ = std::make_unique<sim::Recorder>(results_, client.clock);
    call_recorder_ = std::make_unique<sim::Recorder>(call_, client.clock, *sim::Trace::Parse("all"));
    client.calls.listener = [this](const sim::Call& call) { Hear(call); };
    client.chat_listener = [this](const sim::Client::ChatLine& line) {
        ++changes_;
        if (line.window < 0 || line.window >= static_cast<std::int32_t>(chat.size())) return;
        ChatWindow& window = chat[static_cast<std::size_t>(line.window)];
        if (Keep(window.lines, ShownLine{line})) ++window.gone;
    };
    life_->player = std::make_unique<sim::SessionPlayer>(client, result_recorder_.get());
}

void Game::Begin() {
    Start();
    total_experience = kTotalAtFirst;
    unassigned_experience = kUnassignedAtFirst;
    prey_health = 1.0;
    Do({{"set", "clock"}, {"now", Today()}});
    for (const sim::Record& record : ReadSession(folders_.world)) Do(record.json);
}

void Game::Hear(const sim::Call& call) {
    const sim::Operation& operation = sim::Operations()[call.operation];
    if (operation.kind == sim::CallKind::kQuestion) return;
    ++changes_;
    const auto text = [&call](std::size_t index) {
        return std::string(std::get<std::string_view>(call.arguments[index].value));
    };
    if (sound && operation.kind == sim::CallKind::kSound && !call.failed) {
        if (operation.name == "sndPlaySound") sound(text(0), false, false);
        if (operation.name == "SoundPlay") sound(text(0), std::get<bool>(call.arguments[1].value), false);
        if (operation.name == "SoundStop" || operation.name == "SoundRelease") sound(text(0), false, true);
    }
    if (operation.kind == sim::CallKind::kDraw && !draw_calls) return;
    call_recorder_->Call(call);
    call_recorder_->Flush();
    std::string line = std::move(call_).str();
    call_.str({});
    if (!line.empty() && line.back() == '\n') line.pop_back();
    Keep(calls, CallLine{operation.kind, std::move(line)});
}

bool Game::PlayRecord(const sim::Record& record) {
    ++changes_;
    try {
        life_->player->Play(record);
    } catch (const sim::SessionError& error) {
        notice = error.what();
        return false;
    }
    if (const auto event = record.json.find("event"); event != record.json.end()) {
        if (*event == "Char_LoginComplete") in_world_ = true;
        if (*event == "Char_Logoff" || *event == "Terminate") in_world_ = false;
    }
    return true;
}

bool Game::Do(Json record, bool* eaten) {
    record["at"] = static_cast<double>(life_->client.clock.now()) / 1000.0;
    result_recorder_->Flush();
    results_.str({});
    try {
        if (!PlayRecord(sim::ParseRecord(record.dump()))) return false;
    } catch (const sim::SessionError& error) {
        notice = error.what();
        return false;
    }
    result_recorder_->Flush();
    if (eaten) *eaten = results_.str().find("\"eat\": true") != std::string::npos;
    AddRecord(record);
    return true;
}

void Game::Say(const std::string& line) {
    if (line.empty()) return;
    bool eaten = false;
    if (!Do({{"event", "ACHooks_ChatParserIntercept"}, {"text", line}}, &eaten) || eaten) return;
    const bool command = line.front() == '/' || line.front() == '@';
    Do({{"event", "ACHooks_ChatTextIntercept"},
        {"text",
         command ? fmt::format("Unknown command: {}\n", line.substr(1)) : fmt::format("You say, \"{}\"\n", line)},
        {"color", command ? 0 : kSpeech},
        {"window", 0}});
}

std::optional<std::string> Game::ClickLink(const std::string& text, host::Id id) {
    bool eaten = false;
    Do({{"event", "ACHooks_ChatClickIntercept"}, {"text", text}, {"id", id}}, &eaten);
    return eaten ? std::nullopt : std::optional(text);
}

void Game::Hold(const std::vector<int>& keys) {
    if (keys == held_) return;
    held_ = keys;
    Do({{"set", "keys"}, {"down", keys}});
}

void Game::Pass(std::chrono::duration<double> time) {
    if (paused) return;
    owed_ += std::clamp(time.count(), 0.0, 0.5) * 1000.0 * speed;
    const double whole = std::floor(owed_);
    if (whole < 1) return;
    owed_ -= whole;
    RunTo(life_->client.clock.now() + static_cast<std::int64_t>(whole));
}

void Game::Run(double seconds) {
    RunTo(life_->client.clock.now() + static_cast<std::int64_t>(std::llround(seconds * 1000.0)));
}

void Game::Step() {
    if (!script_ || script_->ended()) return Run(1);
    const std::size_t before = script_->next;
    while (script_ && !script_->ended() && script_->next == before) {
        const Json& json = script_->records[before].json;
        const std::int64_t at = json.contains("at") ? sim::Milliseconds(json["at"]) : script_->moment;
        const bool wait = json.contains("advance") && !json.contains("stalled");
        RunTo(std::max(life_->client.clock.now(), at + (wait ? sim::Milliseconds(json["advance"]) : 0)));
    }
}

void Game::RunTo(std::int64_t moment) {
    PlayDue(moment);
    if (moment > life_->client.clock.now()) life_->client.clock.AdvanceTo(moment);
}

void Game::PlayDue(std::int64_t moment) {
    while (script_ && !script_->ended()) {
        const sim::Record& record = script_->records[script_->next];
        if (record.json.contains("at"))
            script_->moment = std::max(script_->moment, sim::Milliseconds(record.json["at"]));
        const bool stalled = record.json.contains("stalled") && record.json["stalled"].get<bool>();
        if (record.kind == sim::RecordKind::kAdvance && !stalled) {
            script_->moment += sim::Milliseconds(record.json["advance"]);
            ++script_->next;
            continue;
        }
        if (script_->moment > moment) return;
        if (script_->moment > life_->client.clock.now()) life_->client.clock.AdvanceTo(script_->moment);
        if (record.kind == sim::RecordKind::kNote) notice = record.json["note"].get<std::string>();
        sim::Record now = record;
        now.json.erase("at");
        ++script_->next;
        PlayRecord(now);
        now.json["at"] = static_cast<double>(script_->moment) / 1000.0;
        AddRecord(now.json);
        script_->moment = std::max(script_->moment, life_->client.clock.now());
        if (script_->ended()) notice = script_->name + " has been played";
    }
}

bool Game::Play(const std::string& path) {
    Script script;
    try {
        script.records = ReadSession(path);
    } catch (const sim::SessionError& error) {
        notice = error.what();
        return false;
    }
    script.name = std::filesystem::path(path).filename().string();
    Start();
    script_ = std::move(script);
    paused = false;
    PlayDue(0);
    if (!client().plugin()) life_->player->Begin();
    return true;
}

void Game::AddRecord(const Json& record) {
    Keep(records_, record.dump(), kMostRecords);
    if (journal_.is_open() && !(journal_ << records_.back() << std::endl)) {
        journal_.close();
        notice = journal_path_ + " can't be written any more";
    }
}

void Game::KeepJournal(const std::string& path) {
    journal_path_ = path;
    journal_.close();
    journal_.clear();
    journal_.open(path, std::ios::binary | std::ios::trunc);
    for (const std::string& record : records_) journal_ << record << '\n';
    if (!journal_.flush()) throw std::runtime_error(path + " can't be written");
}

bool Game::Save(const std::string& path) {
    std::string content;
    for (const std::string& record : records_) content += record + '\n';
    return Write(path, content, notice);
}

bool Game::SaveCalls(const std::string& path, const std::function<bool(const CallLine&)>& wanted) {
    std::string content;
    for (const CallLine& call : calls) {
        if (wanted(call)) content += call.text + '\n';
    }
    return Write(path, content, notice);
}

}  // namespace ombrel::workbench
