#include "apps/log/ChatLog.h"

#include <fmt/format.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iterator>
#include <pugixml.hpp>
#include <stdexcept>

#include "chat/LogDocument.h"
#include "core/text.h"

namespace ombrel::log {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Takes a number of one to `most` digits off the front; -1 when there is none.
int TakeNumber(std::string_view& text, std::size_t most) {
    int number = 0;
    std::size_t digits = 0;
    while (digits < most && digits < text.size() && IsDigit(text[digits]))
        number = number * 10 + (text[digits++] - '0');
    text.remove_prefix(digits);
    return digits ? number : -1;
}

bool Take(std::string_view& text, char c) {
    if (!text.starts_with(c)) return false;
    text.remove_prefix(1);
    return true;
}

// The day at the end of a log's name, as in "Frostfell_Aldra_2024-07-04".
std::string DayOfName(std::string_view name) {
    if (name.size() < 10) return {};
    const std::string_view day = name.substr(name.size() - 10);
    for (std::size_t i = 0; i < day.size(); ++i)
        if (i == 4 || i == 7 ? day[i] != '-' : !IsDigit(day[i])) return {};
    return std::string(day);
}

std::string ReadWhole(const std::filesystem::path& file) {
    std::error_code ignored;
    if (std::filesystem::is_directory(file, ignored)) throw std::runtime_error("is a folder");
    errno = 0;
    std::ifstream stream(file, std::ios::binary);
    std::string content{std::istreambuf_iterator<char>(stream), {}};
    if (!stream.is_open() || stream.bad()) throw std::runtime_error(std::strerror(errno ? errno : EIO));
    return content;
}

std::vector<Line> ReadXml(std::string content) {
    const MendedLog mended = MendLog(content);
    const std::string& whole = mended.content.empty() ? content : mended.content;
    pugi::xml_document document;
    document.load_buffer(whole.data(), whole.size(), pugi::parse_default | pugi::parse_ws_pcdata_single);
    std::vector<Line> lines;
    for (const auto& message : document.document_element().children("Message")) {
        const std::string date = message.attribute("date").value();
        lines.push_back({message.text().get(), date, DayOf(date), message.attribute("color").value(),
                         message.attribute("tag").as_int()});
    }
    if (lines.empty() && !mended.lossless) throw std::runtime_error("is no chat log");
    return lines;
}

std::vector<Line> ReadText(std::string_view content, const std::string& day) {
    // Where lines end in CR LF, a line feed alone is inside one.
    const std::string text = FromWindows1252(content);
    const std::string_view ending = Contains(text, "\r\n") ? "\r\n" : "\n";
    std::vector<Line> lines;
    for (const std::string_view whole : Split(text, ending)) {
        Line line{std::string(whole), {}, day, {}, 0};
        const auto close = whole.find("> ");
        if (whole.starts_with('<') && close != std::string_view::npos) {
            const std::string_view date = whole.substr(1, close - 1);
            if (std::string dated = DayOf(date); !dated.empty())
                line = {std::string(whole.substr(close + 2)), std::string(date), std::move(dated), {}, 0};
        }
        lines.push_back(std::move(line));
    }
    if (lines.back().text.empty()) lines.pop_back();  // behind the last line's end
    return lines;
}

}  // namespace

std::string DayOf(std::string_view date) {
    const int month = TakeNumber(date, 2);
    if (month < 1 || month > 12 || !Take(date, '/')) return {};
    const int day = TakeNumber(date, 2);
    if (day < 1 || day > 31 || !Take(date, '/')) return {};
    const int year = TakeNumber(date, 4);
    if (year < 100) return {};
    if (!date.empty()) {
        const bool timed = Take(date, ' ') && TakeNumber(date, 2) >= 1 && Take(date, ':') && TakeNumber(date, 2) >= 0 &&
                           Take(date, ':') && TakeNumber(date, 2) >= 0;
        if (!timed || (date != " AM" && date != " PM")) return {};
    }
    return fmt::format("{:04}-{:02}-{:02}", year, month, day);
}

std::vector<Line> ReadLog(const std::filesystem::path& file) {
    try {
        std::string content = ReadWhole(file);
        const auto begin = content.find_first_not_of("\xEF\xBB\xBF \t\r\n");
        const auto start = std::string_view(content).substr(begin == std::string::npos ? content.size() : begin);
        const bool xml =
            ToLower(file.extension().string()) == ".xml" || start.starts_with("<?xml") || start.starts_with("<Log");
        return xml ? ReadXml(std::move(content)) : ReadText(content, DayOfName(file.stem().string()));
    } catch (const std::exception& error) {
        throw std::runtime_error(fmt::format("{}: {}", file.string(), error.what()));
    }
}

}  // namespace ombrel::log
