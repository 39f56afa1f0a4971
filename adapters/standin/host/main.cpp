// ombrel-host: plays session files through the plug-in's DLL in the simulated client, as ombrel-replay does through the
// plug-in itself, and writes the same calls.
//   ombrel-host DLL --documents FOLDER --common-data FOLDER --plugin-folder FOLDER --spells FILE --calls FILE
//               [--trace KINDS] SESSION...

#include <fmt/format.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/sim/SessionPlayer.h"
#include "adapters/sim/SessionReader.h"
#include "adapters/standin/PluginDll.h"

namespace ombrel::standin {
namespace {

namespace fs = std::filesystem;

struct Options {
    std::vector<std::string> files;  // the DLL, then sessions
    std::map<std::string, std::string, std::less<>> named;

    const std::string& Get(std::string_view name) const {
        const auto found = named.find(name);
        if (found == named.end()) throw std::runtime_error(fmt::format("{} is missing", name));
        return found->second;
    }
    std::string Path(std::string_view name) const { return fs::absolute(Get(name)).string(); }
};

Options ReadOptions(int count, char** arguments) {
    Options options;
    for (int i = 1; i < count; ++i) {
        const std::string argument = arguments[i];
        if (!argument.starts_with("--")) {
            options.files.push_back(argument);
        } else if (++i < count) {
            options.named[argument] = arguments[i];
        }
    }
    if (options.files.size() < 2) throw std::runtime_error("a DLL and a session are wanted");
    return options;
}

// In the framework a control changes by the plug-in's hand, or by the player's with an event.
void CheckPlayable(const sim::Record& record) {
    const auto set = record.json.find("set");
    if (set != record.json.end() && *set == "control") throw sim::SessionError("no control changes in silence");
}

void Play(sim::SessionPlayer& player, const std::string& path) {
    std::ifstream input(path, std::ios::binary);
    if (!input) throw std::runtime_error(path + ": can't be opened");
    sim::SessionReader reader(input, path);
    try {
        while (const auto record = reader.Next()) {
            CheckPlayable(*record);
            player.Play(*record);
        }
    } catch (const sim::SessionError& error) {
        throw sim::SessionError(reader.Where() + ": " + error.what());
    }
}

void PlaySessions(const Options& options, const PluginDll& dll) {
    Framework framework(dll);
    sim::Client& client = framework.client();
    client.system.documents = options.Path("--documents");
    client.system.common_data = options.Path("--common-data");
    client.system.plugin_folder = options.Path("--plugin-folder");
    client.LoadSpells(options.Get("--spells"));

    sim::Trace trace;
    if (options.named.contains("--trace")) {
        const auto kinds = sim::Trace::Parse(options.Get("--trace"));
        if (!kinds) throw std::runtime_error("--trace: no kinds of call");
        trace = *kinds;
    }
    std::ofstream calls(options.Get("--calls"), std::ios::binary);
    sim::Recorder recorder(calls, client.clock, trace);
    client.calls.listener = [&recorder](const sim::Call& call) { recorder.Call(call); };
    {
        sim::SessionPlayer player(client, &recorder);
        for (std::size_t i = 1; i < options.files.size(); ++i) Play(player, options.files[i]);
    }
    recorder.Flush();
    client.calls.listener = nullptr;  // the client still speaks while it goes
}

void Run(const Options& options) {
    const Apartment apartment;
    const PluginDll dll(fs::absolute(options.files.front()));
    PlaySessions(options, dll);
    std::string complaints = TheLedger().Complaints();
    if (!dll.CanUnload()) complaints += "the DLL can't be unloaded\n";
    if (!complaints.empty()) throw std::runtime_error(complaints);
}

}  // namespace
}  // namespace ombrel::standin

int main(int count, char** arguments) {
    try {
        ombrel::standin::Run(ombrel::standin::ReadOptions(count, arguments));
        return 0;
    } catch (const std::exception& error) {
        fmt::print(stderr, "ombrel-host: {}\n", error.what());
        return 1;
    }
}
