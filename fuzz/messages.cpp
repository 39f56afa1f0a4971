// Messages of the server and the client. Each line of an input is one:
//   server|TYPE FIELDS...    client|TYPE FIELDS...
// A field is what the plug-in's next reading call gets, whatever it asks for: a number, 'text, xBYTES in hexadecimal, {
// for a structure or a list, - for a field that is missing. Reading behind the last field fails as for a missing one.
// What a statement may be besides stands in support/Game.h.
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/Vars.h"
#include "core/failure.h"
#include "core/text.h"
#include "fuzz/support/Game.h"
#include "stats/NetEchoHandler.h"

namespace ombrel::fuzz {
namespace {

constexpr std::size_t kLongest = 8000;

using Fields = std::vector<std::string_view>;

// Takes fields off the shared row, whichever member of the message asks.
class Member final : public host::Message {
public:
    Member(std::int32_t type, const Fields& fields, std::size_t& next) : type_(type), fields_(fields), next_(next) {}

    std::int32_t Type() const override { return type_; }

    std::int32_t Long(std::string_view) const override {
        std::string_view text = Take();
        const bool hexadecimal = text.starts_with("0x");
        if (hexadecimal) text.remove_prefix(2);
        std::int64_t number = 0;
        const auto [stop, error] =
            std::from_chars(text.data(), text.data() + text.size(), number, hexadecimal ? 16 : 10);
        if (error != std::errc()) throw Failure(failure::kTypeMismatch);
        return static_cast<std::int32_t>(number);
    }

    double Double(std::string_view) const override {
        const std::string text(Take());
        char* end = nullptr;
        const double number = std::strtod(text.c_str(), &end);
        if (end == text.c_str()) throw Failure(failure::kTypeMismatch);
        return number;
    }

    std::string Text(std::string_view) const override {
        const std::string_view text = Take();
        return std::string(text.substr(text.starts_with('\'') ? 1 : 0));
    }

    std::vector<std::uint8_t> Bytes(std::string_view) const override {
        std::string_view text = Take();
        if (!text.starts_with('x')) throw Failure(failure::kTypeMismatch);
        std::vector<std::uint8_t> bytes;
        for (text.remove_prefix(1); text.size() >= 2; text.remove_prefix(2)) {
            std::uint8_t byte = 0;
            std::from_chars(text.data(), text.data() + 2, byte, 16);
            bytes.push_back(byte);
        }
        return bytes;
    }

    host::MessageMemberPtr Struct(std::string_view) const override {
        if (Take() != "{") throw Failure(failure::kTypeMismatch);
        return std::make_unique<Member>(0, fields_, next_);
    }

    host::MessageMemberPtr Item(std::int32_t) const override {
        if (next_ >= fields_.size()) throw Failure(failure::kSubscript);
        return std::make_unique<Member>(0, fields_, next_);
    }

private:
    std::string_view Take() const {
        if (next_ >= fields_.size() || fields_[next_] == "-") throw Failure(failure::kInvalidCall);
        return fields_[next_++];
    }

    std::int32_t type_;
    const Fields& fields_;
    std::size_t& next_;
};

void Send(Game& game, bool from_server, std::string_view text) {
    const Fields fields = Split(text, " ");
    std::size_t next = 0;
    std::int32_t type = 0;
    try {
        type = Member(0, fields, next).Long("Type");
    } catch (const Failure&) {
        return;
    }
    const Member message(type, fields, next);
    game.Forget();
    if (from_server)
        game.client.EchoServer(message);
    else
        game.client.EchoClient(message);
    Require(game.reports.size() <= 2, "one message, many reports");
}

void Play(std::string_view script) {
    Game& game = Game::Shared();
    Vars::NetEchoHandler->ResetHealth();
    Vars::NetEchoHandler->ResetXPBools();
    for (const std::string_view line : Lines(script)) {
        const Statement statement(line);
        if (game.Do(statement)) continue;
        Send(game, line.starts_with('s'), statement.From(1));
    }
    game.EndCalmly();
}

}  // namespace
}  // namespace ombrel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace ombrel::fuzz;
    if (size <= kLongest) Play(TextOf(data, size));
    return 0;
}
