#include "config/ViewHandler.h"

#include <fmt/format.h>

#include "core/Hub.h"
#include "core/Vars.h"
#include "core/failure.h"
#include "core/files.h"
#include "host/Plugin.h"

namespace ombrel {

ViewHandler::ViewHandler() { wtcw_debug("View Handler Init"); }

ViewHandler::~ViewHandler() { wtcw_debug("View Handler Terminate"); }

void ViewHandler::CreateMainView() try {
    std::string description;
    FileToString("Ombrel_View.xml", description);
    MainView = Vars::Decal->LoadView(description);
} catch (...) {
    ReportFailure("CreateMainView", "ViewHandler");
}

void ViewHandler::FileToString(std::string_view name, std::string& result) try {
    result = ReadFile(fmt::format("{}\\{}", ProgramPath(), name));
} catch (...) {
    ReportFailure("FileToString", "ViewHandler");
}

}  // namespace ombrel
