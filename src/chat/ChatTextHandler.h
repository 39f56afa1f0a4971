// The one road of every chat line: from the game, from the plug-in itself, from other plug-ins, and from the player.
//
// IncomingText.cpp holds the stages of a line on its way to the screen, ChatRules.cpp what the player's rules do to it,
// ChatReactions.cpp what game texts set off, OutgoingText.cpp and ChatCommands.cpp the lines that the player types.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "chat/ChatListItem.h"
#include "core/Ref.h"
#include "host/Timer.h"

namespace ombrel {

// Chat types are the client's, and double as its colour numbers; the plug-in has two of its own.
namespace chat_type {
constexpr std::int32_t kSystem = 0;
constexpr std::int32_t kTell = 3;
constexpr std::int32_t kRareFind = 5;
constexpr std::int32_t kError = 6;
constexpr std::int32_t kMagic = 7;
constexpr std::int32_t kAdvancement = 13;
constexpr std::int32_t kRareAnnouncement = 26;
constexpr std::int32_t kOmbrel = 32;   // the plug-in's own lines
constexpr std::int32_t kForeign = 33;  // lines of other plug-ins; outside TargetList and Chat_Color
}  // namespace chat_type

// The colour in which the plug-in's own lines are written, unless a rule says otherwise.
inline constexpr std::int32_t kOwnLineColor = 5;

struct ChatLine;
struct ChatTables;
struct CustomRule;
enum class ChatOption : std::uint8_t;

// Coordinates found in a text, as they stand there.
struct CoordsMatch {
    std::string text;
    std::string ns, ns_side;
    std::string ew, ew_side;
};

class ChatTextHandler {
public:
    ChatTextHandler();
    ~ChatTextHandler();
    ChatTextHandler(const ChatTextHandler&) = delete;
    ChatTextHandler& operator=(const ChatTextHandler&) = delete;

    // Takes a line of chat type `color` through all stages. `target` is the window that a rewritten line goes to: 0 the
    // client's default, 1 main, 2 to 5 floating. `rewrite` says that the line has not been shown yet; `fromHost` that
    // it came through AddChatText. Returns whether the client's own copy is to stand.
    bool IncomingText(std::string_view text, std::int32_t color, std::int32_t target, bool rewrite, bool fromHost);

    // Takes a line that the player typed, trimmed. Returns whether the client is to process it as it stands.
    bool OutgoingText(const std::string& text);

    // Writes a status-line error in colour 6 to every window that shows chat type 26.
    void WriteError(std::string_view text);

    // Chat colours of the options view by name: the client's colour number, -1 for "Default", 2 for an unknown name;
    // the icon of the colour's marker, and back. Not the HUDs' colours.
    std::int32_t ConvertColor(std::string_view name);
    std::int32_t GetIconFromColor(std::string_view name);
    std::string_view GetColorFromIcon(std::int32_t icon);

    // Which windows show which chat type: window 0 main, 1 to 4 floating; type 0 to 32. Other indices are failure 9,
    // which the caller reports. A reset leaves the plug-in's own type.
    void ResetTargetList();
    void SetTargetList(std::int32_t window, std::int32_t type, bool value);
    bool GetTargetList(std::int32_t window, std::int32_t type) const;

    // Samples of the colours, and the experience table, for the player to read.
    void Colors();
    void ColorsTest();
    void ChatColors();
    void XPList(std::int32_t from, std::int32_t to);

    // Queues the splitting of a pea; the pea that a spell component comes from, "Unknown Pea" for anything else.
    void AddPea(const std::string& name);
    std::string PeaName(std::string_view component);

    // All map coordinates in a text.
    std::vector<CoordsMatch> MatchCoords(const std::string& text);

    void TimeSpells_Timeout();
    void TimeCast_Timeout();

    std::int32_t TargetCount = 0;             // SetTargetList calls since the last reset
    std::vector<std::string> SpellsExpiring;  // lines gathered for one timeout
    std::vector<std::string> SpellsCast;
    std::vector<ChatListItem> ChatList;
    bool killFlag = false;    // the line in progress is the kill line
    bool expireFlag = false;  // the line in progress is a spell expiry line
    bool templeEnlightenPending = false;
    bool templeForgetPending = false;
    bool showChatTypes = false;  // each line gets its type's number
    Owned<host::Timer> TimeSpells;
    Owned<host::Timer> TimeCast;

private:
    void AddChatItem(std::string_view pattern, std::string_view listId, std::int32_t type);

    // The stages of a line. One with a result says whether the line goes on.
    void RunStages(ChatLine& line, bool fromHost);
    void TempleReplies(ChatLine& line);
    void RareDiscovery(ChatLine& line);
    void DeathTexts(ChatLine& line);
    bool FriendsList(ChatLine& line);
    void LowMana(ChatLine& line);
    void Advancement(ChatLine& line);
    bool WordFilter(ChatLine& line);
    void VitaeLine(ChatLine& line);
    void ComponentBurn(ChatLine& line);
    bool SpellExpiry(ChatLine& line);
    bool GatherCasts(ChatLine& line);
    void ItemSpells(ChatLine& line);
    void KillLine(ChatLine& line);
    void TellLinks(ChatLine& line);
    void ChatTypeNumber(ChatLine& line);
    void CustomRules(ChatLine& line);
    void ClassifyAndColor(ChatLine& line);
    void FinalWrite(ChatLine& line);
    void Log(const ChatLine& line);
    void AutomaticReply(const ChatLine& line);

    bool Option(ChatOption option);
    void WriteToShowing(std::string_view text, std::int32_t type, std::int32_t color);
    void ApplyCustomRule(ChatLine& line, std::int32_t row);
    void ApplyColorRule(ChatLine& line, std::int32_t row);
    void RunActions(const std::string& actions);
    void RunBracketAction(std::string_view action);
    std::int32_t FindRuleRow(const ChatLine& line, const ChatListItem*& item);
    void RunCommand(std::string_view arguments);
    bool ExpandAliases(std::string& line, bool& typeIt);

    static constexpr std::int32_t kWindows = 5;
    static constexpr std::int32_t kTypes = 33;

    bool target_list_[kWindows][kTypes] = {};
    std::unique_ptr<ChatTables> tables_;
    std::int32_t incoming_depth_ = 0;
    std::int32_t outgoing_depth_ = 0;
    std::int32_t chain_length_ = 0;  // lines that the outermost one has started, and itself
    bool chain_broken_ = false;      // too deep or too many: no more actions until the outermost pass ends
};

}  // namespace ombrel
