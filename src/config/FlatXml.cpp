#include "config/FlatXml.h"

#include <fmt/format.h>

#include <array>
#include <pugixml.hpp>
#include <utility>

namespace ombrel {

namespace {

constexpr std::string_view kBreak = "\r\t";

// Characters that can't stand in an attribute as they are. A line end or tab would come back as a blank.
constexpr std::array<bool, 256> kSpecial = [] {
    std::array<bool, 256> special{};
    for (int c = 0; c < 0x20; ++c) special[static_cast<std::size_t>(c)] = true;
    for (const char c : std::string_view("&<>\"")) special[static_cast<unsigned char>(c)] = true;
    return special;
}();

std::string_view Escape(char c) {
    switch (c) {
        case '&':
            return "&amp;";
        case '<':
            return "&lt;";
        case '>':
            return "&gt;";
        case '"':
            return "&quot;";
        case '\t':
            return "&#9;";
        case '\n':
            return "&#10;";
        case '\r':
            return "&#13;";
        default:
            return {};
    }
}

void AppendEscaped(std::string& text, std::string_view value) {
    std::size_t plain = 0;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (!kSpecial[static_cast<unsigned char>(value[i])]) continue;
        text.append(value.substr(plain, i - plain)).append(Escape(value[i]));
        plain = i + 1;
    }
    text.append(value.substr(plain));
}

}  // namespace

FlatXml::FlatXml(std::string_view version) {
    text_.reserve(32 * 1024);
    text_.append("<Ombrel");
    if (!version.empty()) Attribute("Version", version);
    text_.append(">").append(kBreak);
}

void FlatXml::Begin(std::string_view element) { text_.append("<").append(element); }

void FlatXml::Attribute(std::string_view name, std::string_view value) {
    text_.append(" ").append(name).append("=\"");
    AppendEscaped(text_, value);
    text_.append("\"");
}

void FlatXml::Attribute(std::string_view name, std::int32_t value) {
    const fmt::format_int text(value);
    Attribute(name, std::string_view(text.data(), text.size()));
}

void FlatXml::End() { text_.append("/>").append(kBreak); }

std::string FlatXml::Finish() {
    text_.append("\r</Ombrel>");
    return std::move(text_);
}

std::string_view GetAttribute(const pugi::xml_node& node, std::string_view name, std::string_view missing) {
    const pugi::xml_attribute attribute = node.attribute(name.data());
    return attribute ? std::string_view(attribute.value()) : missing;
}

}  // namespace ombrel
