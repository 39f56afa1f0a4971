// A line on its way through IncomingText.
#pragma once

#include <cstdint>
#include <forward_list>
#include <string>
#include <string_view>

namespace ombrel {

struct ChatLine {
    ChatLine(std::string_view text, std::int32_t chatType, std::int32_t window, bool mustWrite)
        : received(text),
          working(text),
          plain(text),
          type(chatType),
          color(chatType),
          target(window),
          rewrite(mustWrite) {}
    ChatLine(const ChatLine&) = delete;
    ChatLine& operator=(const ChatLine&) = delete;

    // Keeps a text as long as the line lives.
    std::string_view Keep(std::string text) { return texts_.emplace_front(std::move(text)); }
    void SetWorking(std::string text) { working = Keep(std::move(text)); }

    std::string_view received;  // what most tests look at
    std::string_view working;   // what is written
    std::string_view plain;     // what is logged: without name links
    std::int32_t type;
    std::int32_t color;  // in which it is written
    std::int32_t target;
    bool show = true;        // the client's own copy stands
    bool rewrite;            // must be written even if no rule touches it
    bool adminLine = false;  // begins with "+": neither filtered nor silenced
    bool npc = false;        // a tell without a name link
    bool written = false;    // has been put out, or counts as that
    bool blocked = false;    // a rule has kept it from the screen

private:
    std::forward_list<std::string> texts_;
};

}  // namespace ombrel
