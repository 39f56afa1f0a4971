#include "fuzz/support/Script.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "core/text.h"

namespace ombrel::fuzz {

void Fail(std::string_view what) {
    std::fprintf(stderr, "FUZZ: %s\n", std::string(what).c_str());
    std::abort();
}

std::vector<std::string_view> Lines(std::string_view script) { return Split(script, "\n"); }

Statement::Statement(std::string_view line) : line_(line), fields_(Split(line, "|")) {}

std::string_view Statement::From(std::size_t field) const {
    if (field >= fields_.size()) return {};
    return line_.substr(static_cast<std::size_t>(fields_[field].data() - line_.data()));
}

std::int32_t Statement::Number(std::size_t field, std::int32_t fallback) const {
    const std::string_view text = (*this)[field];
    std::int32_t number = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() ? number : fallback;
}

std::int32_t Statement::Number(std::size_t field, std::int32_t least, std::int32_t most) const {
    return std::clamp(Number(field, least), least, most);
}

}  // namespace ombrel::fuzz
