#include "core/files.h"

#include <fmt/format.h>

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <sstream>
#include <system_error>

#include "core/Vars.h"
#include "core/failure.h"
#include "core/text.h"
#include "core/time.h"
#include "host/Platform.h"

namespace ombrel {
namespace {

namespace fs = std::filesystem;

std::string PathText(const fs::path& path) {
    const auto text = path.u8string();
    return {text.begin(), text.end()};
}

[[noreturn]] void Fail(std::int32_t number, const fs::path& path) {
    throw Failure(number, fmt::format("{}: {}", FailureText(number), PathText(path)));
}

// Fails for what the system said last. Where a stream keeps the reason to itself, it is a device error.
[[noreturn]] void FailForSystem(int error, const fs::path& path) {
    Fail(FailureNumber(std::error_code(error, std::generic_category())), path);
}

fs::path RootedPath(std::string_view text) {
    auto path = NativePath(text);
    if (!path.is_absolute()) Fail(failure::kPathNotFound, path);
    return path;
}

void MakeFoldersOf(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (!error || fs::is_directory(folder)) return;
    const auto number = FailureNumber(error);
    Fail(number == failure::kFileNotFound ? failure::kPathNotFound : number, folder);
}

// A file being written. Every step that the system refuses is a failure.
class Writer {
public:
    Writer(const fs::path& path, std::ios::openmode mode) : path_(path) {
        // Whole contents come in one piece: a buffer would only hide which write failed.
        stream_.rdbuf()->pubsetbuf(nullptr, 0);
        errno = 0;
        stream_.open(path, mode | std::ios::binary | std::ios::out);
        if (!stream_) FailForSystem(errno, path);
    }

    bool Empty() { return stream_.seekp(0, std::ios::end).tellp() == std::ofstream::pos_type(0); }

    void Write(std::string_view content) {
        errno = 0;
        stream_.write(content.data(), static_cast<std::streamsize>(content.size()));
        stream_.flush();
        if (!stream_) FailForSystem(errno, path_);
    }

    void Close() {
        errno = 0;
        stream_.close();
        if (!stream_) FailForSystem(errno, path_);
    }

private:
    fs::path path_;
    std::ofstream stream_;
};

// Removes a half-written file, unless it has been put in its place.
class Leftover {
public:
    explicit Leftover(fs::path path) : path_(std::move(path)) {}
    ~Leftover() {
        std::error_code ignored;
        if (!kept_) fs::remove(path_, ignored);
    }
    Leftover(const Leftover&) = delete;
    Leftover& operator=(const Leftover&) = delete;

    void Keep() { kept_ = true; }

private:
    fs::path path_;
    bool kept_ = false;
};

}  // namespace

fs::path NativePath(std::string_view text) {
    std::u8string native(text.begin(), text.end());
    if constexpr (fs::path::preferred_separator == '/') std::replace(native.begin(), native.end(), u8'\\', u8'/');
    return {native};
}

bool FileExists(std::string_view path) {
    std::error_code ignored;
    const auto native = NativePath(path);
    return native.is_absolute() && fs::is_regular_file(native, ignored);
}

std::string ReadFile(std::string_view path) {
    const auto native = RootedPath(path);
    std::error_code ignored;
    if (!fs::is_directory(native.parent_path(), ignored)) Fail(failure::kPathNotFound, native);
    if (fs::is_directory(native, ignored)) Fail(failure::kFileAccess, native);
    errno = 0;
    std::ifstream stream(native, std::ios::binary);
    if (!stream) FailForSystem(errno, native);
    std::ostringstream content;
    if (stream.peek() != std::ifstream::traits_type::eof()) content << stream.rdbuf();
    if (stream.bad() || !content) Fail(failure::kDeviceIO, native);
    return std::move(content).str();
}

void SaveFile(std::string_view path, std::string_view content, Durability durability) {
    const auto native = RootedPath(path);
    MakeFoldersOf(native.parent_path());
    auto beside = native;
    beside += ".new";

    Leftover leftover(beside);
    Writer writer(beside, std::ios::trunc);
    writer.Write(content);
    writer.Close();
    if (durability == Durability::kPower) Vars::Platform->FlushFile(PathText(beside));
    std::error_code error;
    fs::rename(beside, native, error);
    if (error) Fail(FailureNumber(error), native);
    leftover.Keep();
}

void AppendFile(std::string_view path, std::string_view content, std::string_view heading) {
    const auto native = RootedPath(path);
    MakeFoldersOf(native.parent_path());
    Writer writer(native, std::ios::app);
    if (!heading.empty() && writer.Empty()) writer.Write(heading);
    writer.Write(content);
    writer.Close();
}

std::string KeepCopy(std::string_view path, std::string_view reason) {
    if (!FileExists(path)) return {};
    const auto native = RootedPath(path);
    const auto content = ReadFile(path);
    const auto day = FormatIsoDay(NowDate());
    for (int number = 1;; ++number) {
        const auto again = number == 1 ? std::string() : fmt::format(" {}", number);
        auto copy = native;
        copy.replace_filename(NativePath(
            fmt::format("{} ({} {}{}){}", PathText(native.stem()), reason, day, again, PathText(native.extension()))));
        const auto text = PathText(copy);
        std::error_code ignored;
        const bool taken = fs::exists(copy, ignored);
        if (taken && !(FileExists(text) && ReadFile(text) == content)) continue;
        if (!taken) SaveFile(text, content, Durability::kProcess);
        return text;
    }
}

void MakeFolders(std::string_view folder) { MakeFoldersOf(RootedPath(folder)); }

std::vector<std::string> ListFiles(std::string_view folder, std::string_view extension) {
    std::vector<std::string> names;
    const auto native = NativePath(folder);
    if (!native.is_absolute()) return names;
    std::error_code error;
    const auto ending = ToLower(extension);
    for (fs::directory_iterator entry(native, error), end; !error && entry != end; entry.increment(error)) {
        std::error_code ignored;
        auto name = PathText(entry->path().filename());
        if (ToLower(name).ends_with(ending) && entry->is_regular_file(ignored)) names.push_back(std::move(name));
    }
    std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        const auto lower_a = ToLower(a);
        const auto lower_b = ToLower(b);
        return lower_a != lower_b ? lower_a < lower_b : a < b;
    });
    return names;
}

}  // namespace ombrel
