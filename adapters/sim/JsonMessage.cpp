#include "adapters/sim/JsonMessage.h"

#include <algorithm>

#include "core/convert.h"
#include "core/failure.h"

namespace ombrel::sim {
namespace {

char Lower(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character + 32) : character;
}

bool SameName(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) { return Lower(x) == Lower(y); });
}

const Json& FieldOf(const Json& json, std::string_view name) {
    if (json.is_object()) {
        for (auto field = json.begin(); field != json.end(); ++field) {
            if (SameName(field.key(), name)) return *field;
        }
    }
    throw Failure(failure::kInvalidCall);
}

}  // namespace

std::int32_t JsonMessage::Type() const {
    calls_.Note("Message.Type"_op);
    return Word(json_["Type"]);
}

std::int32_t JsonMessage::Long(std::string_view field) const {
    calls_.Note("Message.Long"_op);
    const Json& value = FieldOf(json_, field);
    if (value.is_number_float()) return ToLong(value.get<double>());
    if (value.is_number()) return static_cast<std::int32_t>(value.get<std::int64_t>());
    if (value.is_string()) return ToLong(value.get_ref<const std::string&>());
    if (value.is_boolean()) return value.get<bool>() ? 1 : 0;  // as the game sends it
    throw Failure(failure::kTypeMismatch);
}

double JsonMessage::Double(std::string_view field) const {
    calls_.Note("Message.Double"_op);
    const Json& value = FieldOf(json_, field);
    if (value.is_number()) return value.get<double>();
    if (value.is_string()) return ToDouble(value.get_ref<const std::string&>());
    throw Failure(failure::kTypeMismatch);
}

std::string JsonMessage::Text(std::string_view field) const {
    calls_.Note("Message.Text"_op);
    const Json& value = FieldOf(json_, field);
    if (value.is_string()) return value.get<std::string>();
    if (value.is_number()) return NumberText(value.get<double>());
    throw Failure(failure::kTypeMismatch);
}

std::vector<std::uint8_t> JsonMessage::Bytes(std::string_view field) const {
    calls_.Note("Message.Bytes"_op);
    const Json& value = FieldOf(json_, field);
    if (!value.is_array()) throw Failure(failure::kTypeMismatch);
    std::vector<std::uint8_t> bytes;
    bytes.reserve(value.size());
    for (const Json& byte : value) {
        if (!byte.is_number_integer() || byte < 0 || byte > 0xFF) throw Failure(failure::kTypeMismatch);
        bytes.push_back(byte.get<std::uint8_t>());
    }
    return bytes;
}

host::MessageMemberPtr JsonMessage::Struct(std::string_view field) const {
    calls_.Note("Message.Struct"_op);
    const Json& value = FieldOf(json_, field);
    if (!value.is_structured()) throw Failure(failure::kTypeMismatch);
    return std::make_unique<JsonMessage>(value, calls_);
}

host::MessageMemberPtr JsonMessage::Item(std::int32_t index) const {
    calls_.Note("Message.Item"_op);
    if (!json_.is_array()) throw Failure(failure::kTypeMismatch);
    if (index < 0 || static_cast<std::size_t>(index) >= json_.size()) throw Failure(failure::kSubscript);
    return std::make_unique<JsonMessage>(json_[static_cast<std::size_t>(index)], calls_);
}

}  // namespace ombrel::sim
