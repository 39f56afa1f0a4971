// Session files: any bytes are either played, or refused with a reason.
#include <cstdint>
#include <optional>
#include <sstream>
#include <string>

#include "adapters/sim/Client.h"
#include "adapters/sim/Recorder.h"
#include "adapters/sim/SessionPlayer.h"
#include "adapters/sim/SessionReader.h"
#include "fuzz/support/Game.h"

namespace ombrel::fuzz {
namespace {

constexpr std::size_t kLongest = 20'000;

// Of the session's time. A session may well last for days; here it ends before it takes long.
constexpr double kMostSeconds = 200.0;

// Whether a record would take the clock further than that.
bool IsLong(const sim::Json& record, double now) {
    const double from = record.contains("at") ? record["at"].get<double>() : now;
    return from + (record.contains("advance") ? record["advance"].get<double>() : 0.0) > kMostSeconds;
}

void Play(std::string_view session) {
    static const Folder documents, common_data;
    documents.Empty();
    common_data.Empty();

    sim::Client client;
    Install(client, documents, common_data);
    std::ostringstream calls;
    sim::Recorder recorder(calls, client.clock, sim::Trace::Parse("all").value());
    client.calls.listener = [&](const sim::Call& call) { recorder.Call(call); };

    std::istringstream input{std::string(session)};
    sim::SessionReader reader(input, "session");
    sim::SessionPlayer player(client, &recorder);
    try {
        while (const auto record = reader.Next()) {
            if (IsLong(record->json, static_cast<double>(client.clock.now()) / 1000)) break;
            player.Play(*record);
        }
    } catch (const sim::SessionError& error) {
        Require(*error.what() != '\0', "refused without a reason");
    }
    client.calls.listener = nullptr;
}

}  // namespace
}  // namespace ombrel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace ombrel::fuzz;
    if (size <= kLongest) Play(TextOf(data, size));
    return 0;
}
