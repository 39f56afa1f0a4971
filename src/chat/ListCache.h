// What has been worked out of a list of the options view, kept while the list stands as it is.
#pragma once

#include <cstdint>
#include <utility>

#include "host/Controls.h"

namespace ombrel {

template <class T>
class ListCache {
public:
    // The value for the list as it is now; `build(list)` makes it. A failing build leaves none, and is tried again.
    // The reference holds until the list changes.
    template <class Build>
    const T& Get(const host::List& list, Build&& build) {
        const std::uint32_t revision = list.Revision();
        if (list_ != &list || revision_ != revision) {
            list_ = nullptr;
            value_ = std::forward<Build>(build)(list);
            list_ = &list;
            revision_ = revision;
        }
        return value_;
    }

private:
    const host::List* list_ = nullptr;
    std::uint32_t revision_ = 0;
    T value_{};
};

}  // namespace ombrel
