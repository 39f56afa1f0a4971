#include "config/NameIndex.h"

#include "core/cells.h"

namespace ombrel {

std::int32_t NameIndex::Find(const host::List& list, std::string_view name) {
    if (list_ != &list || revision_ != list.Revision()) {
        list_ = &list;
        revision_ = list.Revision();
        rows_.clear();
    }
    if (const auto found = rows_.find(name); found != rows_.end()) return found->second;

    constexpr std::int32_t kNameColumn = 1;
    const std::int32_t count = list.Count();
    for (std::int32_t row = 0; row < count; ++row) {
        if (CellText(list, kNameColumn, row) != name) continue;
        rows_.emplace(name, row);
        return row;
    }
    return -1;
}

}  // namespace ombrel
