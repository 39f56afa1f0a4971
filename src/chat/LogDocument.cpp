#include "chat/LogDocument.h"

#include <fmt/format.h>

#include <algorithm>
#include <pugixml.hpp>
#include <sstream>

#include "core/Vars.h"
#include "core/failure.h"
#include "core/text.h"
#include "core/time.h"

namespace ombrel {
namespace {

constexpr std::string_view kRoot = "<Log>";
constexpr std::string_view kMessage = "<Message ";
constexpr std::string_view kMessageEnd = "</Message>";

// Text as XML can hold it: markup as entities, without what no document may have.
void AppendEscaped(std::string& out, std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        switch (const char32_t character = NextCharacter(text, at)) {
            case '&':
                out += "&amp;";
                break;
            case '<':
                out += "&lt;";
                break;
            case '>':
                out += "&gt;";
                break;
            default: {
                const bool control = character < 0x20 && character != '\t' && character != '\n';
                if (!control && character != 0xFFFE && character != 0xFFFF) AppendCharacter(out, character);
            }
        }
    }
}

bool IsDocument(std::string_view content) {
    pugi::xml_document document;
    return static_cast<bool>(document.load_buffer(content.data(), content.size()));
}

std::size_t FindEndTag(std::string_view content) {
    pugi::xml_document document;
    if (!document.load_buffer(content.data(), content.size())) return std::string_view::npos;
    return content.rfind(fmt::format("</{}>", document.document_element().name()));
}

// The document in our own way of writing, with an end tag.
std::string Rewritten(std::string_view content) {
    pugi::xml_document document;
    document.load_buffer(content.data(), content.size(), pugi::parse_full | pugi::parse_ws_pcdata);
    const auto is_declaration = [](pugi::xml_node node) { return node.type() == pugi::node_declaration; };
    while (const auto declaration = document.find_child(is_declaration)) document.remove_child(declaration);
    document.document_element().append_child(pugi::node_pcdata).set_value("\n");

    std::ostringstream text;
    document.save(text, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
    return std::move(text).str();
}

// Whether all that stands here is an unfinished line, or an unfinished end of the log.
bool IsUnfinished(std::string_view rest) {
    constexpr std::string_view kBlank("\r\n\t \0", 5);
    rest.remove_prefix(std::min(rest.find_first_not_of(kBlank), rest.size()));
    rest = rest.substr(0, rest.find_last_not_of(kBlank) + 1);
    if (kLogTail.starts_with(rest) || kMessage.starts_with(rest)) return true;
    if (!rest.starts_with(kMessage)) return false;
    const auto markup = rest.find('<', 1);
    return markup == std::string_view::npos || kMessageEnd.starts_with(rest.substr(markup));
}

MendedLog MendBroken(std::string_view content) {
    const auto last = content.rfind(kMessageEnd);
    const auto root = content.find(kRoot);
    std::size_t end = 0;
    if (last != std::string_view::npos)
        end = last + kMessageEnd.size();
    else if (root != std::string_view::npos)
        end = root + kRoot.size();
    else
        return {{}, 0, kLogHead.starts_with(content)};

    MendedLog log{fmt::format("{}\r{}", content.substr(0, end), kLogTail), end + 1, IsUnfinished(content.substr(end))};
    if (!IsDocument(log.content)) return {{}, 0, false};
    return log;
}

}  // namespace

std::string XmlMessage(const LogItem& item) {
    if (item.msgcolor < 0 || item.msgcolor >= static_cast<std::int32_t>(Vars::ChatHtmlColors.size()))
        throw Failure(failure::kSubscript);
    std::string line = fmt::format("\r\t<Message type=\"{}\" color=\"{}\" tag=\"{}\" date=\"{}\">", item.msgtype,
                                   Vars::ChatHtmlColors[static_cast<std::size_t>(item.msgcolor)], item.msgtag,
                                   FormatGeneralDate(UnixToDate(item.msgdate)));
    AppendEscaped(line, item.message);
    line += kMessageEnd;
    line += "\r";
    return line;
}

MendedLog MendLog(std::string content) {
    if (!IsDocument(content)) return MendBroken(content);
    auto end_tag = FindEndTag(content);
    if (end_tag == std::string::npos) {
        content = Rewritten(content);
        end_tag = FindEndTag(content);
    }
    return {std::move(content), end_tag, true};
}

}  // namespace ombrel
