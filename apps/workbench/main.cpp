// ombrel-workbench: the plug-in in a window, without the game.

#include <fmt/format.h>

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <vector>

#include "adapters/sim/draw/HudScreen.h"
#include "apps/support/Resources.h"
#include "apps/workbench/Game.h"
#include "apps/workbench/Options.h"
#include "apps/workbench/Sounds.h"
#include "apps/workbench/Style.h"
#include "apps/workbench/Window.h"
#include "apps/workbench/Workbench.h"

namespace ombrel::workbench {
namespace {

namespace fs = std::filesystem;
using Moment = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds kTick(50);    // how often the game's clock is looked at
constexpr milliseconds kBeat(1000);  // how often the picture is drawn although nothing happens: the clock above it

constexpr const char* kDefaultSettings = "Ombrel/Settings/Ombrel_Settings.xml";

// Where the player's files are when nobody says: a folder that stays.
fs::path HomeFolder() {
    if (const char* data = std::getenv("XDG_DATA_HOME"); data && *data) return fs::path(data) / "ombrel";
    const char* home = std::getenv("HOME");
    return fs::path(home && *home ? home : ".") / ".local/share/ombrel";
}

std::string Rooted(const fs::path& path) {
    fs::create_directories(path);
    return fs::absolute(path).lexically_normal().string();
}

Folders FoldersOf(const Options& options) {
    const fs::path resources = Resources();
    Folders folders;
    folders.plugin_folder =
        fs::absolute(options.plugin_folder.empty() ? resources : fs::path(options.plugin_folder)).string();
    folders.documents = Rooted(options.documents.empty() ? HomeFolder() / "documents" : fs::path(options.documents));
    folders.common_data = Rooted(options.common_data.empty() ? HomeFolder() / "common" : fs::path(options.common_data));
    folders.spells = options.spells.empty() ? (resources / "sim/spells.tsv").string() : options.spells;
    folders.world = (resources / "sim/workbench.jsonl").string();
    const fs::path defaults = fs::path(folders.common_data) / kDefaultSettings;
    if (options.common_data.empty() && !fs::exists(defaults)) {
        fs::create_directories(defaults.parent_path());
        fs::copy_file(fs::path(folders.plugin_folder) / kDefaultSettings, defaults);
    }
    return folders;
}

double Milliseconds(Moment::duration time) { return std::chrono::duration<double, std::milli>(time).count(); }

// What frames take, beside frames with nothing in them: the window system and the renderer alone. Processor time
// counts all threads of the program; on a busy machine it says more than the clock on the wall.
class FrameTimes {
public:
    void Add(Moment::duration taken) {
        if (frames_++ == 0) {
            first_ = Moment::now();
            used_ = std::clock();
        }
        taken_ += taken;
    }

    void Tell(Window& window) const {
        constexpr int kEmpty = 60;
        const Moment::time_point end = Moment::now();
        const std::clock_t used = std::clock();
        for (int frame = 0; frame < kEmpty; ++frame) window.Draw([] {});
        const double empty = Milliseconds(Moment::now() - end) / kEmpty;
        const double empty_used = Used(std::clock() - used) / kEmpty;
        const double count = static_cast<double>(frames_);
        const double each = Milliseconds(taken_) / count, each_used = Used(used - used_) / count;
        fmt::print("first picture     {:6.0f} ms after the start\n", Milliseconds(first_ - kStarted));
        fmt::print("frames a second   {:6.0f}\n", count * 1000 / Milliseconds(end - first_));
        fmt::print("a frame           {:6.2f} ms, an empty one {:.2f} ms: {:.1f} times\n", each, empty, each / empty);
        fmt::print("  processor time  {:6.2f} ms, an empty one {:.2f} ms: {:.1f} times\n", each_used, empty_used,
                   each_used / empty_used);
    }

private:
    static double Used(std::clock_t time) { return static_cast<double>(time) * 1000 / CLOCKS_PER_SEC; }

    static inline const Moment::time_point kStarted = Moment::now();
    Moment::time_point first_;
    std::clock_t used_ = 0;
    Moment::duration taken_{};
    std::uint64_t frames_ = 0;
};

// Wakes up for the player, and for the game's clock; draws when there is something new to see.
void Live(Window& window, Game& game, Workbench& workbench, const Options& options) {
    const Moment::time_point start = Moment::now();
    Moment::time_point passed = start, drawn{};
    std::uint64_t changes = 0;
    FrameTimes times;
    while (window.Events(options.frame_times ? milliseconds(0) : kTick)) {
        const Moment::time_point now = Moment::now();
        game.Pass(now - passed);
        passed = now;
        if (window.stirred() || game.changes() != changes || now - drawn >= kBeat || options.frame_times) {
            changes = game.changes();
            drawn = now;
            window.Draw([&workbench] { workbench.Draw(); });
            times.Add(Moment::now() - now);
        }
        if (workbench.quit()) break;
        if (options.seconds > 0 && std::chrono::duration<double>(now - start).count() > options.seconds) break;
    }
    if (!options.picture.empty()) window.WritePicture(options.picture);
    if (options.frame_times) times.Tell(window);
}

void Run(const Options& options) {
    const Folders folders = FoldersOf(options);
    Window window("Ombrel workbench", options.width, options.height);
    ApplyStyle();
    Sounds sounds;
    sim::HudScreen screen;
    Game game(folders, &screen);
    game.sound = [&sounds](const std::string& path, bool loop, bool stop) {
        stop ? sounds.Stop(path) : sounds.Play(path, loop);
    };
    if (!options.save.empty()) game.KeepJournal(options.save);
    if (!options.session.empty() && !game.Play(options.session)) throw std::runtime_error(game.notice);
    Workbench workbench(game, screen, Sessions().string());
    Live(window, game, workbench, options);
    game.sound = nullptr;
}

}  // namespace
}  // namespace ombrel::workbench

int main(int count, char** arguments) {
    ombrel::workbench::Options options;
    int status = 0;
    if (!ombrel::workbench::ReadCommandLine(count, arguments, options, status)) return status;
    try {
        ombrel::workbench::Run(options);
        return 0;
    } catch (const std::exception& error) {
        fmt::print(stderr, "ombrel-workbench: {}\n", error.what());
        return 1;
    }
}
