// Lines that the player types: commands of the plug-in, and aliases.
#include <fmt/format.h>

#include "chat/ChatTables.h"
#include "chat/ChatTextHandler.h"
#include "chat/Words.h"
#include "config/ControlHandler.h"
#include "core/FilterHandler.h"
#include "core/Vars.h"
#include "core/cells.h"
#include "core/like.h"
#include "core/text.h"
#include "input/KeyboardAC.h"

namespace ombrel {

namespace {

// How deep expansions may lead to further expansions.
constexpr std::int32_t kMaxDepth = 24;

// How long expansions may make a line: far longer than the client's chat box takes.
constexpr std::size_t kMaxLength = 10'000;

bool IsCommand(std::string_view text) { return text.starts_with('/') || text.starts_with('@'); }

void ReadAlias(const host::List& list, std::int32_t row, Alias& alias) {
    alias.enabled = CellFlag(list, 0, row);
    if (!alias.enabled) return;
    alias.abbreviation = CellText(list, 1, row);
    alias.full = CellText(list, 2, row);
    alias.command = IsCommand(alias.abbreviation);
    const std::string lower = ToLower(alias.abbreviation);
    alias.pattern = alias.command ? LikePattern("[/@]" + lower.substr(1) + "[!a-z]*") : WordPattern(lower);
}

// The "/" or "@" that the player typed stays, unless the whole is to be typed into the chat box.
void ExpandCommand(std::string& line, const Alias& alias, bool& typeIt) {
    std::string_view full = alias.full;
    if (full.ends_with('_')) {
        typeIt = true;
        line = ReplaceNoCase(line, alias.abbreviation, DropLast(full), 1);
    } else {
        std::size_t sign = 0;
        if (!full.empty()) NextCharacter(full, sign);
        full.remove_prefix(sign);
        line = ReplaceNoCase(line, std::string_view(alias.abbreviation).substr(1), full, 1);
    }
}

// Expands the abbreviation wherever it stands with no letter beside it. It is sought in the lower-cased line, so that
// one with capitals is never found. One whose full text brings it up anew ends in failure 28.
void ExpandWord(std::string& line, const Alias& alias) {
    const std::string& word = alias.abbreviation;
    if (word.empty()) return;

    std::size_t left = line.size();
    std::string lower = ToLower(line);
    for (std::size_t at = lower.find(word); at != std::string::npos; at = lower.find(word, Behind(lower, at, word))) {
        if (!StandsAlone(lower, at, word.size())) continue;
        if (left-- == 0 || line.size() > kMaxLength) throw Failure(failure::kStackSpace);
        line = line.substr(0, at) + ReplaceNoCase(std::string_view(line).substr(at), word, alias.full, 1);
        lower = ToLower(line);
    }
}

}  // namespace

bool ChatTextHandler::OutgoingText(const std::string& text) {
    bool pass = true;
    try {
        if (!Vars::Loaded) return pass;
        const DepthGuard guard(outgoing_depth_, kMaxDepth);
        if (LikeMatch(ToLower(text), "[/@]m *")) {
            RunCommand(Trim(std::string_view(text).substr(2)));
            return false;
        }
        std::string line = text;
        bool typeIt = false;
        if (!ExpandAliases(line, typeIt)) return pass;

        if (LikeMatch(line, "[/@]m *")) {
            OutgoingText(line);
        } else if (typeIt) {
            Vars::KeyboardAC->AddWaitforChat();
            Vars::KeyboardAC->SendString(line, true);
            Vars::KeyboardAC->Run();
        } else {
            Vars::FilterHandler->SendCommand(line);
        }
        pass = false;
    } catch (...) {
        ReportFailure("OutgoingText", "ChatTextHandler");
    }
    return pass;
}

// Returns whether an alias counted. Later word aliases work on what earlier ones made of the line.
bool ChatTextHandler::ExpandAliases(std::string& line, bool& typeIt) {
    const std::vector<Alias>& aliases = tables_->aliases.Get(
        *Vars::ControlHandler->ChatAlias, [](const host::List& rows) { return ReadRows(rows, &ReadAlias); });
    bool changed = false;
    if (IsCommand(line)) {
        const std::string lower = ToLower(line) + " ";
        for (const Alias& alias : aliases) {
            if (alias.failure) throw *alias.failure;
            if (!alias.enabled || !alias.command || !alias.pattern->Matches(lower)) continue;
            ExpandCommand(line, alias, typeIt);
            changed = true;
            break;
        }
    }
    line = fmt::format(" {} ", line);
    for (const Alias& alias : aliases) {
        if (alias.failure) throw *alias.failure;
        if (!alias.enabled || alias.command || !alias.pattern->Matches(ToLower(line))) continue;
        ExpandWord(line, alias);
        changed = true;
    }
    line = Trim(line);
    return changed;
}

}  // namespace ombrel
