#include "apps/replay/Options.h"

#include <fmt/format.h>

#include <CLI/CLI.hpp>

namespace ombrel::replay {
namespace {

constexpr int kWrongCommandLine = 2;
constexpr const char* kAbout =
    "Plays session files through the plug-in in a simulated client, and writes what the plug-in does.\n"
    "Several sessions are played one after another in one client. \"-\" reads standard input.";
constexpr const char* kStatuses =
    "Ends with 0 when the whole session was played, 1 when the program failed, 2 when the command line or a session is "
    "wrong.\nColours follow NO_COLOR and CLICOLOR_FORCE.";

}  // namespace

CommandLine ReadCommandLine(int count, char** arguments) {
    CommandLine line;
    Options& options = line.options;
    std::string trace;

    CLI::App app(kAbout, "ombrel-replay");
    app.footer(kStatuses);
    app.add_option("SESSION", options.sessions, "session files, JSON Lines");
    app.add_option("--documents", options.documents, "the player's documents; otherwise a fresh temporary folder");
    app.add_option("--common-data", options.common_data,
                   "application data of all users; otherwise a fresh temporary folder with the default settings");
    app.add_option("--plugin-folder", options.plugin_folder,
                   "the folder of the plug-in's own file: view description, sounds, default settings")
        ->check(CLI::ExistingDirectory);
    app.add_option("--spells", options.spells, "spell table, tab separated with a header line")
        ->check(CLI::ExistingFile);
    app.add_option("--chat", options.chat, "chat lines to feed after the session: chat type, tab, text");
    app.add_option("--calls", options.calls, "where the calls to the host go, JSON Lines; - is standard output");
    auto* transcript =
        app.add_flag("--transcript,!--no-transcript", options.transcript,
                     "print what a player reads in the chat windows; on unless --calls is -, beside which "
                     "it goes to standard error");
    app.add_option(
        "--trace", trace,
        "kinds of call to write: chat,command,item,input,sound,vendor,hotkey,host,draw or all; otherwise all "
        "but draw");
    app.add_option("--screenshot", options.screenshot, "picture of the 3D area with the HUDs at the end, PNG");
    for (CLI::Option* option : app.get_options()) {
        if (option->get_items_expected_max() == 1 && option->nonpositional())
            option->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    }

    try {
        app.parse(count, arguments);
        if (!trace.empty()) {
            const auto kinds = sim::Trace::Parse(trace);
            if (!kinds) throw CLI::ValidationError("--trace", "no kinds of call: " + trace);
            options.trace = *kinds;
        }
        if (options.sessions.empty() && options.chat.empty()) throw CLI::RequiredError("a session or --chat");
        if (transcript->count() == 0) options.transcript = options.calls != kStandard;
        line.run = true;
    } catch (const CLI::Success& success) {
        line.status = app.exit(success);
    } catch (const CLI::Error& error) {
        fmt::print(stderr, "ombrel-replay: {}\n", error.what());
        line.status = kWrongCommandLine;
    }
    return line;
}

}  // namespace ombrel::replay
