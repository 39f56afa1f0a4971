#include "adapters/decal/DecalEcho.h"

#include "core/failure.h"

namespace ombrel::decal {

namespace {

// Reads fields of a message or of a structure in it, which have members of the same names.
template <class I>
class Fields {
public:
    explicit Fields(Com<I> object) : object_(std::move(object)) {}

    const Com<I>& object() const { return object_; }

    // A field that isn't there fails in some makings of the framework and is empty in others: both are a failure here.
    Variant Value(std::string_view field) const {
        Variant value = object_.Read(I::Value, Variant(field).get());
        if (value.get().vt == VT_EMPTY || value.get().vt == VT_NULL) throw Failure(failure::kInvalidCall);
        return value;
    }

    std::vector<std::uint8_t> Bytes(std::string_view field) const {
        SAFEARRAY* bytes = object_.Read(I::RawValue, Variant(field).get());
        if (!bytes) throw Failure(failure::kInvalidCall);
        return TakeBytes(bytes);
    }

    host::MessageMemberPtr Struct(const Variant& element) const;

private:
    Com<I> object_;
};

class DecalMessageMember final : public host::MessageMember {
public:
    explicit DecalMessageMember(Com<IMessageMember> member) : fields_(std::move(member)) {}

    std::int32_t Long(std::string_view field) const override { return fields_.Value(field).Long(); }
    double Double(std::string_view field) const override { return fields_.Value(field).Double(); }
    std::string Text(std::string_view field) const override { return fields_.Value(field).Text(); }
    std::vector<std::uint8_t> Bytes(std::string_view field) const override { return fields_.Bytes(field); }
    host::MessageMemberPtr Struct(std::string_view field) const override { return fields_.Struct(Variant(field)); }
    host::MessageMemberPtr Item(std::int32_t index) const override { return fields_.Struct(Variant(index)); }

private:
    Fields<IMessageMember> fields_;
};

class DecalMessage final : public host::Message {
public:
    explicit DecalMessage(Com<IMessage> message) : fields_(std::move(message)) {}

    std::int32_t Type() const override { return fields_.object().Read(IMessage::Type); }
    std::int32_t Long(std::string_view field) const override { return fields_.Value(field).Long(); }
    double Double(std::string_view field) const override { return fields_.Value(field).Double(); }
    std::string Text(std::string_view field) const override { return fields_.Value(field).Text(); }
    std::vector<std::uint8_t> Bytes(std::string_view field) const override { return fields_.Bytes(field); }
    host::MessageMemberPtr Struct(std::string_view field) const override { return fields_.Struct(Variant(field)); }
    host::MessageMemberPtr Item(std::int32_t index) const override { return fields_.Struct(Variant(index)); }

private:
    Fields<IMessage> fields_;
};

template <class I>
host::MessageMemberPtr Fields<I>::Struct(const Variant& element) const {
    auto member = object_.Read(I::Struct, element.get());
    if (!member) throw Failure(failure::kInvalidCall);
    return std::make_unique<DecalMessageMember>(std::move(member));
}

// Messages come from the framework's own decoder or from the managed one; both answer the older interface.
Com<IMessage> MessageOf(const EventArguments& event) {
    if (auto message = event.Object<IMessage>(0)) return message;
    return Com<IMessage>::Of(event.Object<IMessage2>(0).Unknown());
}

}  // namespace

DecalEcho::DecalEcho(Com<IEcho2> echo)
    : echo_(std::move(echo)), events_(echo_.Unknown(), IEchoSink2::kIid, Handlers()) {}

Events::Table DecalEcho::Handlers() {
    return {
        {IEchoSink2::EchoServer,
         [this](const EventArguments& event) { Raise(EchoServer, DecalMessage(MessageOf(event))); }},
        {IEchoSink2::EchoClient,
         [this](const EventArguments& event) { Raise(EchoClient, DecalMessage(MessageOf(event))); }},
    };
}

}  // namespace ombrel::decal
