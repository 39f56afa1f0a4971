// Cells of list controls, read in the kind that the reader needs. A cell of another kind converts where that makes
// sense and is failure 13 where it doesn't.
#pragma once

#include <cstdint>
#include <string>

#include "host/Controls.h"

namespace ombrel {

// The text of a cell; a text cell's own, without a copy.
const std::string& CellText(const host::List& list, std::int32_t column, std::int32_t row);
bool CellFlag(const host::List& list, std::int32_t column, std::int32_t row);
std::int32_t CellIcon(const host::List& list, std::int32_t column, std::int32_t row);  // sub-cell 1

}  // namespace ombrel
