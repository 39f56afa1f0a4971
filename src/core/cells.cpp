#include "core/cells.h"

#include "core/convert.h"
#include "core/failure.h"

namespace ombrel {

const std::string& CellText(const host::List& list, std::int32_t column, std::int32_t row) {
    static const std::string kTrue{BoolText(true)};
    static const std::string kFalse{BoolText(false)};

    const auto& cell = list.Data(column, row);
    if (const auto* text = std::get_if<std::string>(&cell)) return *text;
    if (const auto* flag = std::get_if<bool>(&cell)) return *flag ? kTrue : kFalse;

    // Only one number is asked for at a time: nobody reads an icon as text but by mistake.
    static std::string number;
    number = NumberText(std::get<std::int32_t>(cell));
    return number;
}

bool CellFlag(const host::List& list, std::int32_t column, std::int32_t row) {
    const auto& cell = list.Data(column, row);
    if (const auto* flag = std::get_if<bool>(&cell)) return *flag;
    if (const auto* number = std::get_if<std::int32_t>(&cell)) return *number != 0;
    return ToBool(std::get<std::string>(cell));
}

std::int32_t CellIcon(const host::List& list, std::int32_t column, std::int32_t row) {
    const auto& cell = list.Data(column, row, 1);
    if (const auto* number = std::get_if<std::int32_t>(&cell)) return *number;
    if (const auto* flag = std::get_if<bool>(&cell)) return *flag ? -1 : 0;
    return ToLong(std::get<std::string>(cell));
}

}  // namespace ombrel
