#include "tests/support/PluginTest.h"

#include <fmt/format.h>

#include <filesystem>
#include <ostream>
#include <sstream>
#include <type_traits>
#include <variant>

#include "core/APluginCore.h"
#include "core/Hub.h"

namespace ombrel::test {

namespace {

const std::string kResources = SourceFolder() + "/resources";
constexpr std::string_view kErrorLog = "Asheron's Call/Ombrel Errors.txt";

std::string Printed(const sim::Value& value) {
    return std::visit(
        [](const auto& v) -> std::string {
            if constexpr (std::is_same_v<std::decay_t<decltype(v)>, host::Rect>) {
                return fmt::format("[{}, {}, {}, {}]", v.left, v.top, v.right, v.bottom);
            } else {
                return fmt::format("{}", v);
            }
        },
        value);
}

std::string Printed(const sim::Call& call) {
    std::string text(sim::Operations()[call.operation].name);
    for (const sim::Argument& argument : call.arguments) {
        text += fmt::format(" {}={}", argument.name, Printed(argument.value));
    }
    return text;
}

}  // namespace

void PrintTo(const Line& line, std::ostream* out) {
    *out << '"' << line.text << "\" in colour " << line.color << ", window " << line.window;
}

GameSession::GameSession() {
    client.system.documents = documents.path().string();
    client.system.common_data = common_data.path().string();
    client.system.plugin_folder = kResources;

    // As the installer leaves it.
    constexpr const char* kSettings = "Ombrel/Settings/Ombrel_Settings.xml";
    std::filesystem::create_directories((common_data.path() / kSettings).parent_path());
    std::filesystem::copy_file(std::filesystem::path(kResources) / kSettings, common_data.path() / kSettings);

    client.sheet.Server = "Frostfell";
    client.sheet.Name = "Aldra";
    client.sheet.Character = 0x50000A01;
    client.sheet.Level = 42;
    client.sheet.Health = client.sheet.Stamina = client.sheet.Mana = 100;
    client.sheet.Vital = {{2, 100}, {4, 100}, {6, 100}};
    client.object(client.sheet.Character).Name = client.sheet.Name;

    client.chat_listener = [this](const sim::Client::ChatLine& line) {
        if (line.from_plugin) {
            lines.push_back({std::string(line.text), line.color, line.window});
        } else {
            shown.emplace_back(line.text);
        }
    };
    client.calls.listener = [this](const sim::Call& call) { calls.push_back(Printed(call)); };

    // A log that an earlier test could not write stays closed for the process.
    ErrorLogBusy = false;
    DebugLogBusy = false;
}

GameSession::~GameSession() = default;

void GameSession::Start() { client.Start(); }

void GameSession::LogIn() {
    if (!client.plugin()) Start();
    client.LoginComplete();
}

void GameSession::HaveSound(std::string_view file) {
    if (client.system.plugin_folder == kResources) {
        std::filesystem::copy(kResources, plugin_folder.path(), std::filesystem::copy_options::recursive);
        client.system.plugin_folder = plugin_folder.path().string();
    }
    plugin_folder.Write("Sounds/" + std::string(file), "RIFF");
}

sim::Object& GameSession::Carry(host::Id id, const std::string& name) {
    sim::Object& thing = client.object(id);
    thing.Name = name;
    thing.Container = client.sheet.Character;
    return thing;
}

std::vector<std::string> GameSession::Texts() const {
    std::vector<std::string> texts;
    for (const Line& line : lines) texts.push_back(line.text);
    return texts;
}

std::vector<std::string> GameSession::CallsOf(std::string_view name) const {
    std::vector<std::string> found;
    for (const std::string& call : calls) {
        if (call.starts_with(name)) found.push_back(call);
    }
    return found;
}

testing::AssertionResult GameSession::CalledInOrder(std::initializer_list<std::string_view> texts) const {
    auto call = calls.begin();
    for (const std::string_view text : texts) {
        while (call != calls.end() && call->find(text) == std::string::npos) ++call;
        if (call == calls.end()) {
            return testing::AssertionFailure()
                   << "'" << text << "' is missing at its place in " << testing::PrintToString(calls);
        }
        ++call;
    }
    return testing::AssertionSuccess();
}

void GameSession::Forget() {
    lines.clear();
    shown.clear();
    calls.clear();
}

void GameSession::FailNext(std::string_view operation, std::int32_t number) {
    client.calls.Fail(sim::FindOperation(operation).value(), 1, number, "made to fail");
}

std::vector<std::string> GameSession::TakeReports() {
    std::vector<std::string> reports;
    std::istringstream log(documents.Read(kErrorLog));
    for (std::string line; std::getline(log, line);) {
        if (line.ends_with('\r')) line.pop_back();
        if (line.starts_with("Error #")) reports.push_back(line);
    }
    std::filesystem::remove(documents.path() / kErrorLog);
    return reports;
}

void PluginTest::TearDown() {
    client.Terminate();
    EXPECT_THAT(TakeReports(), testing::IsEmpty()) << "reports that the test did not expect";
}

}  // namespace ombrel::test
