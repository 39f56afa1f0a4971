// The simulated client as somebody plays it: what they do becomes records of a session, played at once and kept.
#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <deque>
#include <fstream>
#include <functional>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/sim/Client.h"
#include "adapters/sim/Recorder.h"
#include "adapters/sim/SessionPlayer.h"
#include "adapters/sim/SessionReader.h"

namespace ombrel::workbench {

using sim::Json;

// Where everything lies. The player's two folders are those that the plug-in in the game uses.
struct Folders {
    std::string documents;
    std::string common_data;
    std::string plugin_folder;
    std::string spells;  // table of spells
    std::string world;   // session file: the world that a new game begins with
};

// A line in a chat window, and the room that it takes there once it has been laid out.
struct ShownLine {
    sim::Client::ChatLine line;
    float width = 0, height = 0;
};

struct ChatWindow {
    std::deque<ShownLine> lines;
    std::size_t gone = 0;  // lines that have left at the top
};

struct CallLine {
    sim::CallKind kind;
    std::string text;  // as a session's output has it
};

// A session file at play.
struct Script {
    std::string name;
    std::vector<sim::Record> records;
    std::size_t next = 0;
    std::int64_t moment = 0;  // session milliseconds that its records have come to

    bool ended() const { return next == records.size(); }
};

class Game {
public:
    // The plug-in's displays are drawn on the screen, which must outlive the game. Throws std::exception when a file
    // that it lives on is missing or wrong.
    Game(Folders folders, host::RenderService* screen);
    ~Game();

    const Folders& folders() const { return folders_; }
    sim::Client& client() { return life_->client; }
    bool in_world() const { return in_world_; }

    // The experience in the world's session file.
    static constexpr std::int64_t kTotalAtFirst = 25'600'000, kUnassignedAtFirst = 1'234'567;

    // A new life of client and plug-in, over the same files of the player.
    void Begin();

    // Plays a record now. False when it could not be played; `notice` says why then. `eaten`: what the plug-in gave
    // back.
    bool Do(Json record, bool* eaten = nullptr);

    // A line typed into the chat box: a command, or something to say.
    void Say(const std::string& line);
    // A click on a link in the chat. The name to tell something to, when the plug-in wants no part of it.
    std::optional<std::string> ClickLink(const std::string& text, host::Id id);
    // Keys that are held while the mouse is at work in the 3D area.
    void Hold(const std::vector<int>& keys);

    // Time. It passes as fast as the player's, times `speed`.
    void Pass(std::chrono::duration<double> time);
    void Run(double seconds);  // at once
    void Step();               // to the next record of the session at play, or a second on
    bool paused = false;
    double speed = 1.0;

    // A session file instead of a game of one's own: a new life, in which its records come at their moments.
    bool Play(const std::string& path);
    const std::optional<Script>& script() const { return script_; }

    // What has been done so far, as a session file. False when it can't be written; `notice` says why.
    bool Save(const std::string& path);
    // From now on, and from the begin of each new game, the file holds every record as soon as it is played: what led
    // to a crash is in it. Throws std::runtime_error when it can't be written.
    void KeepJournal(const std::string& path);
    bool SaveCalls(const std::string& path, const std::function<bool(const CallLine&)>& wanted);

    std::array<ChatWindow, 6> chat;  // by the client's number: 1 is the main one
    std::deque<CallLine> calls;
    bool draw_calls = false;  // keep those that draw, too
    std::string notice;       // the last thing that went wrong or was done, in a line

    // What the world knows of the character's progress and of the prey's health, 0 to 1.
    std::int64_t total_experience = kTotalAtFirst, unassigned_experience = kUnassignedAtFirst;
    double prey_health = 1.0;

    // Hears of sounds: the file, and whether it loops; without a file it stops.
    std::function<void(const std::string& path, bool loop, bool stop)> sound;

    std::uint64_t changes() const { return changes_; }  // grows with all that may look different

private:
    struct Life {
        sim::Client client;
        std::unique_ptr<sim::SessionPlayer> player;
    };

    void Start();
    void Hear(const sim::Call& call);
    void RunTo(std::int64_t moment);
    void PlayDue(std::int64_t moment);
    bool PlayRecord(const sim::Record& record);
    void AddRecord(const Json& record);

    Folders folders_;
    host::RenderService* screen_;
    std::ostringstream results_, call_;
    std::unique_ptr<sim::Recorder> result_recorder_, call_recorder_;
    std::unique_ptr<Life> life_;
    std::deque<std::string> records_;
    std::string journal_path_;
    std::ofstream journal_;
    std::optional<Script> script_;
    std::vector<int> held_;
    double owed_ = 0;  // milliseconds of play that have not passed yet
    bool in_world_ = false;
    std::uint64_t changes_ = 0;
};

}  // namespace ombrel::workbench
