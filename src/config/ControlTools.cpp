#include "config/ControlTools.h"

#include "core/Vars.h"
#include "host/Plugin.h"

namespace ombrel {

void SetMarker(host::List& list, std::int32_t column, std::int32_t row, std::int32_t icon) {
    list.SetData(column, row, Vars::Site->IconLibrary(), 0);
    list.SetData(column, row, icon, 1);
}

void MoveMark(host::List& list, std::int32_t& marked, std::int32_t row) {
    constexpr std::int32_t kNameColumn = 1;
    constexpr std::int32_t kPlain = 0x00FFFFFF;
    if (marked >= 0 && marked < list.Count()) list.SetColor(kNameColumn, marked, kPlain);
    list.SetColor(kNameColumn, row, kHighlight);
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

}  // namespace ombrel
