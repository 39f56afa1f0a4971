// What ombrel-workbench is told on its command line.
#pragma once

#include <string>

namespace ombrel::workbench {

struct Options {
    std::string documents, common_data, plugin_folder, spells;
    std::string session;  // played at the start
    std::string save;     // where what happens goes, as a session
    std::string picture;  // of the window, written before it closes
    double seconds = 0;   // after which it closes by itself; 0: when the player does
    bool frame_times = false;
    int width = 1360, height = 860;
};

// Nothing when the program is to end at once, with that status.
bool ReadCommandLine(int count, char** arguments, Options& options, int& status);

}  // namespace ombrel::workbench
