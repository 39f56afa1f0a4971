#include "adapters/sim/Transcript.h"

#include <fmt/format.h>

#include <iterator>

#include "adapters/sim/ChatColors.h"

namespace ombrel::sim {
namespace {

constexpr std::string_view kDim = "\x1b[2m";
constexpr std::string_view kBold = "\x1b[1m";
constexpr std::string_view kReset = "\x1b[0m";

constexpr std::string_view kLinkStart = "<Tell:";
constexpr std::string_view kLinkEnd = "<\\Tell>";

}  // namespace

std::string ReadableChat(std::string_view text) {
    std::string readable;
    readable.reserve(text.size());
    while (!text.empty()) {
        if (text.starts_with(kLinkStart)) {
            // <Tell:IIDString:1342309377:Thessaly>Thessaly<\Tell>
            const std::size_t close = text.find('>');
            const std::size_t end = text.find(kLinkEnd);
            if (close != std::string_view::npos && end != std::string_view::npos && close < end) {
                readable += ReadableChat(text.substr(close + 1, end - close - 1));
                text.remove_prefix(end + kLinkEnd.size());
                continue;
            }
        }
        const auto byte = static_cast<unsigned char>(text.front());
        if ((byte >= 0x20 && byte != 0x7F) || byte == '\n' || byte == '\t') readable += text.front();
        text.remove_prefix(1);
    }
    return readable;
}

void Transcript::Show(const Client::ChatLine& line) {
    std::string text = ReadableChat(line.text);
    while (!text.empty() && text.back() == '\n') text.pop_back();

    const std::int64_t seconds = line.at / 1000;
    const bool ansi = colors_ == Colors::kAnsi;
    buffer_.clear();
    if (ansi) buffer_ += kDim;
    fmt::format_to(std::back_inserter(buffer_), "[{:02}:{:02}:{:02}] ", seconds / 3600, seconds / 60 % 60,
                   seconds % 60);
    buffer_ += line.window >= 2 ? fmt::format("[{:>4}] ", line.window - 1) : std::string("[main] ");
    const std::size_t margin = buffer_.size() - (ansi ? kDim.size() : 0);
    if (ansi) buffer_ += kReset;

    if (ansi && line.color >= 0 && static_cast<std::size_t>(line.color) < kChatColors.size()) {
        const std::uint32_t color = kChatColors[static_cast<std::size_t>(line.color)];
        fmt::format_to(std::back_inserter(buffer_), "\x1b[38;2;{};{};{}m", color >> 16, color >> 8 & 0xFF,
                       color & 0xFF);
    }
    for (const char character : text) {
        buffer_ += character;
        if (character == '\n') buffer_.append(margin, ' ');
    }
    if (ansi) buffer_ += kReset;
    buffer_ += '\n';
    out_ << buffer_;
}

void Transcript::ShowNote(std::string_view text) {
    const std::string heading = ReadableChat(text);
    if (colors_ == Colors::kAnsi)
        out_ << '\n' << kBold << heading << kReset << '\n';
    else
        out_ << "\n-- " << heading << " --\n";
}

}  // namespace ombrel::sim
