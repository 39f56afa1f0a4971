#include "adapters/sim/ChatFeed.h"

#include <fmt/format.h>

#include <charconv>
#include <optional>
#include <string_view>

#include "adapters/sim/SessionFormat.h"

namespace ombrel::sim {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::optional<std::int32_t> TypeOf(std::string_view field) {
    std::int32_t type = 0;
    const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), type);
    if (error != std::errc() || end != field.data() + field.size() || type < kStatusText) return std::nullopt;
    return type;
}

// Into `text`, which keeps its memory from line to line.
void Unescape(std::string_view escaped, std::string& text) {
    text.clear();
    for (std::size_t i = 0; i < escaped.size(); ++i) {
        if (escaped[i] == '\\' && i + 1 < escaped.size() && escaped[i + 1] == 'n') {
            text += '\n';
            ++i;
        } else {
            text += escaped[i];
        }
    }
}

}  // namespace

void ReadChatFile(std::istream& input, const std::string& name,
                  const std::function<void(std::int32_t type, const std::string& text)>& feed) {
    std::string line, text;
    for (std::int64_t number = 1; std::getline(input, line); ++number) {
        std::string_view rest = line;
        if (number == 1 && rest.starts_with(kByteOrderMark)) rest.remove_prefix(kByteOrderMark.size());
        if (rest.ends_with('\r')) rest.remove_suffix(1);
        if (rest.empty()) continue;

        const std::size_t tab = rest.find('\t');
        const auto type = TypeOf(rest.substr(0, tab));
        if (!type && number == 1) continue;
        if (!type || tab == std::string_view::npos) {
            throw SessionError(fmt::format("{}:{}: not a chat type, a tab and a text", name, number));
        }
        rest.remove_prefix(tab + 1);
        Unescape(rest.substr(0, rest.find('\t')), text);
        feed(*type, text);
    }
}

}  // namespace ombrel::sim
