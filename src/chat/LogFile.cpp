#include "chat/LogFile.h"

#include <fmt/format.h>

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <system_error>

#include "chat/LogDocument.h"
#include "config/ControlHandler.h"
#include "core/Vars.h"
#include "core/failure.h"
#include "core/files.h"
#include "core/text.h"
#include "core/time.h"

namespace ombrel {
namespace {

std::uint64_t FileSize(const std::string& path) {
    std::error_code none;
    const auto size = std::filesystem::file_size(NativePath(path), none);
    return none ? 0 : size;
}

// The last bytes of a file, at most `count`; none of a file that can't be read.
std::string EndOf(const std::string& path, std::uint64_t count) {
    count = std::min(count, FileSize(path));
    std::string end(static_cast<std::size_t>(count), '\0');
    std::ifstream file(NativePath(path), std::ios::binary);
    file.seekg(-static_cast<std::streamoff>(count), std::ios::end);
    if (!file.read(end.data(), static_cast<std::streamsize>(count))) end.clear();
    return end;
}

// Writes into an existing file. Returns what the system says against it, or 0.
int WriteAt(const std::string& path, std::uint64_t place, std::string_view content) {
    errno = 0;
    std::fstream file(NativePath(path), std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(static_cast<std::streamoff>(place));
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    file.close();
    if (file) return 0;
    return errno ? errno : EIO;
}

// Puts content in the place of a file's end, and the old end back when that fails, which needs no room.
void ReplaceEnd(const std::string& path, std::uint64_t place, std::string_view content, std::string_view old_end) {
    const int error = WriteAt(path, place, content);
    if (error == 0) return;
    const std::uint64_t size = place + old_end.size();
    std::error_code ignored;
    if (WriteAt(path, place, old_end) == 0 && FileSize(path) > size)
        std::filesystem::resize_file(NativePath(path), size, ignored);
    const auto number = FailureNumber(std::error_code(error, std::generic_category()));
    throw Failure(number, fmt::format("{}: {}", FailureText(number), path));
}

}  // namespace

TextLog::TextLog(std::string path) : path_(std::move(path)) {
    // The next line stays apart from one that a crash cut off.
    const std::string end = EndOf(path_, 1);
    AppendFile(path_, end.empty() || end == "\n" ? "" : "\r\n");
}

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
    const std::string found = FileExists(path_) ? ReadFile(path_) : std::string();
    const MendedLog log = MendLog(found);
    if (!log.lossless) KeepCopy(path_, "not a log");
    begun_ = !log.content.empty();
    if (begun_ && log.content != found) SaveFile(path_, log.content, Durability::kProcess);

    insert_at_ = log.end_tag;
    closing_ = log.content.substr(log.end_tag);
    size_ = begun_ ? log.content.size() : found.size();
}

bool XmlLog::IsAsLeft() const {
    return FileSize(path_) == size_ && (!begun_ || EndOf(path_, closing_.size()) == closing_);
}

void XmlLog::Write(const std::deque<LogItem>& items) {
    if (items.empty()) return;
    if (!IsAsLeft()) Open();
    std::string lines;
    for (const LogItem& item : items) lines += XmlMessage(item);

    if (begun_) {
        ReplaceEnd(path_, insert_at_, lines + closing_, closing_);
        insert_at_ += lines.size();
    } else {
        SaveFile(path_, fmt::format("{}{}{}", kLogHead, lines, kLogTail), Durability::kProcess);
        insert_at_ = kLogHead.size() + lines.size();
        closing_ = kLogTail;
        begun_ = true;
    }
    size_ = insert_at_ + closing_.size();
}

}  // namespace ombrel
