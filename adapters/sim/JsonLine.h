// Writes JSON in the style of the session format, a line at a time: {"at": 5.0, "call": "SelectItem", "id": 7}
#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "host/Types.h"

namespace ombrel::sim {

class JsonLine {
public:
    // Appends to `out`. A line is open until End.
    explicit JsonLine(std::string& out) : out_(out) { out_ += '{'; }
    JsonLine(const JsonLine&) = delete;
    JsonLine& operator=(const JsonLine&) = delete;

    void At(std::int64_t milliseconds);  // in seconds
    void Add(std::string_view name, std::string_view value);
    void Add(std::string_view name, const char* value) { Add(name, std::string_view(value)); }
    void Add(std::string_view name, std::int64_t value);
    void Add(std::string_view name, double value);
    void Add(std::string_view name, bool value);
    void Add(std::string_view name, const host::Rect& value);
    void AddJson(std::string_view name, const nlohmann::ordered_json& value);
    void End() { out_ += "}\n"; }

private:
    void Name(std::string_view name);

    std::string& out_;
    bool first_ = true;
};

}  // namespace ombrel::sim
