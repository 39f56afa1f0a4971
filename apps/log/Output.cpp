#include "apps/log/Output.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <optional>
#include <pugixml.hpp>
#include <stdexcept>

#include "apps/log/StyleSheet.h"
#include "core/text.h"

namespace ombrel::log {
namespace {

struct Rgb {
    unsigned red, green, blue;
};

std::optional<Rgb> ColorOf(std::string_view color) {
    const auto is_hex = [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
    };
    if (color.size() != 7 || color[0] != '#' || !std::ranges::all_of(color.substr(1), is_hex)) return std::nullopt;
    const auto value = static_cast<unsigned>(std::stoul(std::string(color.substr(1)), nullptr, 16));
    return Rgb{value >> 16, value >> 8 & 0xFF, value & 0xFF};
}

std::string WithoutControls(std::string_view text) {
    std::string clean;
    for (std::size_t at = 0; at < text.size();) {
        const char32_t character = NextCharacter(text, at);
        const bool control = character < 0x20 || (character >= 0x7F && character < 0xA0);
        if (!control || character == '\n' || character == '\t') AppendCharacter(clean, character);
    }
    return clean;
}

void AppendEscaped(std::string& page, std::string_view text) {
    for (const char c : WithoutControls(text)) {
        if (c == '&')
            page += "&amp;";
        else if (c == '<')
            page += "&lt;";
        else if (c == '>')
            page += "&gt;";
        else if (c == '"')
            page += "&quot;";
        else
            page += c;
    }
}

void AppendLine(std::string& page, const Line& line) {
    page += fmt::format("\n<li data-tag=\"{}\" data-date=\"", line.tag);
    AppendEscaped(page, line.date.empty() ? line.day : line.date);
    page += '"';
    if (ColorOf(line.color)) page += fmt::format(" style=\"color:{}\"", line.color);
    page += "><time>";
    AppendEscaped(page, line.date);
    page += "</time> <span>";
    AppendEscaped(page, line.text);
    page += "</span></li>";
}

// Writes what the style sheet would make. Style and script stand in it as HTML wants them, unescaped.
void AppendNode(std::string& page, const pugi::xml_node& node, std::span<const Line> lines) {
    const std::string_view name = node.name();
    if (name == "xsl:apply-templates") {
        for (const Line& line : lines) AppendLine(page, line);
    } else if (node.type() == pugi::node_cdata) {
        page += node.value();
    } else if (node.type() == pugi::node_pcdata) {
        AppendEscaped(page, node.value());
    } else if (node.type() == pugi::node_element) {
        page += fmt::format("<{}", name);
        for (const auto& attribute : node.attributes()) {
            page += fmt::format(" {}=\"", attribute.name());
            AppendEscaped(page, attribute.value());
            page += '"';
        }
        page += '>';
        if (name == "meta" || name == "input") return;
        for (const auto& child : node.children()) AppendNode(page, child, lines);
        page += fmt::format("</{}>", name);
        page += '\n';
    }
}

}  // namespace

std::string TerminalLine(const Line& line, bool colored) {
    const std::string text = WithoutControls(line.text);
    const std::string date = line.date.empty() ? "" : fmt::format("<{}> ", WithoutControls(line.date));
    if (!colored) return date + text;
    std::string result = date.empty() ? "" : fmt::format("\x1b[2m{}\x1b[0m", date);
    const auto color = ColorOf(line.color);
    if (!color) return result + text;
    return result + fmt::format("\x1b[38;2;{};{};{}m{}\x1b[0m", color->red, color->green, color->blue, text);
}

std::string HtmlPage(std::span<const Line> lines) {
    pugi::xml_document style;
    const auto parsed = style.load_buffer(kStyleSheet.data(), kStyleSheet.size());
    const auto html = style.document_element().find_child_by_attribute("xsl:template", "match", "/").child("html");
    if (!parsed || !html) throw std::runtime_error("the style sheet of this program is broken");
    std::string page = "<!DOCTYPE html>\n";
    AppendNode(page, html, lines);
    return page;
}

}  // namespace ombrel::log
