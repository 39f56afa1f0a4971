#include "adapters/sim/SessionPlayer.h"

#include <chrono>

#include "adapters/sim/SessionAnswers.h"
#include "adapters/sim/SessionControls.h"
#include "adapters/sim/SessionEvents.h"
#include "adapters/sim/SessionSets.h"
#include "adapters/sim/View.h"
#include "core/failure.h"
#include "core/files.h"

namespace ombrel::sim {
namespace {

constexpr std::string_view kViewFile = "/Ombrel_View.xml";

std::string_view TextOf(const Json& record, const char* field) {
    const auto value = record.find(field);
    return value == record.end() ? std::string_view() : std::string_view(value->get_ref<const std::string&>());
}

// Whether the record names a control of the view.
bool NamesControl(const Json& record) {
    const std::string_view query = TextOf(record, "query");
    return TextOf(record, "event") == "Control" || TextOf(record, "set") == "control" || query == "control" ||
           query == "list";
}

}  // namespace

SessionPlayer::SessionPlayer(Client& client, Recorder* recorder) : client_(client), recorder_(recorder) {}

SessionPlayer::~SessionPlayer() = default;

void SessionPlayer::Play(const Record& record) {
    CheckNow(record);
    if (record.kind == RecordKind::kEvent && TextOf(record.json, "event") != "Initialize") Begin();
    if (const auto at = record.json.find("at"); at != record.json.end()) client_.clock.AdvanceTo(Milliseconds(*at));
    try {
        Run(record);
    } catch (const Failure& failure) {
        throw SessionError(failure.description());
    }
}

void SessionPlayer::Begin() {
    if (begun_) return;
    begun_ = true;
    client_.Start();
    SetWaiting();
}

// What the format's tables can't tell: time, and the controls of the view.
void SessionPlayer::CheckNow(const Record& record) {
    const Json& json = record.json;
    const std::int64_t now = client_.clock.now();
    const std::int64_t moment = json.contains("at") ? Milliseconds(json["at"]) : now;
    if (moment < now) throw SessionError("the moment lies behind");
    if (json.contains("set") && json["set"] == "clock" && json.contains("now") && moment > 0) {
        throw SessionError("the clock has run: \"now\" is the moment of the session's start");
    }
    if (NamesControl(json)) CheckControl(client_.view() ? *client_.view() : Description(), json);
}

void SessionPlayer::Run(const Record& record) {
    switch (record.kind) {
        case RecordKind::kEvent:
            Event(record.json);
            break;
        case RecordKind::kSet:
            Set(record.json);
            break;
        case RecordKind::kAdvance:
            Advance(record.json);
            break;
        case RecordKind::kQuery:
            Query(record.json);
            break;
        case RecordKind::kFail:
            Fail(record.json);
            break;
        case RecordKind::kNote:
            if (recorder_) recorder_->Note(TextOf(record.json, "note"));
            if (note_listener) note_listener(TextOf(record.json, "note"));
            break;
    }
}

void SessionPlayer::Set(const Json& record) {
    const std::string_view what = TextOf(record, "set");
    if ((what == "control" || what == "view") && !client_.view()) {
        waiting_.push_back(record);
    } else {
        ApplySet(client_, record);
    }
}

void SessionPlayer::Event(const Json& record) {
    if (TextOf(record, "event") != "Initialize") {
        RaiseEvent(client_, recorder_, record);
    } else if (!begun_) {
        Begin();
    } else {
        client_.Initialize();
        SetWaiting();
    }
}

void SessionPlayer::SetWaiting() {
    if (!client_.view()) return;
    for (const Json& record : std::exchange(waiting_, {})) ApplySet(client_, record);
}

void SessionPlayer::Advance(const Json& record) {
    const milliseconds time(Milliseconds(record["advance"]));
    if (record.contains("stalled") && record["stalled"].get<bool>()) {
        client_.clock.Stall(time);
    } else {
        client_.clock.Advance(time);
    }
}

void SessionPlayer::Fail(const Json& record) {
    const std::int32_t times = record.contains("times") ? record["times"].get<std::int32_t>() : 1;
    const std::int32_t number = Word(record["number"]);
    const std::string_view description =
        record.contains("description") ? TextOf(record, "description") : FailureText(number);
    client_.calls.Fail(*FindOperation(TextOf(record, "fail")), times, number, std::string(description));
}

void SessionPlayer::Query(const Json& record) {
    if (!recorder_) return;
    const std::string_view query = TextOf(record, "query");
    const std::string_view name = TextOf(record, "name");
    recorder_->Answer(query, name, Answer(client_, query, name));
}

const SimView& SessionPlayer::Description() {
    if (!description_) {
        try {
            description_ = std::make_unique<SimView>(description_calls_,
                                                     ReadFile(client_.system.plugin_folder + std::string(kViewFile)));
        } catch (const Failure& failure) {
            throw SessionError("the options view can't be read: " + failure.description());
        }
    }
    return *description_;
}

}  // namespace ombrel::sim
