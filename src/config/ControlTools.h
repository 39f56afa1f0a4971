// Small tools for the controls of the options view.
//
// A cell of an icon column names a library in sub-cell 0 and an icon in sub-cell 1: the plug-in's own file for colour
// markers, 0 for the client's portal file.
#pragma once

#include <cstdint>
#include <string_view>

#include "host/Controls.h"

namespace ombrel {

// Portal icons of the rows' buttons.
namespace icon {
constexpr std::int32_t kUp = 0x60028FD;
constexpr std::int32_t kDown = 0x60028FC;
constexpr std::int32_t kDelete = 0x60011F8;
}  // namespace icon

// Puts a colour marker into a cell.
void SetMarker(host::List& list, std::int32_t column, std::int32_t row, std::int32_t icon);

// Exchanges a cell of two rows.
void SwapCells(host::List& list, std::int32_t column, std::int32_t a, std::int32_t b, std::int32_t sub = 0);

// Whether a click hit a row, and not the room beside the rows.
bool HasRow(const host::List& list, std::int32_t row);

// The mark of the row that the detail choices show.
constexpr std::int32_t kHighlight = 0xFFFF80;

// Moves the mark to another row, which `marked` names from then on.
void MoveMark(host::List& list, std::int32_t& marked, std::int32_t row, std::int32_t column = 1);

// Selects the first entry of a choice whose text is `text`; without one the selection stays.
void SelectText(host::Choice& choice, std::string_view text);

// The text of the selected entry, or `none` when nothing is selected.
std::string_view SelectedText(const host::Choice& choice, std::string_view none = {});

// The whole number of a text that a player typed; one that is too large is the largest there is.
std::int32_t NearestLong(std::string_view text);

}  // namespace ombrel
