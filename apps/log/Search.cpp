#include "apps/log/Search.h"

#include <fmt/format.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <stdexcept>

#include "core/text.h"

namespace ombrel::log {
namespace {

void CheckDay(const std::string& text) {
    int year = 0;
    unsigned month = 0, day = 0;
    char more = 0;
    const bool read = text.size() == 10 && std::sscanf(text.c_str(), "%4d-%2u-%2u%c", &year, &month, &day, &more) == 3;
    const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(month), std::chrono::day(day)};
    if (!read || !date.ok()) throw std::runtime_error(fmt::format("'{}' is no day like 2024-07-04", text));
}

}  // namespace

void Search::SetWords(std::string_view words) {
    alternatives_.clear();
    for (const std::string_view piece : Split(words, "|")) {
        std::vector<std::string> terms;
        for (const std::string_view term : Split(piece, "+"))
            if (!Trim(term).empty()) terms.emplace_back(Trim(term));
        if (!terms.empty()) alternatives_.push_back(std::move(terms));
    }
}

void Search::AddClass(std::string_view name) {
    const std::string wanted = ToLower(Trim(name));
    std::vector<int> found;
    for (int tag = 0; tag < static_cast<int>(kClassNames.size()); ++tag) {
        const std::string known = ToLower(kClassNames[static_cast<std::size_t>(tag)]);
        if (wanted == known || wanted == std::to_string(tag)) {
            tags_.insert(tag);
            return;
        }
        if (!wanted.empty() && known.starts_with(wanted)) found.push_back(tag);
    }
    if (found.size() != 1) {
        throw std::runtime_error(fmt::format("{} class '{}'; there are: {}", found.empty() ? "no" : "more than one",
                                             name, fmt::join(kClassNames, ", ")));
    }
    tags_.insert(found.front());
}

void Search::SetDays(std::string_view days) {
    const auto dots = days.find("..");
    first_day_ = days.substr(0, dots);
    last_day_ = dots == std::string_view::npos ? first_day_ : std::string(days.substr(dots + 2));
    any_day_ = false;
    if (dots == std::string_view::npos || !first_day_.empty()) CheckDay(first_day_);
    if (!last_day_.empty()) CheckDay(last_day_);
}

bool Search::Fits(const Line& line) const {
    if (!tags_.empty() && !tags_.contains(line.tag)) return false;
    if (!any_day_) {
        if (line.day.empty() || line.day < first_day_) return false;
        if (!last_day_.empty() && line.day > last_day_) return false;
    }
    return alternatives_.empty() || std::ranges::any_of(alternatives_, [&](const auto& terms) {
               return std::ranges::all_of(terms, [&](const auto& term) { return ContainsNoCase(line.text, term); });
           });
}

}  // namespace ombrel::log
