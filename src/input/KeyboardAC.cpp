#include "input/KeyboardAC.h"

#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/failure.h"
#include "core/text.h"
#include "host/Plugin.h"

namespace ombrel {
namespace {

constexpr std::int32_t kEnterKey = 13;
constexpr std::int32_t kKeyUp = 2;
constexpr std::int32_t kWriteBeat = 20;  // milliseconds
constexpr std::int32_t kChatBeat = 50;
constexpr std::string_view kEnter = "{Enter}";
constexpr std::string_view kChat = "{Chat}";

// The bytes of a UTF-8 character, by its first.
std::size_t CharacterSize(char first) {
    const auto byte = static_cast<unsigned char>(first);
    return byte < 0x80 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}

}  // namespace

KeyboardAC::KeyboardAC() {
    try {
        wtcw_debug("KeyboardAC Init");
        WriteBuffer = Vars::Site->CreateTimer("KeyboardAC.WriteBuffer");
        WriteBuffer->Timeout = [this] { WriteBuffer_Timeout(); };
        WaitChat = Vars::Site->CreateTimer("KeyboardAC.WaitChat");
        WaitChat->Timeout = [this] { WaitChat_Timeout(); };
    } catch (...) {
        ReportFailure("Class_Initialize", "KeyboardAC");
    }
}

KeyboardAC::~KeyboardAC() { wtcw_debug("KeyboardAC Terminate"); }

void KeyboardAC::Run() try { WriteBuffer->Start(kWriteBeat); } catch (...) {
    ReportFailure("Run", "KeyboardAC");
}

void KeyboardAC::SendKey(std::int32_t key) try {
    const std::int32_t scan = Vars::Platform->MapVirtualKey(key, 0);
    Vars::Platform->keybd_event(key, scan, 0);
    Vars::Platform->keybd_event(key, scan, kKeyUp);
} catch (...) {
    ReportFailure("SendKey", "KeyboardAC");
}

void KeyboardAC::SendChar(const std::string& entry) try {
    wtcw_debug(entry);
    if (entry == kEnter) {
        SendKey(kEnterKey);
    } else if (entry == kChat) {
        SendKey(kEnterKey);
        WaitingForChat = true;
        WaitChat->Start(kChatBeat);
    } else {
        const std::string character = ToWindows1252(entry);
        if (character.empty()) return;
        SendKey(Vars::Platform->VkKeyScan(character.front()) & 0xFF);
    }
} catch (...) {
    ReportFailure("SendChar", "KeyboardAC");
}

void KeyboardAC::SendString(std::string_view text, bool yield) try {
    while (!text.empty()) {
        const std::string_view character = text.substr(0, CharacterSize(text.front()));
        text.remove_prefix(character.size());
        buffer_.emplace_back(character);
        if (yield) Vars::Platform->DoEvents();
    }
} catch (...) {
    ReportFailure("SendString", "KeyboardAC");
}

void KeyboardAC::SendEnter() try { buffer_.emplace_back(kEnter); } catch (...) {
    ReportFailure("SendEnter", "KeyboardAC");
}

void KeyboardAC::AddWaitforChat() try { buffer_.emplace_back(kChat); } catch (...) {
    ReportFailure("AddWaitforChat", "KeyboardAC");
}

bool KeyboardAC::CheckEnter() try { return Vars::Platform->GetKeyState(kEnterKey) == 0; } catch (...) {
    ReportFailure("CheckEnter", "KeyboardAC");
    return false;
}

void KeyboardAC::WriteBuffer_Timeout() try {
    if (WaitingForChat) return;
    if (buffer_.empty()) return WriteBuffer->Stop();
    const std::string entry = std::move(buffer_.front());
    buffer_.pop_front();
    SendChar(entry);
} catch (...) {
    ReportFailure("WriteBuffer_Timeout", "KeyboardAC");
}

// There is no limit on the tries: the box opens in the end, or the player opens it.
void KeyboardAC::WaitChat_Timeout() try {
    if (Vars::FilterHandler->ChatState()) {
        WaitingForChat = false;
        WaitChat->Stop();
    } else {
        SendKey(kEnterKey);
    }
} catch (...) {
    ReportFailure("WaitChat_Timeout", "KeyboardAC");
}

}  // namespace ombrel
