#include "config/ControlTools.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "core/Vars.h"
#include "core/convert.h"
#include "host/Plugin.h"

namespace ombrel {

void SetMarker(host::List& list, std::int32_t column, std::int32_t row, std::int32_t icon) {
    list.SetData(column, row, Vars::Site->IconLibrary(), 0);
    list.SetData(column, row, icon, 1);
}

void SwapCells(host::List& list, std::int32_t column, std::int32_t a, std::int32_t b, std::int32_t sub) {
    host::Cell held = list.Data(column, a, sub);
    list.SetData(column, a, list.Data(column, b, sub), sub);
    list.SetData(column, b, std::move(held), sub);
}

bool HasRow(const host::List& list, std::int32_t row) { return row >= 0 && row < list.Count(); }

void MoveMark(host::List& list, std::int32_t& marked, std::int32_t row, std::int32_t column) {
    constexpr std::int32_t kPlain = 0x00FFFFFF;
    if (HasRow(list, marked)) list.SetColor(column, marked, kPlain);
    list.SetColor(column, row, kHighlight);
    marked = row;
}

void SelectText(host::Choice& choice, std::string_view text) {
    const std::int32_t count = choice.Count();
    for (std::int32_t index = 0; index < count; ++index) {
        if (choice.Text(index) != text) continue;
        choice.SetSelected(index);
        return;
    }
}

std::string_view SelectedText(const host::Choice& choice, std::string_view none) {
    const std::int32_t selected = choice.Selected();
    return selected < 0 || selected >= choice.Count() ? none : std::string_view(choice.Text(selected));
}

std::int32_t NearestLong(std::string_view text) {
    constexpr double kLowest = std::numeric_limits<std::int32_t>::min();
    constexpr double kHighest = std::numeric_limits<std::int32_t>::max();
    return ToLong(std::clamp(ToDouble(text), kLowest, kHighest));
}

}  // namespace ombrel
