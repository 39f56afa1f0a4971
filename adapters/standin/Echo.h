// The echo of decoded messages.
#pragma once

#include <memory>

#include "adapters/sim/JsonMessage.h"
#include "adapters/standin/EventSource.h"
#include "adapters/standin/declarations/DecalFilters.h"
#include "adapters/standin/declarations/DecalNet.h"

namespace ombrel::standin {

// What messages and their parts have in common: fields by name, elements by number.
class Fields {
public:
    Fields(const sim::JsonMessage& message, sim::Calls& calls) : message_(message), calls_(calls) {}

    std::int32_t Type() const { return message_.Type(); }
    HRESULT Value(const VARIANT& element, VARIANT* value) const;
    HRESULT Struct(const VARIANT& element, IMessageMember** member) const;
    HRESULT RawValue(const VARIANT& element, SAFEARRAY** bytes) const;
    std::int32_t Count() const;

private:
    const sim::JsonMessage& message_;
    sim::Calls& calls_;
};

class MessageMember final : public Object<IMessageMember> {
public:
    MessageMember(std::unique_ptr<const sim::JsonMessage> message, sim::Calls& calls)
        : message_(std::move(message)), fields_(*message_, calls) {}

    STDMETHOD(get_Value)(VARIANT element, VARIANT* value) override;
    STDMETHOD(get_RawValue)(VARIANT element, SAFEARRAY** bytes) override;
    STDMETHOD(get_Struct)(VARIANT element, IMessageMember** member) override;
    STDMETHOD(get_Count)(long* count) override;

private:
    std::unique_ptr<const sim::JsonMessage> message_;
    Fields fields_;
};

// A message is there while its event lasts.
class Message final : public Object<IMessage2> {
public:
    Message(const sim::JsonMessage& message, sim::Calls& calls) : fields_(message, calls) {}

    STDMETHOD(get_Type)(long* type) override;
    STDMETHOD(get_Value)(VARIANT element, VARIANT* value) override;
    STDMETHOD(get_Struct)(VARIANT element, IMessageMember** member) override;
    STDMETHOD(get_RawValue)(VARIANT element, SAFEARRAY** bytes) override;
    STDMETHOD(get_Count)(long* count) override;

private:
    Fields fields_;
};

class Echo final : public SourceObject<IEcho2> {
public:
    Echo(std::unique_ptr<host::EchoFilter2> echo, sim::Calls& calls);

private:
    void Raise(DISPID event, const host::Message& message);

    std::unique_ptr<host::EchoFilter2> echo_;
    sim::Calls& calls_;
};

}  // namespace ombrel::standin
