// The one road of every chat line: from the game, from the plug-in itself, from other plug-ins, and from the player.
//
// IncomingText.cpp holds the stages of a line on its way to the screen, ChatRules.cpp what the player's rules do to it,
// ChatReactions.cpp what game texts set off, OutgoingText.cpp the lines that the player types.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "chat/ChatListItem.h"
#include "core/Ref.h"
#include "core/like.h"
#include "host/Timer.h"

namespace ombrel {

// Chat types are the client's, and double as its colour numbers; the plug-in has two of its own.
namespace chat_type {
constexpr std::int32_t kSystem = 0;
constexpr std::int32_t kTell = 3;
constexpr std::int32_t kError = 6;
constexpr std::int32_t kMagic = 7;
constexpr std::int32_t kRareAnnouncement = 26;
constexpr std::int32_t kOmbrel = 32;    // the plug-in's own lines
constexpr std::int32_t kForeign = 33;   // lines of other plug-ins; outside TargetList and Chat_Color
}  // namespace chat_type

// A line on its way through IncomingText.
struct ChatLine;

class ChatTextHandler {
public:
    ChatTextHandler();
    ~ChatTextHandler();
    ChatTextHandler(const ChatTextHandler&) = delete;
    ChatTextHandler& operator=(const ChatTextHandler&) = delete;

    // Takes a line of chat type `color` through all stages. `target` is the window that a rewritten line goes to: 0 the
    // client's default, 1 main, 2 to 5 floating. `rewrite` says that the line has not been shown yet; `fromHost` that it
    // came through AddChatText. Returns whether the client's own copy is to stand.
    bool IncomingText(std::string_view text, std::int32_t color, std::int32_t target, bool rewrite, bool fromHost);

    // Takes a line that the player typed, trimmed. Returns whether the client is to process it as it stands.
    bool OutgoingText(const std::string& text);

    // Writes a status-line error in colour 6 to every window that shows chat type 26.
    void WriteError(std::string_view text);

    // Chat colours of the options view by name: the client's colour number, -1 for "Default", 2 for an unknown name; the
    // icon of the colour's marker, and back. Not the HUDs' colours.
    std::int32_t ConvertColor(std::string_view name);
    std::int32_t GetIconFromColor(std::string_view name);
    std::string_view GetColorFromIcon(std::int32_t icon);

    // Which windows show which chat type: window 0 main, 1 to 4 floating; type 0 to 32. Other indices are failure 9, which
    // the caller reports. A reset leaves the plug-in's own type.
    void ResetTargetList();
    void SetTargetList(std::int32_t window, std::int32_t type, bool value);
    bool GetTargetList(std::int32_t window, std::int32_t type) const;

    std::int32_t TargetCount = 0;  // SetTargetList calls since the last reset
    std::vector<ChatListItem> ChatList;
    bool killFlag = false;    // the line in progress is the kill line
    bool expireFlag = false;  // the line in progress is a spell expiry line
    bool templeEnlightenPending = false;
    bool templeForgetPending = false;
    bool showChatTypes = false;  // each line gets its type's number
    Owned<host::Timer> TimeSpells;
    Owned<host::Timer> TimeCast;

private:
    static constexpr std::int32_t kWindows = 5;
    static constexpr std::int32_t kTypes = 33;

    bool target_list_[kWindows][kTypes] = {};
};

}  // namespace ombrel
