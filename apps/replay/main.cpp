// ombrel-replay: plays session files through the plug-in in a simulated client.

#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

#include "adapters/sim/ChatFeed.h"
#include "adapters/sim/Client.h"
#include "adapters/sim/SessionPlayer.h"
#include "adapters/sim/SessionReader.h"
#include "adapters/sim/Transcript.h"
#include "adapters/sim/draw/HudScreen.h"
#include "apps/replay/Folders.h"
#include "apps/replay/Options.h"

namespace ombrel::replay {
namespace {

namespace fs = std::filesystem;

constexpr int kPlayed = 0;
constexpr int kFailed = 1;
constexpr int kWrongInput = 2;

constexpr const char* kDefaultSettings = "Ombrel/Settings/Ombrel_Settings.xml";
constexpr const char* kSpellTable = "sim/spells.tsv";

// An open file, or a standard stream for "-".
template <class File>
class Stream {
public:
    template <class Standard>
    Stream(const std::string& path, Standard& standard) : name_(path), stream_(&standard) {
        if (path == kStandard) return;
        file_.open(path, std::ios::binary | (std::is_same_v<File, std::ofstream> ? std::ios::out : std::ios::in));
        stream_ = &file_;
        if (!file_ || fs::is_directory(path)) throw sim::SessionError(path + ": can't be opened");
    }
    auto& operator*() { return *stream_; }
    const std::string& name() const { return name_; }
    bool standard() const { return name_ == kStandard; }

private:
    using Base = std::conditional_t<std::is_same_v<File, std::ofstream>, std::ostream, std::istream>;
    std::string name_;
    File file_;
    Base* stream_;
};
using Input = Stream<std::ifstream>;
using Output = Stream<std::ofstream>;

fs::path RootedPath(const fs::path& path) { return fs::absolute(path).lexically_normal(); }

sim::Colors ColorsOf(int stream) {
    const auto set = [](const char* name) {
        const char* value = std::getenv(name);
        return value && *value && std::string_view(value) != "0";
    };
    if (set("CLICOLOR_FORCE")) return sim::Colors::kAnsi;
    return !set("NO_COLOR") && isatty(stream) ? sim::Colors::kAnsi : sim::Colors::kPlain;
}

// The player's folders: those that are named, fresh ones for the rest.
class PlayerFolders {
public:
    explicit PlayerFolders(const Options& options, const fs::path& plugin_folder) {
        if (options.documents.empty() || options.common_data.empty()) temporary_.emplace();
        documents = options.documents.empty() ? Fresh("documents") : RootedPath(options.documents);
        if (!options.common_data.empty()) {
            common_data = RootedPath(options.common_data);
            return;
        }
        common_data = Fresh("common");
        const fs::path shipped = plugin_folder / kDefaultSettings;
        if (!fs::exists(shipped)) return;
        fs::create_directories((common_data / kDefaultSettings).parent_path());
        fs::copy_file(shipped, common_data / kDefaultSettings);
    }

    fs::path documents, common_data;

private:
    fs::path Fresh(const char* name) {
        const fs::path folder = temporary_->path() / name;
        fs::create_directory(folder);
        return folder;
    }

    std::optional<TemporaryFolder> temporary_;
};

// The client still speaks while it goes, when nobody listens any more.
struct Silence {
    sim::Client& client;
    ~Silence() {
        client.calls.listener = nullptr;
        client.chat_listener = nullptr;
    }
};

// What the player sees at the end. A session that ends the plug-in with its last record shows how it looked till then.
class Screenshot {
public:
    Screenshot(sim::Client& client, sim::HudScreen* screen) : client_(client), screen_(screen) {
        client.screen = screen;
        if (screen) client.last_moment = [this] { last_ = Show(); };
    }
    ~Screenshot() { client_.last_moment = nullptr; }
    Screenshot(const Screenshot&) = delete;
    Screenshot& operator=(const Screenshot&) = delete;

    void Write(const std::string& path) const {
        if (client_.initialized() || !last_)
            Show().Write(path);
        else
            last_->Write(path);
    }

private:
    sim::Picture Show() const { return screen_->Show(client_.hooks.Region3D); }

