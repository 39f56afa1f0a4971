// A session played in process, for tests of what goes in and what comes out.
#pragma once

#include <filesystem>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/sim/Client.h"
#include "adapters/sim/SessionPlayer.h"
#include "tests/support/Matchers.h"
#include "tests/support/SourceFolder.h"

namespace ombrel::sim {

// A folder of the test that is running, which goes at the end.
class ScratchFolder {
public:
    ScratchFolder();
    ~ScratchFolder() { std::filesystem::remove_all(path); }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    std::filesystem::path path;
};

class Replay {
public:
    explicit Replay(std::string_view trace = "chat,command,item,input,sound,vendor,hotkey,host");
    ~Replay();

    // Plays the records of a session, one a line.
    void Play(std::string_view session);

    // Plays a story of sessions/ with the simulated client's spells.
    void PlayStory(const std::string& name);

    // The reason for which a record is wrong, or nothing.
    std::string ReasonOf(std::string_view record);

    // What has come out since the last time, a line each.
    std::vector<std::string> Output();
    std::string Last();                   // the last line
    Json Answer(std::string_view query);  // to one query

    ScratchFolder folder;
    Client client;
    std::ostringstream out;
    Recorder recorder;
    SessionPlayer player;
};

}  // namespace ombrel::sim
