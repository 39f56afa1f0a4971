// Keeps chat lines for the log view, and writes them to log files.
//
// A line reaches view and file independently, each by its own classes. The files are written each second; a line that
// could not be written waits and is tried again.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "chat/LogItem.h"

namespace ombrel {

class LogFile;

class LogHandler {
public:
    LogHandler();
    ~LogHandler();
    LogHandler(const LogHandler&) = delete;
    LogHandler& operator=(const LogHandler&) = delete;

    void AddToLog(std::string_view text, std::int32_t type, std::int32_t color);
    void AddToLogFromData(const std::string& message, std::int32_t msgtype, std::int32_t msgcolor, std::int32_t msgtag,
                          std::int32_t msgdate);
    void Clear();                        // the view's lines; what waits for the file stays
    void DisplayLog();                   // draws the view again
    void PrintDetails(std::int32_t id);  // writes a line of the view to chat, with its date

    // Each redraws the view; all but the first scroll it to its start.
    void SetSearchString(const std::string& search);  // "a+b" both words, "a|b" either
    const std::string& SearchString() const { return search_; }
    void SetFilterMode(std::int32_t mode);  // 0 all, 1 to 7 one class
    void SetMaxLines(std::int32_t lines);
    void SetSortAsc(bool ascending);
    bool SortAsc() const { return sort_ascending_; }

    void WriteFileLog();  // returns at once when nothing waits
    void RollOver();      // an automatic log named by date follows the player's day

    // Whether lines go to the file. Off leaves what waits to the next write.
    bool FileLogging() const { return file_logging_; }
    void SetFileLogging(bool on);

    // The file's name without folder and extension. Setting it opens the log in the format that the player chose; an
    // old file is extended. An empty name opens nothing. Failures reach the caller.
    const std::string& logfile() const { return logfile_; }
    void SetLogfile(std::string_view name);
    void InitFileLog();  // opens the plain log

    // Server and character, and the day when the player wants a file a day.
    std::string AutomaticName() const;

    std::deque<LogItem> Log;  // oldest first
    std::string LogPath;      // with its trailing backslash

private:
    enum class Destination { kView, kFile };

    std::int32_t Classify(std::string_view text, std::int32_t type, Destination destination);
    bool RowIsOn(std::size_t row, Destination destination);
    bool DisplayItem(const LogItem& item) const;
    void CheckSize();
    void Append(LogItem item);
    void ScrollToStart();
    void QueueForFile(LogItem item);
    void OpenXml();
    void ProvideStyle();

    std::deque<LogItem> file_queue_;
    std::int32_t next_id_ = 0;
    std::string search_;
    std::vector<std::vector<std::string>> alternatives_;  // of the search: one must have all of its terms in a line
    std::int32_t filter_mode_ = 0;
    std::int32_t max_lines_ = 100;
    bool sort_ascending_ = false;

    bool file_logging_ = false;
    std::string logfile_;
    std::unique_ptr<LogFile> text_, xml_;  // the one that the player's choice of format asks for is written
    bool write_failed_ = false;            // reported already; not again before a write has worked
    bool queue_overflowed_ = false;
    std::int32_t checked_day_ = 0;  // the day for which the name of the log was last found right

    static constexpr std::size_t kClasses = 19;
    struct ClassRows {
        std::uint32_t revision = 0;
        bool known = false;
        std::array<std::int32_t, kClasses> row{};
    };
    ClassRows rows_;
};

}  // namespace ombrel
