// The card of a target as text: what its object says about itself.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "host/World.h"

namespace ombrel::target {

// Reports each failing part of a card once, not at each redraw, until another object comes.
class ReportOnce {
public:
    void Report(std::size_t part, std::string_view procedure) noexcept;  // only from a handler
    void Clear() { told_ = 0; }

private:
    std::uint32_t told_ = 0;
};

// Reads anew from the object. What fails is left out, and reported unless `reports` is empty.
struct TargetCard {
    void Read(const host::WorldObject& object, ReportOnce* reports);

    std::int32_t icon = 0;  // without its base, 0 for none
    std::string name;
    bool health = false;   // it has a health bar
    bool waiting = false;  // the server has not told of it yet
    std::vector<std::string> rows;

    static constexpr std::size_t kParts = 8;  // numbers of its parts in reports, from 0
};

}  // namespace ombrel::target
