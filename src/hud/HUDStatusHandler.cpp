#include "hud/HUDStatusHandler.h"

#include "config/ControlHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/convert.h"
#include "core/failure.h"
#include "core/time.h"
#include "hud/TitleBar.h"

namespace ombrel {
namespace {

constexpr std::int32_t kLife = 4;  // seconds

}  // namespace

HUDStatusHandler::HUDStatusHandler() {
    try {
        wtcw_debug("HUDStatus Handler Init");
        StatusHud = std::make_unique<HUDHandler>();
        StatusHud->frame.SetTitle("Status");
    } catch (...) {
        ReportFailure("Class_Initialize", "HUDStatusHandler");
    }
}

HUDStatusHandler::~HUDStatusHandler() { wtcw_debug("HUDStatus Handler Terminate"); }

void HUDStatusHandler::AddMessage(const std::string& message) try {
    const std::int32_t expires = NowUnix() + kLife;
    if (!messages_.empty() && messages_.back().text == message) {
        messages_.back().expires = expires;
        return;
    }
    const bool first = messages_.empty();
    messages_.push_back({message, expires});
    if (!first) {
        const host::Choice& lines = *Vars::ControlHandler->HudStatusLines;
        if (static_cast<double>(messages_.size()) > ToDouble(lines.Text(lines.Selected()))) messages_.pop_front();
    }
    CreateHUD();
} catch (...) {
    ReportFailure("AddMessage", "HUDStatusHandler");
}

void HUDStatusHandler::Update() try {
    if (messages_.empty()) return;
    const std::int32_t now = NowUnix();
    if (std::erase_if(messages_, [now](const Message& message) { return message.expires < now; }) > 0) CreateHUD();
} catch (...) {
    ReportFailure("Update", "HUDStatusHandler");
}

void HUDStatusHandler::CreateHUD() try {
    StatusHud->Clear();
    AddData();
    StatusHud->frame.DrawHUD(false);
} catch (...) {
    ReportFailure("CreateHUD", "HUDStatusHandler");
}

void HUDStatusHandler::UpdateHUD() try {
    AddData();
    StatusHud->frame.DrawHUD(false);
} catch (...) {
    ReportFailure("UpdateHUD", "HUDStatusHandler");
}

// The newest message is the top line.
void HUDStatusHandler::AddData() try {
    const host::Choice& color = *Vars::ControlHandler->HudStatusColor;
    if (messages_.empty()) return;
    const std::string& name = color.Text(color.Selected());
    for (std::size_t index = messages_.size(); index >= 1; --index)
        StatusHud->Add(NumberText(static_cast<std::int32_t>(index)), messages_[index - 1].text, name, -1, true);
} catch (...) {
    ReportFailure("AddData", "HUDStatusHandler");
}

void HUDStatusHandler::ClickHUD(std::int32_t x, std::int32_t y) try {
    ClickTitleBar(StatusHud->frame, x, y, &ControlHandler::ToggleStatus);
} catch (...) {
    ReportFailure("ClickHUD", "HUDStatusHandler");
}

bool HUDStatusHandler::WithinTitle(std::int32_t x, std::int32_t y) try {
    return WithinTitleBar(StatusHud->frame, x, y);
} catch (...) {
    ReportFailure("WithinTitle", "HUDStatusHandler");
    return false;
}

}  // namespace ombrel