    sim::Client& client_;
    sim::HudScreen* screen_;
    std::optional<sim::Picture> last_;
};

void PlaySession(sim::SessionPlayer& player, Input& input, sim::Recorder* recorder) {
    sim::SessionReader reader(*input, input.standard() ? "standard input" : input.name());
    try {
        while (const auto record = reader.Next()) {
            player.Play(*record);
            if (recorder && input.standard()) recorder->Flush();  // somebody may be waiting for the answer
        }
    } catch (const sim::SessionError& error) {
        throw sim::SessionError(reader.Where() + ": " + error.what());
    }
}

void FeedChat(sim::Client& client, sim::SessionPlayer& player, sim::Recorder* recorder, Input& input, bool login) {
    player.Begin();
    if (login) client.LoginComplete();
    sim::ReadChatFile(*input, input.name(), [&](std::int32_t type, const std::string& text) {
        const bool status = type == sim::kStatusText;
        const bool eat = status ? client.StatusText(text) : client.ChatText(text, type, 0);
        if (recorder) {
            recorder->Result(status ? "ACHooks_StatusTextIntercept" : "ACHooks_ChatTextIntercept", "eat", eat);
        }
    });
}

int Run(const Options& options) {
    std::vector<std::unique_ptr<Input>> sessions;
    for (const std::string& path : options.sessions) sessions.push_back(std::make_unique<Input>(path, std::cin));
    std::optional<Input> chat;
    if (!options.chat.empty()) chat.emplace(options.chat, std::cin);
    std::optional<Output> calls;
    if (!options.calls.empty()) calls.emplace(options.calls, std::cout);

    const fs::path resources = Resources();
    const fs::path plugin_folder = options.plugin_folder.empty() ? resources : fs::path(options.plugin_folder);
    const PlayerFolders folders(options, plugin_folder);

    std::optional<sim::HudScreen> screen;
    if (!options.screenshot.empty()) screen.emplace();
    sim::Client client;
    const Screenshot screenshot(client, screen ? &*screen : nullptr);
    client.system.documents = folders.documents.string();
    client.system.common_data = folders.common_data.string();
    client.system.plugin_folder = RootedPath(plugin_folder).string();
    client.LoadSpells(options.spells.empty() ? (resources / kSpellTable).string() : options.spells);

    std::optional<sim::Recorder> recorder;
    if (calls) {
        recorder.emplace(**calls, client.clock, options.trace);
        client.calls.listener = [&recorder](const sim::Call& call) { recorder->Call(call); };
    }
    const bool beside = calls && calls->standard();
    sim::Transcript transcript(beside ? std::cerr : std::cout, ColorsOf(beside ? STDERR_FILENO : STDOUT_FILENO));
    if (options.transcript) {
        client.chat_listener = [&transcript](const sim::Client::ChatLine& line) { transcript.Show(line); };
    }

    const Silence at_end{client};

    sim::SessionPlayer player(client, recorder ? &*recorder : nullptr);
    if (options.transcript) player.note_listener = [&transcript](std::string_view text) { transcript.ShowNote(text); };
    for (const auto& session : sessions) PlaySession(player, *session, recorder ? &*recorder : nullptr);
    if (chat) FeedChat(client, player, recorder ? &*recorder : nullptr, *chat, options.sessions.empty());

    if (screen) screenshot.Write(options.screenshot);
    if (recorder) recorder->Flush();
    if (calls && !**calls) throw std::runtime_error(options.calls + ": can't be written");
    std::cout.flush();
    if (!std::cout) throw std::runtime_error("standard output can't be written");
    return kPlayed;
}

int Report(std::string reason, int status) {
    std::replace(reason.begin(), reason.end(), '\n', ' ');
    std::cout.flush();
    fmt::print(stderr, "ombrel-replay: {}\n", reason);
    return status;
}

int Main(int count, char** arguments) {
    std::ios::sync_with_stdio(false);
    const CommandLine line = ReadCommandLine(count, arguments);
    if (!line.run) return line.status;
    try {
        return Run(line.options);
    } catch (const sim::SessionError& error) {
        return Report(error.what(), kWrongInput);
    } catch (const std::exception& error) {
        return Report(error.what(), kFailed);
    }
}

}  // namespace
}  // namespace ombrel::replay

int main(int count, char** arguments) { return ombrel::replay::Main(count, arguments); }
