#include "apps/workbench/Options.h"

#include <CLI/CLI.hpp>

namespace ombrel::workbench {

bool ReadCommandLine(int count, char** arguments, Options& options, int& status) {
    CLI::App app(
        "Ombrel in a window, without the game: a simulated client to try options and to change the plug-in in.");
    app.add_option("session", options.session, "Session file to play");
    app.add_option("--documents", options.documents, "Folder of the player's documents, where settings and logs are");
    app.add_option("--common-data", options.common_data,
                   "Common application data folder, where the default settings are");
    app.add_option("--plugin-folder", options.plugin_folder, "Folder with the view, the sounds and the defaults");
    app.add_option("--spells", options.spells, "Table of spells");
    app.add_option("--save", options.save, "Writes what happens, as it happens, into a session file");
    app.add_option("--picture", options.picture, "Writes a PNG picture of the window when it closes");
    app.add_option("--seconds", options.seconds, "Closes the window after so many seconds");
    app.add_option("--width", options.width, "Width of the window");
    app.add_option("--height", options.height, "Height of the window");
    app.add_flag("--frame-times", options.frame_times, "Draws all the time, and says what a frame takes");
    try {
        app.parse(count, arguments);
    } catch (const CLI::ParseError& error) {
        status = app.exit(error) == 0 ? 0 : 2;
        return false;
    }
    return true;
}

}  // namespace ombrel::workbench
