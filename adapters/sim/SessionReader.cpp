#include "adapters/sim/SessionReader.h"

#include <fmt/format.h>

#include <set>
#include <vector>

namespace ombrel::sim {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// The JSON library keeps the last of several fields of one name. Here that is a mistake in the file.
class DuplicateGuard {
public:
    bool operator()(int, Json::parse_event_t event, Json& parsed) {
        switch (event) {
            case Json::parse_event_t::object_start:
                keys_.emplace_back();
                break;
            case Json::parse_event_t::object_end:
                keys_.pop_back();
                break;
            case Json::parse_event_t::key:
                if (!keys_.back().insert(parsed.get<std::string>()).second) {
                    throw SessionError(fmt::format("\"{}\" stands twice", parsed.get_ref<const std::string&>()));
                }
                break;
            default:
                break;
        }
        return true;
    }

private:
    std::vector<std::set<std::string>> keys_;
};

// What the JSON library says, without its own name and number for it: "[json.exception.parse_error.101] parse error
// ...".
std::string_view Reason(std::string_view what) {
    const std::size_t end = what.find("] ");
    return end == std::string_view::npos ? what : what.substr(end + 2);
}

}  // namespace

Record ParseRecord(std::string_view line) {
    Record record;
    try {
        record.json = Json::parse(line, DuplicateGuard());
    } catch (const Json::exception& error) {
        throw SessionError(fmt::format("not JSON: {}", Reason(error.what())));
    }
    record.kind = CheckRecord(record.json);
    return record;
}

std::optional<Record> SessionReader::Next() {
    while (std::getline(input_, line_)) {
        ++number_;
        std::string_view text = line_;
        if (number_ == 1 && text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
        if (text.find_first_not_of(" \t\r") == std::string_view::npos) continue;
        return ParseRecord(text);
    }
    return std::nullopt;
}

std::string SessionReader::Where() const { return fmt::format("{}:{}", name_, number_); }

}  // namespace ombrel::sim
