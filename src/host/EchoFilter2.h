// The framework's echo of decoded game messages.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ombrel::host {

class MessageMember;
using MessageMemberPtr = std::unique_ptr<const MessageMember>;

// A structure or a list inside a message. Fields go by the names of the framework's message table, which compare
// without case. Reading a field that is not there throws Failure.
class MessageMember {
public:
    virtual ~MessageMember() = default;

    virtual std::int32_t Long(std::string_view field) const = 0;  // the low 32 bits of a whole number
    virtual double Double(std::string_view field) const = 0;
    virtual std::string Text(std::string_view field) const = 0;
    virtual std::vector<std::uint8_t> Bytes(std::string_view field) const = 0;
    virtual MessageMemberPtr Struct(std::string_view field) const = 0;  // a structure or a list
    virtual MessageMemberPtr Item(std::int32_t index) const = 0;        // element of a list, from 0
};

class Message : public MessageMember {
public:
    virtual std::int32_t Type() const = 0;
};

class EchoFilter2 {
public:
    virtual ~EchoFilter2() = default;

    // Every message of the game comes through here: look at the type and at nothing more for those that don't matter.
    std::function<void(const Message& message)> EchoServer;
    std::function<void(const Message& message)> EchoClient;
};

}  // namespace ombrel::host
