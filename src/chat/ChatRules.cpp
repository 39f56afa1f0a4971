// What the player's rules do to a line: word filter, name links, custom rules, colour rules.
#include <fmt/format.h>

#include <charconv>

#include "chat/ChatLine.h"
#include "chat/ChatTables.h"
#include "chat/ChatTextHandler.h"
#include "chat/Words.h"
#include "config/ControlHandler.h"
#include "core/FilterHandler.h"
#include "core/Hub.h"
#include "core/Vars.h"
#include "core/cells.h"
#include "core/convert.h"
#include "core/text.h"

namespace ombrel {

namespace {

constexpr std::string_view kLinkBegin = "<Tell:IIDString:";
constexpr std::string_view kLinkEnd = "<\\Tell>";
constexpr std::int32_t kDefaultColor = -1;
constexpr std::size_t kMaxLinkPosition = 32767;

// Letters of window strings, in the order in which a line goes to the windows.
constexpr std::string_view kWindowLetters = "m1234";

std::string_view Left(std::string_view text, std::size_t characters) {
    const std::size_t length = Length(text);
    return characters < length ? DropLast(text, length - characters) : text;
}

std::string_view Right(std::string_view text, std::size_t characters) {
    const std::size_t length = Length(text);
    return characters < length ? text.substr(DropLast(text, characters).size()) : text;
}

void ReadFilterWord(const host::List& list, std::int32_t row, FilterWord& word) {
    word.enabled = CellFlag(list, 0, row);
    if (!word.enabled) return;
    word.word = Trim(ToLower(CellText(list, 1, row)));
    word.whole = CellText(list, 2, row) == "Whole";
    if (word.whole) word.around = WordPattern(word.word);
}

void ReadCustomRule(const host::List& list, std::int32_t row, CustomRule& rule) {
    if (!CellFlag(list, 0, row)) return;
    const std::string type = CellText(list, 3, row);
    if (type == "All") {
        rule.types = CustomRule::Types::kAll;
    } else if (type == "OM") {
        rule.types = CustomRule::Types::kOne;
        rule.type = chat_type::kOmbrel;
    } else {
        const char* const end = type.data() + type.size();
        const auto [stop, error] = std::from_chars(type.data(), end, rule.type);
        if (error != std::errc() || stop != end) return;
        rule.types = CustomRule::Types::kOne;
    }
    rule.pattern.emplace(CellText(list, 1, row));
}

// A whole word is masked where it stands with no letter beside it. What is replaced is the next occurrence that equals
// the word exactly, so a word in capitals counts as found and stays.
std::string MaskWholeWord(std::string_view text, std::string_view word, bool& masked) {
    const std::string mask(Length(word), '#');
    std::string padded = fmt::format(" {} ", text);
    std::string lower = ToLower(padded);
    for (std::size_t at = lower.find(word); !word.empty() && at != std::string::npos;
         at = lower.find(word, Behind(lower, at, word))) {
        if (!StandsAlone(lower, at, word.size())) continue;

        masked = true;
        const std::size_t exact = padded.find(word, at);
        if (exact == std::string::npos) continue;
        padded.replace(exact, word.size(), mask);
        lower.replace(exact, word.size(), mask);
    }
    return std::string(Trim(padded));
}

// The text without the link that begins at `start`: what stands before the link, and, with the first end of a link
// taken out, what stands behind the first ">". One that stands before the link mangles the text.
std::string WithoutLink(std::string_view text, std::size_t start) {
    const std::size_t close = text.find('>') + 1;  // 0 when there is none
    const std::size_t end = text.find(kLinkEnd);
    if (text.size() > kMaxLinkPosition) {
        if (Length(text.substr(0, start)) >= kMaxLinkPosition || Length(text.substr(0, close)) > kMaxLinkPosition)
            throw Failure(failure::kOverflow);
    }
    std::string result;
    result.reserve(text.size());
    if (end == std::string_view::npos) return result.append(text.substr(0, start)).append(text.substr(close));
    if (end >= start && end >= close) {
        return result.append(text.substr(0, start))
            .append(text.substr(close, end - close))
            .append(text.substr(end + kLinkEnd.size()));
    }
    // The end comes first, and what is counted in the text without it stands elsewhere.
    result.append(text.substr(0, end)).append(text.substr(end + kLinkEnd.size()));
    const std::size_t length = Length(result);
    const std::size_t cut = Length(text.substr(0, close));
    if (length < cut) throw Failure(failure::kInvalidCall);
    return std::string(Left(result, Length(text.substr(0, start)))).append(Right(result, length - cut));
}

// Window of a colour rule; 0 is the client's default.
std::int32_t WindowNumber(std::string_view letter) {
    constexpr std::string_view kLetters = "M1234";
    if (letter.size() != 1) return 0;
    const std::size_t at = kLetters.find(letter.front());
    return at == std::string_view::npos ? 0 : static_cast<std::int32_t>(at) + 1;
}

// A value of a bracket action: one that is no number or out of range gives way.
std::int32_t ActionValue(std::string_view text, std::int32_t maximum, std::int32_t fallback) {
    if (!IsNumeric(text)) return fallback;
    const double value = ToDouble(text);
    return value < 0 || value > maximum ? fallback : ToLong(value);
}

}  // namespace

bool ChatTextHandler::Option(ChatOption option) {
    static constexpr std::string_view kNames[] = {
        "Kill: Show Monster XP",     "Kill: Show Unassigned XP",
        "Kill: Show XP to Level",    "Kill: Show XP/Hr",
        "Kill: Show Kills to Level", "Kill: Show Time to Level",
        "Improved Vitae Message",    "Show Comp Count on Burn",
        "Filter Nonexpired Spells",  "Combine Item Spell Cast and Expire",
        "No Clickable Names",        "Send Rare Message to All Windows",
    };
    static_assert(std::size(kNames) == static_cast<std::size_t>(ChatOption::kCount));

    const host::List& list = *Vars::ControlHandler->ChatOptions;
    const auto& rows = tables_->option_rows.Get(list, [](const host::List&) {
        std::array<std::int32_t, std::size(kNames)> found{};
        for (std::size_t i = 0; i < found.size(); ++i)
            found[i] = Vars::ControlHandler->FindName(kNames[i], "ChatOptions");
        return found;
    });
    return CellFlag(list, 0, rows[static_cast<std::size_t>(option)]);
}

bool ChatTextHandler::WordFilter(ChatLine& line) {
    if (line.adminLine) return true;

    const host::List& list = *Vars::ControlHandler->ChatFilter;
    std::string lower;  // with a blank at either end
    for (std::size_t row = 0;; ++row) {
        const auto& words =
            tables_->filter_words.Get(list, [](const host::List& rows) { return ReadRows(rows, &ReadFilterWord); });
        if (row >= words.size()) return true;

        const FilterWord& word = words[row];
        if (word.failure) throw *word.failure;
        if (!word.enabled) continue;

        if (lower.empty()) lower = fmt::format(" {} ", ToLower(line.working));
        const std::string_view inner = std::string_view(lower).substr(1, lower.size() - 2);
        if (!(word.whole ? word.around->Matches(lower) : Contains(inner, word.word))) continue;

        if (Vars::DebugMode) wtcw_debug(fmt::format("Chat Filtered {}", line.working));
        if (CellText(list, 3, static_cast<std::int32_t>(row)) == "Block") {
            line.show = false;
            return false;
        }
        if (word.whole) {
            line.SetWorking(MaskWholeWord(line.working, word.word, line.rewrite));
        } else {
            line.SetWorking(Replace(line.working, word.word, std::string(Length(word.word), '#')));
            line.rewrite = true;
        }
        lower.clear();
    }
}

// Takes the client's name link out of the text for the log, and, where the player wants it, out of the line.
void ChatTextHandler::TellLinks(ChatLine& line) {
    line.plain = line.working;
    if (line.type >= chat_type::kOmbrel) return;
    const std::size_t start = line.working.find(kLinkBegin);
    if (start == std::string_view::npos) return;

    line.plain = line.Keep(WithoutLink(line.working, start));
    if (Option(ChatOption::kNoClickableNames)) {
        line.working = line.plain;
        line.rewrite = true;
    }
    if (line.type == chat_type::kTell) line.npc = false;
}

// The rows as they stand at each step: an action may change them.
void ChatTextHandler::CustomRules(ChatLine& line) {
    const host::List& list = *Vars::ControlHandler->ChatCustom;
    for (std::size_t row = 0; !line.written; ++row) {
        const auto& rules =
            tables_->custom_rules.Get(list, [](const host::List& rows) { return ReadRows(rows, &ReadCustomRule); });
        if (row >= rules.size()) return;

        const CustomRule& rule = rules[row];
        if (rule.types == CustomRule::Types::kOne && rule.type != line.type) continue;
        if (rule.failure) throw *rule.failure;
        if (rule.pattern && rule.pattern->Matches(line.working)) ApplyCustomRule(line, static_cast<std::int32_t>(row));
    }
}

void ChatTextHandler::ApplyCustomRule(ChatLine& line, std::int32_t row) {
    const host::List& list = *Vars::ControlHandler->ChatCustom;
    if (Vars::DebugMode) wtcw_debug("Custom Rule Match " + CellText(list, 1, row));

    const std::int32_t color = ConvertColor(GetColorFromIcon(CellIcon(list, 4, row)));
    const std::string windows = CellText(list, 2, row);
    if (color == kDefaultColor && windows == "B") {
        line.show = false;
        line.blocked = true;
    } else {
        line.color = color;
        if (color == kDefaultColor) line.color = line.type == chat_type::kOmbrel ? kOwnLineColor : line.type;
        if (windows.empty() || windows == "D") {
            WriteToShowing(line.working, line.type, line.color);
        } else {
            const std::string letters = ToLower(windows);
            for (std::size_t i = 0; i < kWindowLetters.size(); ++i) {
                if (letters.find(kWindowLetters[i]) != std::string::npos)
                    Vars::FilterHandler->WriteToChatWindow(line.working, line.color, static_cast<std::int32_t>(i) + 1);
            }
        }
        line.show = false;
        line.written = true;
        line.adminLine = false;
    }
    if (const std::string sound = CellText(list, 5, row); !line.adminLine && sound != "None") PlayWavFile(sound);
    if (const std::string actions = CellText(list, 6, row); !actions.empty()) RunActions(actions);
}

void ChatTextHandler::RunActions(const std::string& actions) {
    for (const std::string_view part : Split(actions, ";")) {
        if (chain_broken_) return;
        const std::string_view action = Trim(part);
        if (action.starts_with('[')) {
            RunBracketAction(action);
        } else {
            Vars::FilterHandler->SendCommand(action);
        }
    }
}

// "[]text", "[type]text" or "[type,window]text": a line of its own that goes through all stages.
void ChatTextHandler::RunBracketAction(std::string_view action) {
    if (action.starts_with("[]")) {
        IncomingText(action.substr(2), chat_type::kOmbrel, 1, true, false);
        return;
    }
    const std::vector<std::string_view> pieces = Split(action.substr(1), "]");
    if (pieces.size() < 2) throw Failure(failure::kSubscript);

    const std::vector<std::string_view> values = Split(pieces[0], ",");
    const std::int32_t type = ActionValue(values[0], chat_type::kOmbrel, chat_type::kOmbrel);
    const std::int32_t window = values.size() == 2 ? ActionValue(values[1], kWindows - 1, 0) + 1 : 1;
    IncomingText(pieces[1], type, window, true, false);
}

void ChatTextHandler::ApplyColorRule(ChatLine& line, std::int32_t row) {
    const host::List& list = *Vars::ControlHandler->ChatColor;
    const std::int32_t color = ConvertColor(GetColorFromIcon(CellIcon(list, 3, row)));
    const std::string window = CellText(list, 2, row);
    if (window == "B") {
        line.show = false;
        line.blocked = true;
        return;
    }
    if (color != kDefaultColor || window != "D") {
        line.color = color == kDefaultColor ? line.type : color;
        if (window == "D") {
            WriteToShowing(line.working, line.type, line.color);
        } else {
            Vars::FilterHandler->WriteToChatWindow(line.working, line.color, WindowNumber(window));
        }
        line.show = false;
        line.written = true;
        line.adminLine = false;
    }
    if (line.adminLine) return;
    if (const std::string& sound = CellText(list, 4, row); sound != "None") PlayWavFile(std::string(sound));
}

}  // namespace ombrel
