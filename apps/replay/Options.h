// What ombrel-replay is told on its command line.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "adapters/sim/Recorder.h"

namespace ombrel::replay {

inline constexpr std::string_view kStandard = "-";  // standard input or output

// Paths are empty where the option is not given.
struct Options {
    std::vector<std::string> sessions;
    std::string documents;
    std::string common_data;
    std::string plugin_folder;
    std::string spells;
    std::string chat;
    std::string calls;
    std::string screenshot;
    bool transcript = false;
    sim::Trace trace;
};

// What a command line asks for, or the status with which the program ends at once, after it has said why.
struct CommandLine {
    bool run = false;
    int status = 0;
    Options options;
};
CommandLine ReadCommandLine(int count, char** arguments);

}  // namespace ombrel::replay
