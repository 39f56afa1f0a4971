// Keeps chat lines for the log view and writes them to log files.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>

#include "chat/LogItem.h"

namespace ombrel {

class LogHandler {
public:
    LogHandler();
    ~LogHandler();
    LogHandler(const LogHandler&) = delete;
    LogHandler& operator=(const LogHandler&) = delete;

    void AddToLog(std::string_view text, std::int32_t type, std::int32_t color);
    void AddToLogFromData(const std::string& message, std::int32_t msgtype, std::int32_t msgcolor, std::int32_t msgtag,
                          std::int32_t msgdate);
    void DisplayLog();

    void WriteFileLog();  // each second; returns at once when nothing waits
    void InitFileLog();   // opens the plain log
    void RollOver();      // a log named by date follows the day

    bool FileLogging() const { return file_logging_; }
    void SetFileLogging(bool on);
    const std::string& logfile() const { return logfile_; }
    void SetLogfile(const std::string& name);  // without folder and extension
    void SetMaxLines(std::int32_t lines);

    std::deque<LogItem> Log;  // oldest first
    std::string LogPath;      // with its trailing backslash

private:
    bool file_logging_ = false;
    std::string logfile_;
    std::int32_t max_lines_ = 100;
};

}  // namespace ombrel
