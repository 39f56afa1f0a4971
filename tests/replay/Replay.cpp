#include "tests/replay/Replay.h"

#include <unistd.h>

#include "core/files.h"

namespace ombrel::sim {

namespace fs = std::filesystem;

ScratchFolder::ScratchFolder() {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    path = fs::temp_directory_path() /
           (std::string("ombrel-") + test->test_suite_name() + "-" + test->name() + "-" + std::to_string(getpid()));
    fs::remove_all(path);
    fs::create_directories(path / "documents");
    fs::create_directories(path / "common/Ombrel/Settings");
}

Replay::Replay(std::string_view trace) : recorder(out, client.clock, *Trace::Parse(trace)), player(client, &recorder) {
    const fs::path resources = test::SourceFolder() + "/resources";
    const fs::path settings = "Ombrel/Settings/Ombrel_Settings.xml";
    fs::copy_file(resources / settings, folder.path / "common" / settings);
    client.system.documents = (folder.path / "documents").string();
    client.system.common_data = (folder.path / "common").string();
    client.system.plugin_folder = resources.string();
    client.calls.listener = [this](const Call& call) { recorder.Call(call); };
}

Replay::~Replay() { client.calls.listener = nullptr; }

void Replay::Play(std::string_view session) {
    std::istringstream input{std::string(session)};
    SessionReader reader(input, "session");
    while (const auto record = reader.Next()) player.Play(*record);
}

void Replay::PlayStory(const std::string& name) {
    client.LoadSpells(test::SpellTablePath());
    Play(ReadFile(test::SourceFolder() + "/sessions/" + name + ".jsonl"));
}

std::string Replay::ReasonOf(std::string_view record) {
    try {
        Play(record);
    } catch (const SessionError& error) {
        return error.what();
    }
    return {};
}

std::vector<std::string> Replay::Output() {
    recorder.Flush();
    std::istringstream text(out.str());
    out.str({});
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);) lines.push_back(line);
    return lines;
}

std::string Replay::Last() {
    const auto lines = Output();
    return lines.empty() ? std::string() : lines.back();
}

Json Replay::Answer(std::string_view query) {
    Play(query);
    return Json::parse(Last());
}

}  // namespace ombrel::sim
