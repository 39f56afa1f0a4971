#include "chat/LogFile.h"

#include <fmt/format.h>

#include <fstream>
#include <pugixml.hpp>
#include <system_error>

#include "config/ControlHandler.h"
#include "core/Vars.h"
#include "core/failure.h"
#include "core/files.h"
#include "core/text.h"
#include "core/time.h"

namespace ombrel {
namespace {

constexpr std::string_view kHead = "<?xml-stylesheet type=\"text/xsl\" href=\"style/ombrellog.xsl\"?><Log>\r";
constexpr std::string_view kTail = "</Log>";
constexpr std::string_view kMessageEnd = "</Message>";

std::uint64_t FileSize(const std::string& path) {
    std::error_code none;
    const auto size = std::filesystem::file_size(NativePath(path), none);
    return none ? 0 : size;
}

// Writes at a place of an existing file and cuts it there behind. On failure the old end is put back, which needs no
// room.
void WriteAt(const std::string& path, std::uint64_t place, std::string_view content, std::string_view old_end) {
    const auto native = NativePath(path);
    std::fstream file(native, std::ios::in | std::ios::out | std::ios::binary);
    if (!file) throw Failure(failure::kFileAccess, "Can't write to " + path);
    file.seekp(static_cast<std::streamoff>(place));
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    file.flush();
    if (file) return;

    file.clear();
    file.seekp(static_cast<std::streamoff>(place));
    file.write(old_end.data(), static_cast<std::streamsize>(old_end.size()));
    file.close();
    std::error_code ignored;
    std::filesystem::resize_file(native, place + old_end.size(), ignored);
    throw Failure(failure::kDeviceIO, "Can't write all of " + path);
}

// Text as XML can hold it: markup as entities, control characters left out.
void AppendEscaped(std::string& out, std::string_view text) {
    for (const char c : text) {
        switch (c) {
            case '&':
                out += "&amp;";
                break;
            case '<':
                out += "&lt;";
                break;
            case '>':
                out += "&gt;";
                break;
            case '"':
                out += "&quot;";
                break;
            case '\t':
            case '\n':
                out += c;
                break;
            default:
                if (static_cast<unsigned char>(c) >= 0x20 && c != 0x7F) out += c;
        }
    }
}

}  // namespace

TextLog::TextLog(std::string path) : path_(std::move(path)) { AppendFile(path_, {}); }

void TextLog::Write(const std::deque<LogItem>& items) {
    const bool dated = Vars::ControlHandler->ChatLogTimestamp->Checked();
    std::string lines;
    for (const LogItem& item : items) {
        if (dated) lines += "<" + FormatGeneralDate(UnixToDate(item.msgdate)) + "> ";
        lines += item.message;
        lines += "\r\n";
    }
    const std::uint64_t size = FileSize(path_);
    try {
        AppendFile(path_, ToWindows1252(lines));
    } catch (...) {
        std::error_code ignored;
        if (FileSize(path_) > size) std::filesystem::resize_file(NativePath(path_), size, ignored);
        throw;
    }
}

XmlLog::XmlLog(std::string path) : path_(std::move(path)) { Open(); }

void XmlLog::Open() {
    std::string content = FileExists(path_) ? ReadFile(path_) : std::string();
    pugi::xml_document document;
    bool good = !content.empty() && document.load_buffer(content.data(), content.size());
    if (!good && content.starts_with(kHead)) {
        // A crash cut the end off: the last finished line is the end now.
        const auto last = content.rfind(kMessageEnd);
        content.resize(last == std::string::npos ? kHead.size() : last + kMessageEnd.size());
        content += "\r";
        content += kTail;
        good = static_cast<bool>(document.load_buffer(content.data(), content.size()));
        if (good) SaveFile(path_, content, Durability::kProcess);
    }
    const auto end = good ? content.rfind(fmt::format("</{}>", document.document_element().name())) : std::string::npos;
    if (end == std::string::npos) {
        if (!content.empty()) KeepCopy(path_, "not a log");
        content = std::string(kHead) + std::string(kTail);
        SaveFile(path_, content, Durability::kProcess);
        insert_at_ = kHead.size();
    } else {
        insert_at_ = end;
    }
    closing_ = content.substr(insert_at_);
    size_ = content.size();
}

void XmlLog::Write(const std::deque<LogItem>& items) {
    if (!FileExists(path_) || FileSize(path_) != size_) Open();  // somebody has touched the file
    std::string lines;
    for (const LogItem& item : items) lines += XmlMessage(item);
    if (lines.empty()) return;
    WriteAt(path_, insert_at_, lines + closing_, closing_);
    insert_at_ += lines.size();
    size_ = insert_at_ + closing_.size();
}

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

}  // namespace ombrel
