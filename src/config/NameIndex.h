// Where the rows of a list stand, by the text of their name column.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

#include "host/Controls.h"

namespace ombrel {

// Remembers what it found for as long as the list stays as it is: each chat line asks for a handful of names.
class NameIndex {
public:
    // The first row whose column 1 is `name`, or -1.
    std::int32_t Find(const host::List& list, std::string_view name);

private:
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
    };

    const host::List* list_ = nullptr;
    std::uint32_t revision_ = 0;
    std::unordered_map<std::string, std::int32_t, Hash, std::equal_to<>> rows_;
};

}  // namespace ombrel
