// A character in the simulated client's world. Most targets share one among all inputs of a process, so that an input
// costs what the plug-in makes of it and no login.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/sim/Client.h"
#include "fuzz/support/Script.h"

namespace ombrel::fuzz {

// A folder that goes with its object, in memory where the system has such a place.
class Folder {
public:
    Folder();
    ~Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    const std::filesystem::path& path() const { return path_; }
    void Empty() const;

private:
    std::filesystem::path path_;
};

std::string ReadWhole(const std::filesystem::path& file);  // empty for one that is missing
void WriteWhole(const std::filesystem::path& file, std::string_view content);

// A client whose player has those folders, and the default settings as they are installed.
void Install(sim::Client& client, const Folder& documents, const Folder& common_data);

class Game {
public:
    static Game& Shared();

    // A client of an input's own, where what is remembered from before would blur what it shows. The plug-in has
    // started, and waits for the login.
    Game();

    // Back to a character with the built-in options who has heard nothing yet.
    void Calm();

    // Carries out a statement about options or the world. False for any other.
    //   filter|WORD|Whole|Block            rule|PATTERN|WINDOWS|TYPE|COLOUR|SOUND|ACTION
    //   alias|ABBREVIATION|FULL TEXT       paint|ROW OF CHAT COLOURS|WINDOW|COLOUR|SOUND
    //   option|ROW OF CHAT OPTIONS         box|CHECK BOX
    //   edit|FIELD|TEXT                    log|ROW OF LOG CLASSES|VIEW|FILE
    //   target|WINDOW|TYPE...              have|ID|NAME|COUNT
    //   near|ID|NAME                       wait|SECONDS
    //   click|ID                           know|CHARACTER LEVEL
    bool Do(const Statement& statement);

    // The client shows a line; returns whether the plug-in ate it.
    bool Hear(std::int32_t type, std::int32_t window, std::string_view text);

    // Calms down for the next input, and fails unless a plain line, heard and typed, passes as without a plug-in.
    void EndCalmly();

    void Forget();  // what was written so far

    std::size_t written = 0;           // lines by the plug-in
    std::vector<std::string> reports;  // those that tell of a failure
    Folder documents, common_data;
    sim::Client client;

private:
    bool LogIn();
    void AddRule(const Statement& statement);

    std::int64_t waited_ = 0;  // seconds of this input
};

}  // namespace ombrel::fuzz
