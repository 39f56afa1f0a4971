#include "adapters/standin/Echo.h"

#include <cstring>
#include <limits>

#include "core/text.h"

namespace ombrel::standin {

namespace {

using sim::Json;
using sim::operator""_op;

const Json* FindField(const Json& json, std::string_view name) {
    if (!json.is_object()) return nullptr;
    for (auto field = json.begin(); field != json.end(); ++field) {
        if (ToLower(field.key()) == ToLower(name)) return &*field;
    }
    return nullptr;
}

// A whole number in the narrowest of the types that message fields have: one byte, two, four or eight.
void PutInteger(std::int64_t number, VARIANT& value) {
    if (number >= 0 && number <= std::numeric_limits<std::uint8_t>::max()) {
        value.vt = VT_UI1;
        value.bVal = static_cast<std::uint8_t>(number);
    } else if (number >= std::numeric_limits<std::int16_t>::min() &&
               number <= std::numeric_limits<std::int16_t>::max()) {
        value.vt = VT_I2;
        value.iVal = static_cast<std::int16_t>(number);
    } else if (number >= std::numeric_limits<std::int32_t>::min() &&
               number <= std::numeric_limits<std::uint32_t>::max()) {
        value.vt = VT_I4;
        value.lVal = static_cast<std::int32_t>(number);
    } else {
        value.vt = VT_I8;
        value.llVal = number;
    }
}

void PutDouble(double number, VARIANT& value) {
    if (static_cast<double>(static_cast<float>(number)) == number) {
        value.vt = VT_R4;
        value.fltVal = static_cast<float>(number);
    } else {
        value.vt = VT_R8;
        value.dblVal = number;
    }
}

void Put(const Json& json, VARIANT& value) {
    if (json.is_number_float()) return PutDouble(json.get<double>(), value);
    if (json.is_number()) return PutInteger(json.get<std::int64_t>(), value);
    if (json.is_string()) {
        value.vt = VT_BSTR;
        value.bstrVal = NewText(json.get_ref<const std::string&>());
    } else if (json.is_boolean()) {
        value.vt = VT_BOOL;
        value.boolVal = ToVariantBool(json.get<bool>());
    } else {
        throw Failure(failure::kTypeMismatch);
    }
}

}  // namespace

// The framework doesn't know as what the caller will read the value: a failure that waits for any of them comes now.
HRESULT Fields::Value(const VARIANT& element, VARIANT* value) const {
    VariantInit(value);
    for (const sim::Op reading : {"Message.Long"_op, "Message.Double"_op, "Message.Text"_op}) {
        if (calls_.WillFail(reading)) calls_.Note(reading);
    }
    if (element.vt != VT_BSTR) return NotOffered();
    const Json* field = FindField(message_.json(), Narrow(element.bstrVal));
    if (field) {
        Put(*field, *value);
    } else if (!TheHabits().absent_fields_empty) {
        throw Failure(failure::kInvalidCall);
    }
    return S_OK;
}

HRESULT Fields::Struct(const VARIANT& element, IMessageMember** member) const {
    *member = nullptr;
    if (element.vt != VT_BSTR && element.vt != VT_I4) return NotOffered();
    host::MessageMemberPtr part =
        element.vt == VT_BSTR ? message_.Struct(Narrow(element.bstrVal)) : message_.Item(element.lVal);
    std::unique_ptr<const sim::JsonMessage> json(static_cast<const sim::JsonMessage*>(part.release()));
    *member = Make<MessageMember>(std::move(json), calls_).Detach();
    return S_OK;
}

HRESULT Fields::RawValue(const VARIANT& element, SAFEARRAY** bytes) const {
    *bytes = nullptr;
    if (element.vt != VT_BSTR) return NotOffered();
    const std::vector<std::uint8_t> content = message_.Bytes(Narrow(element.bstrVal));
    SAFEARRAY* array = SafeArrayCreateVector(VT_UI1, 0, static_cast<ULONG>(content.size()));
    void* data = nullptr;
    if (!array || FAILED(SafeArrayAccessData(array, &data))) return E_OUTOFMEMORY;
    std::memcpy(data, content.data(), content.size());
    SafeArrayUnaccessData(array);
    *bytes = array;
    return S_OK;
}

std::int32_t Fields::Count() const { return static_cast<std::int32_t>(message_.json().size()); }

HRESULT MessageMember::get_Value(VARIANT element, VARIANT* value) {
    return Serve([&] { return fields_.Value(element, value); });
}

HRESULT MessageMember::get_RawValue(VARIANT element, SAFEARRAY** bytes) {
    return Serve([&] { return fields_.RawValue(element, bytes); });
}

HRESULT MessageMember::get_Struct(VARIANT element, IMessageMember** member) {
    return Serve([&] { return fields_.Struct(element, member); });
}

HRESULT MessageMember::get_Count(long* count) {
    return Serve([&] { *count = fields_.Count(); });
}

HRESULT Message::get_Type(long* type) {
    return Serve([&] { *type = fields_.Type(); });
}

HRESULT Message::get_Value(VARIANT element, VARIANT* value) {
    return Serve([&] { return fields_.Value(element, value); });
}

HRESULT Message::get_Struct(VARIANT element, IMessageMember** member) {
    return Serve([&] { return fields_.Struct(element, member); });
}

HRESULT Message::get_RawValue(VARIANT element, SAFEARRAY** bytes) {
    return Serve([&] { return fields_.RawValue(element, bytes); });
}

HRESULT Message::get_Count(long* count) {
    return Serve([&] { *count = fields_.Count(); });
}

Echo::Echo(std::unique_ptr<host::EchoFilter2> echo, sim::Calls& calls)
    : SourceObject(IEchoSink2::kId), echo_(std::move(echo)), calls_(calls) {
    echo_->EchoServer = [this](const host::Message& message) { Raise(IEchoSink2::kEchoServer, message); };
    echo_->EchoClient = [this](const host::Message& message) { Raise(IEchoSink2::kEchoClient, message); };
}

void Echo::Raise(DISPID event, const host::Message& message) {
    const auto object = Make<Message>(static_cast<const sim::JsonMessage&>(message), calls_);
    events.Raise(event, object.get());
    if (object->references() > 1) ++TheLedger().kept_messages;
}

}  // namespace ombrel::standin
