#include "adapters/sim/JsonLine.h"

#include <fmt/format.h>

#include <cmath>
#include <iterator>

namespace ombrel::sim {
namespace {

using OrderedJson = nlohmann::ordered_json;

// The length of the UTF-8 sequence that `text` begins with, or 0 when it is none.
std::size_t SequenceLength(std::string_view text) {
    const auto byte = [text](std::size_t index) { return static_cast<unsigned char>(text[index]); };
    const unsigned char lead = byte(0);
    const std::size_t length = lead < 0x80   ? 1
                               : lead < 0xC2 ? 0
                               : lead < 0xE0 ? 2
                               : lead < 0xF0 ? 3
                               : lead < 0xF5 ? 4
                                             : 0;
    if (length == 0 || length > text.size()) return 0;
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0) != 0x80) return 0;
    }
    const bool overlong = (lead == 0xE0 && byte(1) < 0xA0) || (lead == 0xF0 && byte(1) < 0x90);
    const bool outside = (lead == 0xED && byte(1) > 0x9F) || (lead == 0xF4 && byte(1) > 0x8F);
    return overlong || outside ? 0 : length;
}

void AppendText(std::string& out, std::string_view text) {
    out += '"';
    while (!text.empty()) {
        std::size_t plain = 0;
        while (plain < text.size() && static_cast<unsigned char>(text[plain]) >= 0x20 &&
               static_cast<unsigned char>(text[plain]) < 0x80 && text[plain] != '"' && text[plain] != '\\') {
            ++plain;
        }
        out.append(text.substr(0, plain));
        text.remove_prefix(plain);
        if (text.empty()) break;

        const char character = text.front();
        std::size_t length = 1;
        switch (character) {
            case '"':
                out += "\\\"";
                break;
            case '\\':
                out += "\\\\";
                break;
            case '\n':
                out += "\\n";
                break;
            case '\r':
                out += "\\r";
                break;
            case '\t':
                out += "\\t";
                break;
            default:
                if (static_cast<unsigned char>(character) < 0x20) {
                    fmt::format_to(std::back_inserter(out), "\\u{:04x}", static_cast<unsigned char>(character));
                } else if ((length = SequenceLength(text)) != 0) {
                    out.append(text.substr(0, length));
                } else {
                    out += "\xEF\xBF\xBD";
                    length = 1;
                }
        }
        text.remove_prefix(length);
    }
    out += '"';
}

void AppendNumber(std::string& out, double value) {
    if (!std::isfinite(value)) {
        out += "null";
        return;
    }
    const std::size_t start = out.size();
    fmt::format_to(std::back_inserter(out), "{}", value);
    if (std::string_view(out).substr(start).find_first_of(".e") == std::string_view::npos) out += ".0";
}

void AppendValue(std::string& out, const OrderedJson& value) {
    const char* separator = "";
    if (value.is_object()) {
        out += '{';
        for (const auto& [key, item] : value.items()) {
            out += separator;
            AppendText(out, key);
            out += ": ";
            AppendValue(out, item);
            separator = ", ";
        }
        out += '}';
    } else if (value.is_array()) {
        out += '[';
        for (const OrderedJson& item : value) {
            out += separator;
            AppendValue(out, item);
            separator = ", ";
        }
        out += ']';
    } else if (value.is_string()) {
        AppendText(out, value.get_ref<const std::string&>());
    } else if (value.is_number_float()) {
        AppendNumber(out, value.get<double>());
    } else {
        out += value.dump();
    }
}

}  // namespace

void JsonLine::Name(std::string_view name) {
    if (!first_) out_ += ", ";
    first_ = false;
    AppendText(out_, name);
    out_ += ": ";
}

void JsonLine::At(std::int64_t milliseconds) {
    Name("at");
    fmt::format_to(std::back_inserter(out_), "{}.{:03}", milliseconds / 1000, milliseconds % 1000);
    for (int zeros = 0; zeros < 2 && out_.back() == '0'; ++zeros) out_.pop_back();
}

void JsonLine::Add(std::string_view name, std::string_view value) {
    Name(name);
    AppendText(out_, value);
}

void JsonLine::Add(std::string_view name, std::int64_t value) {
    Name(name);
    fmt::format_to(std::back_inserter(out_), "{}", value);
}

void JsonLine::Add(std::string_view name, double value) {
    Name(name);
    AppendNumber(out_, value);
}

void JsonLine::Add(std::string_view name, bool value) {
    Name(name);
    out_ += value ? "true" : "false";
}

void JsonLine::Add(std::string_view name, const host::Rect& value) {
    Name(name);
    fmt::format_to(std::back_inserter(out_), "[{}, {}, {}, {}]", value.left, value.top, value.right, value.bottom);
}

void JsonLine::AddJson(std::string_view name, const OrderedJson& value) {
    Name(name);
    AppendValue(out_, value);
}

}  // namespace ombrel::sim
