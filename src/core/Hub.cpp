#include "core/Hub.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "chat/ChatTextHandler.h"
#include "config/ControlHandler.h"
#include "core/FilterHandler.h"
#include "core/Vars.h"
#include "core/convert.h"
#include "core/failure.h"
#include "core/files.h"
#include "core/time.h"
#include "host/Platform.h"

namespace ombrel {

bool ErrorLogBusy = false;
bool DebugLogBusy = false;

namespace {

constexpr std::string_view kTitle = "Ombrel v1.1.0";
constexpr std::string_view kLogFolder = "\\Asheron's Call\\";

// Set while an error is on its way to chat: what fails on that way goes to the file alone.
bool chat_busy = false;

int report_depth = 0;

host::Point click_point;  // where the last click went, on the screen

class [[nodiscard]] Busy {
public:
    explicit Busy(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
    ~Busy() { flag_ = before_; }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

private:
    bool& flag_;
    bool before_;
};

// The trap of the chat writers, which don't tell of their own failures in chat.
void ReportFailureToFile(std::string_view procedure) noexcept {
    const Busy busy(chat_busy);
    ReportFailure(procedure, "!Hub");
}

std::string VersionLine() { return fmt::format("{} ({})", kTitle, FormatGeneralDate(NowDate())); }

// The flag of a log that could not be written stays set, so that a full disk is told of once and not with each line.
void WriteLog(bool& busy, std::string_view file, const std::string& lines, std::string_view heading) {
    busy = true;
    AppendFile(fmt::format("{}{}{}", GetMyDoc(), kLogFolder, file), lines, heading);
    busy = false;
}

void WriteDebugLog(std::string_view text) noexcept try {
    if (DebugLogBusy) return;
    WriteLog(DebugLogBusy, "Ombrel Debug.txt", fmt::format("{} - {}\r\n", VersionLine(), text), {});
} catch (...) {
    ReportFailureToFile("wtcw_debug");
}

void WriteErrorLog(std::string_view message, std::string_view description) noexcept try {
    if (ErrorLogBusy) return;
    const auto rule = std::string(80, '-') + "\r\n";
    auto block = fmt::format("{}\r\n{}\r\n", VersionLine(), message);
    if (!description.empty()) block.append(description).append("\r\n");
    WriteLog(ErrorLogBusy, "Ombrel Errors.txt", block + rule, rule);
} catch (...) {
    ReportFailure("ErrorReport", "!Hub");
}

std::string ReportMessage(std::string_view procedure, std::string_view object, std::int32_t number, std::int32_t line) {
    std::string_view kind = "class";
    if (object.starts_with('!')) kind = "module";
    if (object.starts_with('@')) kind = "form";
    if (kind != "class") object.remove_prefix(1);
    auto message = fmt::format("Error #{} occured in '{}' of {} '{}'", number, procedure, kind, object);
    if (line > 0) message += fmt::format(" at line {}", line);
    return message;
}

}  // namespace

void wtcw_raw(std::string_view text) try {
    if (Vars::ChatTextHandler) Vars::ChatTextHandler->IncomingText(text, chat_type::kOmbrel, 0, true, false);
} catch (...) {
    ReportFailureToFile("wtcw_raw");
}

void wtcw(std::string_view text) try { wtcw_raw(fmt::format("<Ombrel> {}", text)); } catch (...) {
    ReportFailureToFile("wtcw");
}

void wtcw_error(std::string_view text) try {
    if (!Vars::FilterHandler) return;
    Vars::FilterHandler->WriteToChatWindow(fmt::format("<Ombrel> {}", text), chat_type::kError, 1);
} catch (...) {
    ReportFailureToFile("wtcw_error");
}

void wtcw_debug(std::string_view text) try {
    if (!Vars::DebugMode) return;
    WriteDebugLog(text);
    if (!Vars::FilterHandler || Vars::DebugSilent) return;
    Vars::FilterHandler->WriteToChatWindow(fmt::format("<Ombrel-Debug> {}", text), chat_type::kOmbrel, 1);
} catch (...) {
    ReportFailureToFile("wtcw_debug");
}

void ErrorReport(std::string_view procedure, std::string_view object, std::int32_t number, std::string_view description,
                 std::int32_t line) noexcept try {
    // A report, the failure of its chat line, and that of its log: what fails beyond that says nothing new.
    const DepthGuard depth(report_depth, 3);
    const auto message = ReportMessage(procedure, object, number, line);
    if (procedure != "Debug" && !chat_busy && Vars::ChatTextHandler) {
        const Busy busy(chat_busy);
        wtcw_error(message);
    }
    if (Vars::DebugMode) WriteDebugLog(fmt::format("{}, {}", message, description));
    WriteErrorLog(message, description);
} catch (...) {
    // There is nobody left to tell.
}

namespace {

constexpr std::string_view kInvalidFolder = "Folder Not Valid on this OS";

std::string SystemFolder(std::int32_t id) {
    constexpr std::uint32_t kMissing = 1;
    const auto folder = Vars::Platform->SHGetFolderPath(id);
    if (folder.status == kMissing) return "Folder Does Not Exist";
    const auto path = folder.path.substr(0, folder.path.find('\0'));
    return std::string(folder.status == 0 && !path.empty() ? std::string_view(path) : kInvalidFolder);
}

}  // namespace

std::string GetMyDoc() try { return SystemFolder(host::folder::kDocuments); } catch (...) {
    ReportFailure("GetMyDoc", "!Hub");
    return std::string(kInvalidFolder);
}

std::string GetDataFolder() try { return SystemFolder(host::folder::kCommonData); } catch (...) {
    ReportFailure("GetDataFolder", "!Hub");
    return std::string(kInvalidFolder);
}

std::string ProgramPath() { return Vars::Platform->ProgramPath(); }

double RoundUp(double x) { return -std::floor(-x); }

double RoundDown(double x) { return std::floor(x); }

double SignOf(double x) { return x > 0.0 ? 1.0 : x < 0.0 ? -1.0 : 0.0; }

double FMod(double a, double b) {
    if (b == 0.0) throw Failure(failure::kDivisionByZero);
    const double rest = a - std::floor(a / b) * b;
    return SignOf(a) == SignOf(b) ? rest : rest - b;
}

namespace {

// The fields of a time span. One that is zero may stand below it.
struct TimeFields {
    double days, hours, minutes, seconds;
};

std::string TimeInWords(const TimeFields& time) {
    const bool days = time.days > 0;
    const bool hours = days || time.hours > 0;
    const bool minutes = hours || time.minutes > 0;
    const bool seconds = minutes || time.seconds > 0;
    std::string text;
    if (days) text += fmt::format("{:.0f} Days, ", time.days);
    if (hours) text += fmt::format("{:.0f} Hours, ", time.hours);
    if (minutes) text += fmt::format("{:.0f} Minutes, ", time.minutes);
    if (seconds) text += fmt::format("{:.0f} Seconds", time.seconds);
    return text;
}

std::string TimeAsClock(const TimeFields& time, bool compact, bool full) {
    std::string text;
    if (time.hours > 0) {
        text += compact ? fmt::format("{:.0f}:", time.hours) : fmt::format("{:02.0f}:", time.hours);
    } else if (full) {
        text += "00:";
    }
    if (time.minutes > 0) {
        text += fmt::format("{:02.0f}:", time.minutes);
    } else if (full || time.hours > 0) {
        text += "00:";
    }
    if (time.seconds > 0) {
        text += fmt::format("{:02.0f}", time.seconds);
    } else if (full || time.minutes > 0 || time.hours > 0) {
        text += "00";
    }
    return text;
}

}  // namespace

std::string ConvTime(double seconds, std::int32_t style, bool showSign) try {
    constexpr std::int32_t kCompact = 0;
    constexpr std::int32_t kFull = 1;
    constexpr std::int32_t kWords = 10;

    const bool negative = showSign && seconds < 0;
    if (negative) seconds = -seconds;
    const TimeFields time = {
        .days = std::floor(seconds / 60 / 60 / 24),
        .hours = FMod(std::floor(seconds / 60 / 60), 24),
        .minutes = FMod(std::floor(seconds / 60), 60),
        .seconds = FMod(std::floor(seconds), 60),
    };
    if (style == kWords) return TimeInWords(time);
    return (negative ? "-" : "") + TimeAsClock(time, style == kCompact, style == kFull);
} catch (...) {
    ReportFailure("ConvTime", "!Hub");
    return {};
}

std::string FormatCount(double value, bool allowInfinite) try {
    if (value == -1 && allowInfinite) return "Infinate";
    auto text = FormatFixed(value, 0);
    const std::size_t first = text.starts_with('-') ? 1 : 0;
    for (auto at = text.size(); at > first + 3;) {
        at -= 3;
        text.insert(at, 1, ',');
    }
    return text;
} catch (...) {
    ReportFailure("FormatCount", "!Hub");
    return {};
}

namespace {

struct HudColor {
    std::string_view name;
    std::uint32_t rgb;
    std::int32_t icon;
};

constexpr HudColor kHudColors[] = {
    {"White", 0xFFFFFF, 101},       {"Grey", 0xC0C0C0, 115},         {"Black", 0x000000, 116},
    {"Red", 0xFF0000, 117},         {"Light Red", 0xFF9999, 118},    {"Blue", 0x4040FF, 119},
    {"Light Blue", 0x80FFFF, 120},  {"Turquoise", 0x00C0C0, 121},    {"Green", 0x00AF00, 122},
    {"Light Green", 0x00FF00, 123}, {"Yellow", 0xFFFF00, 124},       {"Dark Yellow", 0xC0C000, 125},
    {"Purple", 0xFF00FF, 126},      {"Light Purple", 0xFFA4FF, 127}, {"Pink", 0xFFC0C0, 128},
    {"Peach", 0xFFE5B4, 129},       {"Orange", 0xFF8000, 130},       {"Light Orange", 0xFFC488, 131},
};

constexpr const HudColor& kWhite = kHudColors[0];

// By the step from clear to opaque, which comes after these.
constexpr std::uint32_t kAlphas[] = {0x00, 0x1A, 0x33, 0x4D, 0x66, 0x80, 0x99, 0xB3, 0xCC, 0xE6};

template <class Key>
const HudColor& FindColor(Key HudColor::*key, Key value) {
    const auto* found = std::find_if(std::begin(kHudColors), std::end(kHudColors),
                                     [&](const HudColor& row) { return row.*key == value; });
    return found == std::end(kHudColors) ? kWhite : *found;
}

std::int32_t MakeColor(std::uint32_t alpha, std::uint32_t rgb) { return static_cast<std::int32_t>(alpha << 24 | rgb); }

}  // namespace

std::int32_t ConvertColor(std::string_view name, std::int32_t alpha) try {
    const bool opaque = alpha < 0 || alpha >= std::ssize(kAlphas);
    return MakeColor(opaque ? 0xFF : kAlphas[alpha], FindColor(&HudColor::name, name).rgb);
} catch (...) {
    ReportFailure("ConvertColor", "FilterHandler");
    return 0;
}

std::int32_t GetHUDOutlineColor(std::string_view name) try {
    return MakeColor(0xFF, name == "Black" ? 0xFFFFFF : 0x000000);
} catch (...) {
    ReportFailure("GetHUDOutlineColor", "FilterHandler");
    return 0;
}

std::int32_t GetColorFromIcon(std::string_view name) try { return FindColor(&HudColor::name, name).icon; } catch (...) {
    ReportFailure("GetColorFromIcon", "ChatTextHandler");
    return 0;
}

std::string_view GetColorFromHUDIcon(std::int32_t icon) try {
    return FindColor(&HudColor::icon, icon).name;
} catch (...) {
    ReportFailure("GetColorFromHUDIcon", "ChatTextHandler");
    return {};
}

namespace {

constexpr std::string_view kSoundFolder = "\\Sounds\\";

// Fills choices with "None" and the wave files of a folder.
template <std::size_t N>
void FillSounds(const std::string& folder, const std::array<Ref<host::Choice> ControlHandler::*, N>& choices) {
    const auto files = ListFiles(folder, ".wav");
    for (const auto member : choices) (*Vars::ControlHandler.*member)->Clear();
    const auto add = [&choices](std::string_view name) {
        for (const auto member : choices) (*Vars::ControlHandler.*member)->Add(name, name);
    };
    add("None");
    for (const auto& file : files) add(file);
}

}  // namespace

void PlayWavFile(std::string_view file) try {
    constexpr std::int32_t kInBackground = 3;
    const auto path = fmt::format("{}{}{}", ProgramPath(), kSoundFolder, file);
    if (Vars::DebugMode) wtcw_debug("Playing Sound " + path);
    if (FileExists(path)) {
        Vars::Platform->sndPlaySound(path, kInBackground);
    } else {
        wtcw_error(fmt::format("PlaySoundError: {} was not found in your install directory.", file));
    }
} catch (...) {
    ReportFailure("PlayWavFile", "!Hub");
}

void GetSoundList() try {
    FillSounds(fmt::format("{}{}", ProgramPath(), kSoundFolder),
               std::array{&ControlHandler::ChatColorSound, &ControlHandler::ChatCustomSound});
} catch (...) {
    ReportFailure("GetSoundList", "!Hub");
}

void GetSoundLoopList() try {
    FillSounds(fmt::format("{}{}Loop\\", ProgramPath(), kSoundFolder),
               std::array{&ControlHandler::AlarmHealthSound, &ControlHandler::AlarmStaminaSound,
                          &ControlHandler::AlarmManaSound});
} catch (...) {
    ReportFailure("GetSoundLoopList", "!Hub");
}

void SendClick(std::int32_t x, std::int32_t y) try {
    constexpr std::int32_t kLeftDown = 2;
    constexpr std::int32_t kLeftUp = 4;
    const auto before = Vars::Platform->GetCursorPos();
    click_point = Vars::Platform->ClientToScreen({x, y});
    Vars::Platform->SetCursorPos(click_point.x, click_point.y);
    Vars::Platform->mouse_event(kLeftDown);
    Vars::Platform->mouse_event(kLeftUp);
    Vars::Platform->SetCursorPos(before.x, before.y);
} catch (...) {
    ReportFailure("SendClick", "!Hub");
}

}  // namespace ombrel
