#include "hud/TargetCard.h"

#include <span>

#include "core/failure.h"
#include "hud/TargetReading.h"
#include "hud/TargetRows.h"

namespace ombrel::target {
namespace {

constexpr std::string_view kProcedure = "OutputHud";

// Parts of a card.
enum Part : std::size_t { kIconPart, kNamePart, kClassPart, kFirstRow };
static_assert(kFirstRow + kMostRows <= TargetCard::kParts);

}  // namespace

void ReportOnce::Report(std::size_t part, std::string_view procedure) noexcept {
    const std::uint32_t bit = 1U << part;
    if (told_ & bit) return;
    told_ |= bit;
    ReportFailure(procedure, "HudHandlerT");
}

void TargetCard::Read(const host::WorldObject& object, ReportOnce* reports) {
    Reading reading{object};
    const auto attempt = [&](std::size_t part, const auto& read) {
        reading.procedure = kProcedure;
        try {
            read();
        } catch (...) {
            if (reports) reports->Report(part, reading.procedure);
        }
    };

    icon = 0;
    name.clear();
    health = waiting = false;
    rows.clear();
    attempt(kIconPart, [&] { icon = reading.Long(host::key::kIcon); });
    attempt(kNamePart, [&] { name = NameText(reading); });

    std::span<const RowText> texts;
    attempt(kClassPart, [&] {
        const std::int32_t object_class = object.Type();
        health = HasHealth(object_class);
        waiting = object.HasIdData() == 0;
        if (!waiting) texts = RowsOf(object_class);
    });
    for (std::size_t row = 0; row < texts.size(); ++row) {
        attempt(kFirstRow + row, [&] {
            if (std::string text = texts[row](reading); !text.empty()) rows.push_back(std::move(text));
        });
    }
}

}  // namespace ombrel::target
