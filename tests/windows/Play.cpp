#include "tests/windows/Play.h"

#include <fmt/format.h>
#include <process.h>

#include <fstream>
#include <sstream>

#include "adapters/sim/SessionPlayer.h"
#include "adapters/sim/SessionReader.h"

namespace ombrel::standin {

namespace {

namespace fs = std::filesystem;

const fs::path& Source() {
    static const fs::path source = fs::absolute(OMBREL_SOURCE_DIR);
    return source;
}

std::string Content(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}

// Plays in a client whose plug-in is made already, or is yet to be.
std::string PlayIn(sim::Client& client, std::string_view session, const SetUp& set_up) {
    std::ostringstream out;
    sim::Recorder recorder(out, client.clock, *sim::Trace::Parse("all"));
    client.calls.listener = [&recorder](const sim::Call& call) { recorder.Call(call); };
    if (set_up) set_up(client);
    {
        sim::SessionPlayer player(client, &recorder);
        std::istringstream input{std::string(session)};
        sim::SessionReader reader(input, "session");
        while (const auto record = reader.Next()) player.Play(*record);
    }
    client.Terminate();
    client.calls.listener = nullptr;
    recorder.Flush();
    return out.str();
}

}  // namespace

fs::path DllPath() { return fs::absolute(OMBREL_DLL); }

std::string Evening() {
    std::istringstream lines(Content(Source() / "sessions" / "an-evening.jsonl"));
    std::string evening, line;
    while (std::getline(lines, line)) {
        if (line.find(R"("query": "hud")") == std::string::npos) evening += line + "\n";
    }
    return evening;
}

Played PlayItself(std::string_view session, const SetUp& set_up) {
    const Folders folders;
    sim::Client client;
    folders.GiveTo(client);
    std::string calls = PlayIn(client, session, set_up);
    return {std::move(calls), folders.Files()};
}

Played PlayDll(std::string_view session, const SetUp& set_up) {
    const Folders folders;
    const PluginDll dll(DllPath());
    std::string calls;
    {
        Framework framework(dll);
        folders.GiveTo(framework.client());
        calls = PlayIn(framework.client(), session, set_up);
    }
    return {std::move(calls), folders.Files()};
}

std::string Difference(const std::string& expected, const std::string& actual) {
    std::istringstream first(expected), second(actual);
    for (int number = 1;; ++number) {
        std::string a = "(end)", b = "(end)";
        const bool more = !!std::getline(first, a) | !!std::getline(second, b);
        if (!more) return {};
        if (a != b) return fmt::format("line {}\n  expected {}\n  got      {}", number, a, b);
    }
}

Folders::Folders() : root_(fs::temp_directory_path() / fmt::format("ombrel-windows-{}", _getpid())) {
    const fs::path settings = fs::path("Ombrel") / "Settings" / "Ombrel_Settings.xml";
    fs::remove_all(root_);
    fs::create_directories(root_ / "documents");
    fs::create_directories((root_ / "common" / settings).parent_path());
    fs::copy_file(Source() / "resources" / settings, root_ / "common" / settings);
}

Folders::~Folders() {
    std::error_code ignored;
    fs::remove_all(root_, ignored);
}

void Folders::GiveTo(sim::Client& client) const {
    client.system.documents = (root_ / "documents").string();
    client.system.common_data = (root_ / "common").string();
    client.system.plugin_folder = (Source() / "resources").string();
    client.LoadSpells((Source() / "resources" / "sim" / "spells.tsv").string());
}

std::map<std::string, std::string> Folders::Files() const {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(root_)) {
        if (entry.is_regular_file()) files[fs::relative(entry.path(), root_).string()] = Content(entry.path());
    }
    return files;
}

}  // namespace ombrel::standin
