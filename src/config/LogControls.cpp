// What the player does on the log pages.
#include "chat/LogHandler.h"
#include "config/ControlHandler.h"
#include "config/ControlTools.h"
#include "core/FilterHandler.h"
#include "core/Vars.h"
#include "core/cells.h"
#include "core/convert.h"
#include "core/failure.h"

namespace ombrel {

// The client itself knows whether the character is away.
void ControlHandler::ChatLogAFK_Change() try {
    Vars::FilterHandler->SendCommand("*afk*");
    Settings_Save(0);
} catch (...) {
    ReportFailure("ChatLogAFK_Change", "ControlHandler");
}

// The view.

void ControlHandler::ChatLogClear_Accepted() try {
    Vars::LogHandler->Clear();
    Settings_Save(0);
} catch (...) {
    ReportFailure("ChatLogClear_Accepted", "ControlHandler");
}

void ControlHandler::ChatLogDir_Accepted() try {
    LogHandler& log = *Vars::LogHandler;
    log.SetSortAsc(!log.SortAsc());
    Settings_Save(0);
} catch (...) {
    ReportFailure("ChatLogDir_Accepted", "ControlHandler");
}

void ControlHandler::ChatLogFilter_Change() try {
    Vars::LogHandler->SetFilterMode(ChatLogFilter->Selected());
    Settings_Save(0);
} catch (...) {
    ReportFailure("ChatLogFilter_Change", "ControlHandler");
}

void ControlHandler::ChatLogMax_End() try {
    if (IsNumeric(ChatLogMax->Text())) Vars::LogHandler->SetMaxLines(NearestLong(ChatLogMax->Text()));
    Settings_Save(0);
} catch (...) {
    ReportFailure("ChatLogMax_End", "ControlHandler");
}

void ControlHandler::ChatLogSearch_Change() try {
    LogHandler& log = *Vars::LogHandler;
    if (ChatLogSearch->Text() == log.SearchString()) return;
    log.SetSearchString(ChatLogSearch->Text());
    Settings_Save(0);
} catch (...) {
    ReportFailure("ChatLogSearch_Change", "ControlHandler");
}

void ControlHandler::ChatLogView_Change(std::int32_t, std::int32_t row) try {
    if (!HasRow(*ChatLogView, row)) return;  // a click beside the lines
    Vars::LogHandler->PrintDetails(ToLong(CellText(*ChatLogView, 1, row)));
    Settings_Save(0);
} catch (...) {
    ReportFailure("ChatLogView_Change", "ControlHandler");
}

// The files. A change takes effect on the log that is open.

void ControlHandler::ChatLogAuto_Change() try {
    LogHandler& log = *Vars::LogHandler;
    if (ChatLogAuto->Checked() && !log.FileLogging()) {
        log.SetLogfile(log.AutomaticName());
        log.SetFileLogging(true);
        log.InitFileLog();
    }
    Settings_Save(0);
} catch (...) {
    ReportFailure("ChatLogAuto_Change", "ControlHandler");
}

void ControlHandler::ChatLogByDate_Change() try {
    LogHandler& log = *Vars::LogHandler;
    log.SetLogfile(log.AutomaticName());
    log.InitFileLog();
    Settings_Save(0);
} catch (...) {
    ReportFailure("ChatLogByDate_Change", "ControlHandler");
}

void ControlHandler::ChatLogXML_Change() try {
    LogHandler& log = *Vars::LogHandler;
    log.SetLogfile(log.logfile());
    Settings_Save(0);
} catch (...) {
    ReportFailure("ChatLogXML_Change", "ControlHandler");
}

}  // namespace ombrel
