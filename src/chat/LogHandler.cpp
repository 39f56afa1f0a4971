#include "chat/LogHandler.h"

#include <fmt/format.h>

#include <algorithm>

#include "chat/ChatTextHandler.h"
#include "chat/LogFile.h"
#include "config/ControlHandler.h"
#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/cells.h"
#include "core/convert.h"
#include "core/failure.h"
#include "core/files.h"
#include "core/like.h"
#include "core/text.h"
#include "core/time.h"

namespace ombrel {
namespace {

constexpr std::size_t kQueueLimit = 10'000;
constexpr std::int32_t kViewColumn = 2;
constexpr std::int32_t kFileColumn = 4;

// A line's class is the first row that holds: its test, and the row's check box in the list of log options.
struct LogClass {
    std::string_view name;
    bool (*holds)(std::string_view text, std::int32_t type);
    std::int32_t tag;
};

bool IsToVassals(std::string_view text, std::int32_t type) {
    return type == 11 && text.starts_with("You say to your Vassals");
}

constexpr LogClass kLogClasses[] = {
    {"Open Chat", [](std::string_view, std::int32_t type) { return type == 2 || type == 12; }, 1},
    {"Tells", [](std::string_view, std::int32_t type) { return type == 3 || type == 4; }, 2},
    {"Fellowship", [](std::string_view, std::int32_t type) { return type == 19; }, 3},
    {"Patron/Covassal",
     [](std::string_view text, std::int32_t type) {
         return (type == 10 && text.starts_with("Your patron")) ||
                (type == 11 && text.starts_with("You say to your Patron")) ||
                (type == 10 && LikeMatch(text, "[[]Co-Vassals[]]*"));
     },
     4},
    {"Vassal",
     [](std::string_view text, std::int32_t type) {
         return IsToVassals(text, type) || (type == 10 && text.starts_with("Your vassal"));
     },
     5},
    {"Allegiance", [](std::string_view, std::int32_t type) { return type == 18; }, 6},
    {"Channels", [](std::string_view, std::int32_t type) { return type >= 27 && type <= 30; }, 7},
    {"Vitae",
     [](std::string_view text, std::int32_t type) {
         return type == 7 && text.starts_with("Your experience has reduced your Vitae penalty!");
     },
     17},
    {"Magic", [](std::string_view, std::int32_t type) { return type == 7; }, 8},
    {"Spellwords", [](std::string_view, std::int32_t type) { return type == 17; }, 9},
    {"Combat", [](std::string_view, std::int32_t type) { return type == 21 || type == 22 || type == 6; }, 10},
    {"System", [](std::string_view, std::int32_t type) { return type == 0; }, 11},
    {"Recalls", [](std::string_view, std::int32_t type) { return type == 23; }, 12},
    {"Tinkers", [](std::string_view, std::int32_t type) { return type == 24; }, 13},
    {"Rares", [](std::string_view text, std::int32_t type) { return type == 5 && Contains(text, " has discovered "); },
     14},
    {"Stat Raises",
     [](std::string_view text, std::int32_t type) { return type == 13 && LikeMatch(text, "Your base*is now*"); }, 15},
    {"Level", [](std::string_view, std::int32_t type) { return type == 13; }, 16},
    {"Ombrel", [](std::string_view, std::int32_t type) { return type == 32; }, 18},
    {"Other", [](std::string_view, std::int32_t) { return true; }, 19},
};
constexpr std::size_t kVassalRow = 4;

// Rules can give a line a colour that the tables of view and file lack, the plug-in's own type among them. That is
// reported once for the line, and costs no other line.
bool HasTableColor(const LogItem& item) {
    return item.msgcolor >= 0 && item.msgcolor < static_cast<std::int32_t>(Vars::ChatScreenColors.size());
}

void ReportColor(std::string_view procedure) {
    ErrorReport(procedure, "LogHandler", failure::kSubscript, FailureText(failure::kSubscript), 0);
}

}  // namespace

LogHandler::LogHandler() {
    static_assert(std::size(kLogClasses) == kClasses);
    try {
        wtcw_debug("Log Handler Init");
        LogPath = GetMyDoc() + "\\Asheron's Call\\Logs\\";
        MakeFolders(LogPath);
    } catch (...) {
        ReportFailure("Class_Initialize", "LogHandler");
    }
}

LogHandler::~LogHandler() { wtcw_debug("Log Handler Terminate"); }

// The store.

void LogHandler::AddToLog(std::string_view text, std::int32_t type, std::int32_t color) try {
    const bool to_view = Vars::ControlHandler->ChatLogEnable->Checked();
    if (!to_view && !file_logging_) return;

    if (to_view) {
        if (const std::int32_t tag = Classify(text, type, Destination::kView); tag > 0) {
            Append({std::string(text), type, color, NowUnix(), tag, next_id_++});
            Vars::ControlHandler->Data_Save();
            DisplayLog();
        }
    }
    if (file_logging_) {
        if (const std::int32_t tag = Classify(text, type, Destination::kFile); tag > 0) {
            QueueForFile({std::string(text), type, color, NowUnix(), tag, 0});
        }
    }
} catch (...) {
    ReportFailure("AddToLog", "LogHandler");
}

void LogHandler::AddToLogFromData(const std::string& message, std::int32_t msgtype, std::int32_t msgcolor,
                                  std::int32_t msgtag, std::int32_t msgdate) try {
    Append({message, msgtype, msgcolor, msgdate, msgtag, next_id_++});
} catch (...) {
    ReportFailure("AddToLogFromData", "LogHandler");
}

void LogHandler::Append(LogItem item) {
    if (!HasTableColor(item)) ReportColor("DisplayLog");
    Log.push_back(std::move(item));
    CheckSize();
}

void LogHandler::CheckSize() {
    while (!Log.empty() && static_cast<std::int64_t>(Log.size()) > max_lines_) Log.pop_front();
}

void LogHandler::QueueForFile(LogItem item) {
    file_queue_.push_back(std::move(item));
    if (file_queue_.size() <= kQueueLimit) return;
    file_queue_.pop_front();
    if (!queue_overflowed_) wtcw_error("The chat log can't be written: its oldest lines are lost.");
    queue_overflowed_ = true;
}

void LogHandler::Clear() try {
    Log.clear();
    Vars::ControlHandler->Data_Save();
    DisplayLog();
} catch (...) {
    ReportFailure("Clear", "LogHandler");
}

// In the file, and only there, a line to the vassals holds even when its row is off.
std::int32_t LogHandler::Classify(std::string_view text, std::int32_t type, Destination destination) try {
    for (std::size_t row = 0; row < kClasses; ++row) {
        const LogClass& log_class = kLogClasses[row];
        if (!log_class.holds(text, type)) continue;
        if (RowIsOn(row, destination)) return log_class.tag;
        if (row == kVassalRow && destination == Destination::kFile && IsToVassals(text, type)) return log_class.tag;
    }
    return 0;
} catch (...) {
    ReportFailure(destination == Destination::kView ? "ClassifyToView" : "ClassifyToFile", "LogHandler");
    return 0;
}

bool LogHandler::RowIsOn(std::size_t row, Destination destination) {
    auto& controls = *Vars::ControlHandler;
    const host::List& options = *controls.ChatLogOptions;
    if (!rows_.known || rows_.revision != options.Revision()) {
        for (std::size_t i = 0; i < kClasses; ++i) rows_.row[i] = controls.FindName(kLogClasses[i].name, "ChatLog");
        rows_.revision = options.Revision();
        rows_.known = true;
    }
    return CellFlag(options, destination == Destination::kView ? kViewColumn : kFileColumn, rows_.row[row]);
}

// The view.

bool LogHandler::DisplayItem(const LogItem& item) const {
    const bool hit = alternatives_.empty() || std::ranges::any_of(alternatives_, [&](const auto& terms) {
                         return std::ranges::all_of(
                             terms, [&](const std::string& term) { return ContainsNoCase(item.message, term); });
                     });
    if (!hit || filter_mode_ == 0) return hit;
    return filter_mode_ >= 1 && filter_mode_ <= 7 && item.msgtag == filter_mode_;
}

void LogHandler::DisplayLog() try {
    host::List& view = *Vars::ControlHandler->ChatLogView;
    const std::int32_t scroll = view.ScrollPosition();
    view.Clear();
    const auto show = [&](const LogItem& item) {
        if (!DisplayItem(item)) return;
        const std::int32_t row = view.AddRow();
        view.SetData(0, row, item.message);
        view.SetData(1, row, NumberText(item.MsgID));
        if (HasTableColor(item)) view.SetColor(0, row, Vars::ChatScreenColors[static_cast<std::size_t>(item.msgcolor)]);
    };
    if (sort_ascending_)
        std::for_each(Log.begin(), Log.end(), show);
    else
        std::for_each(Log.rbegin(), Log.rend(), show);
    view.SetScrollPosition(scroll);
} catch (...) {
    ReportFailure("DisplayLog", "LogHandler");
}

void LogHandler::PrintDetails(std::int32_t id) try {
    const auto item = std::find_if(Log.begin(), Log.end(), [id](const LogItem& line) { return line.MsgID == id; });
    if (item == Log.end()) return;
    const std::string date = FormatGeneralDate(UnixToDate(item->msgdate));
    Vars::FilterHandler->WriteToChatWindow(fmt::format("---<{}> {}", date, item->message), item->msgcolor, 1);
} catch (...) {
    ReportFailure("PrintDetails", "LogHandler");
}

void LogHandler::ScrollToStart() { Vars::ControlHandler->ChatLogView->SetScrollPosition(0); }

// "OR" and "AND" divide as they stand, so capitals in a search word divide it too.
void LogHandler::SetSearchString(const std::string& search) try {
    search_ = search;
    alternatives_.clear();
    if (!search.empty()) {
        const std::string expression = Replace(Replace(search, "+", " AND "), "|", " OR ");
        for (const std::string_view piece : Split(expression, "OR")) {
            auto& terms = alternatives_.emplace_back();
            for (const std::string_view term : Split(piece, "AND")) terms.emplace_back(Trim(term));
        }
    }
    DisplayLog();
} catch (...) {
    ReportFailure("SearchString", "LogHandler");
}

void LogHandler::SetFilterMode(std::int32_t mode) try {
    filter_mode_ = mode;
    ScrollToStart();
    DisplayLog();
} catch (...) {
    ReportFailure("FilterMode", "LogHandler");
}

void LogHandler::SetMaxLines(std::int32_t lines) try {
    max_lines_ = lines;
    CheckSize();
    ScrollToStart();
    DisplayLog();
} catch (...) {
    ReportFailure("MaxLines", "LogHandler");
}

void LogHandler::SetSortAsc(bool ascending) try {
    sort_ascending_ = ascending;
    ScrollToStart();
    DisplayLog();
} catch (...) {
    ReportFailure("SortAsc", "LogHandler");
}

// The files.

void LogHandler::SetFileLogging(bool on) {
    file_logging_ = on;
    if (!on && Vars::ControlHandler->ChatLogXML->Checked()) xml_.reset();
}

void LogHandler::SetLogfile(std::string_view name) {
    logfile_ = Replace(Replace(name, ".txt", ""), ".xml", "");
    checked_day_ = 0;
    text_.reset();
    xml_.reset();
    if (Vars::ControlHandler->ChatLogXML->Checked())
        OpenXml();
    else
        InitFileLog();
}

void LogHandler::InitFileLog() {
    text_.reset();
    if (!logfile_.empty()) text_ = std::make_unique<TextLog>(LogPath + logfile_ + ".txt");
}

void LogHandler::OpenXml() {
    xml_.reset();
    if (logfile_.empty()) return;
    xml_ = std::make_unique<XmlLog>(LogPath + logfile_ + ".xml");
    ProvideStyle();
}

// A log without its style sheet is still a log.
void LogHandler::ProvideStyle() try {
    const std::string style = LogPath + "style\\ombrellog.xsl";
    const std::string shipped = ProgramPath() + "\\style\\ombrellog.xsl";
    if (!FileExists(style) && FileExists(shipped)) SaveFile(style, ReadFile(shipped), Durability::kProcess);
} catch (...) {
    ReportFailure("logfile", "LogHandler");
}

void LogHandler::WriteFileLog() try {
    if (file_queue_.empty()) return;
    const bool xml = Vars::ControlHandler->ChatLogXML->Checked();
    const auto& file = xml ? xml_ : text_;
    if (!file) {
        if (!file_logging_ || logfile_.empty()) return;
        xml ? OpenXml() : InitFileLog();
    }
    if (xml) {
        std::erase_if(file_queue_, [](const LogItem& item) {
            if (HasTableColor(item)) return false;
            ReportColor("WriteFileLog");
            return true;
        });
    }
    file->Write(file_queue_);
    file_queue_.clear();
    write_failed_ = queue_overflowed_ = false;
} catch (...) {
    if (!write_failed_) ReportFailure("WriteFileLog", "LogHandler");
    write_failed_ = true;
}

std::string LogHandler::AutomaticName() const {
    auto& filter = *Vars::FilterHandler;
    std::string name = filter.GetMyServer() + "_" + filter.GetMyCharName();
    if (Vars::ControlHandler->ChatLogByDate->Checked()) name += "_" + FormatIsoDay(NowDate());
    return name;
}

void LogHandler::RollOver() {
    auto& controls = *Vars::ControlHandler;
    if (!controls.ChatLogAuto->Checked() || !controls.ChatLogByDate->Checked()) return;
    const auto today = static_cast<std::int32_t>(NowDate());
    if (today == checked_day_) return;

    // A log that the player named by hand doesn't follow the day. The next write opens the new one, so that a failure
    // of that costs no line.
    checked_day_ = today;
    auto& filter = *Vars::FilterHandler;
    if (!logfile_.starts_with(filter.GetMyServer() + "_" + filter.GetMyCharName() + "_")) return;
    if (std::string name = AutomaticName(); name != logfile_) {
        logfile_ = std::move(name);
        text_.reset();
        xml_.reset();
    }
}

}  // namespace ombrel
