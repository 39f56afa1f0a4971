// Fuzz inputs are small scripts: a statement a line, its fields divided by "|". Whatever a field holds, it means
// something, so that few inputs are wasted.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace ombrel::fuzz {

// Says what went wrong and ends the process, which is how a fuzzer learns of it.
[[noreturn]] void Fail(std::string_view what);
inline void Require(bool holds, std::string_view what) {
    if (!holds) Fail(what);
}

inline std::string_view TextOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

std::vector<std::string_view> Lines(std::string_view script);

// The fields of a statement.
class Statement {
public:
    explicit Statement(std::string_view line);

    // The first letter of the first field: what to do.
    char verb() const { return fields_[0].empty() ? '\0' : fields_[0][0]; }

    std::string_view operator[](std::size_t field) const { return field < fields_.size() ? fields_[field] : ""; }
    std::string_view From(std::size_t field) const;                           // that field and all behind it
    std::int32_t Number(std::size_t field, std::int32_t fallback = 0) const;  // the fallback for what is no number
    std::int32_t Number(std::size_t field, std::int32_t least, std::int32_t most) const;  // kept within its limits
    std::size_t size() const { return fields_.size(); }

private:
    std::string_view line_;
    std::vector<std::string_view> fields_;
};

}  // namespace ombrel::fuzz
