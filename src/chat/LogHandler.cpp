#include "chat/LogHandler.h"

#include "core/Hub.h"

namespace ombrel {

LogHandler::LogHandler() { wtcw_debug("Log Handler Init"); }

LogHandler::~LogHandler() { wtcw_debug("Log Handler Terminate"); }

void LogHandler::AddToLog(std::string_view, std::int32_t, std::int32_t) {}
void LogHandler::AddToLogFromData(const std::string&, std::int32_t, std::int32_t, std::int32_t, std::int32_t) {}
void LogHandler::DisplayLog() {}
void LogHandler::WriteFileLog() {}
void LogHandler::InitFileLog() {}
void LogHandler::RollOver() {}
void LogHandler::SetFileLogging(bool on) { file_logging_ = on; }
void LogHandler::SetLogfile(const std::string& name) { logfile_ = name; }
void LogHandler::SetMaxLines(std::int32_t lines) { max_lines_ = lines; }

}  // namespace ombrel
