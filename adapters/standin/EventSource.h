// The events of an object: who listens, and how they are told.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/standin/Object.h"

namespace ombrel::standin {

// An argument of an event.
class EventArgument {
public:
    EventArgument(std::int32_t number);
    EventArgument(bool flag);
    EventArgument(std::string_view text);
    EventArgument(const std::string& text) : EventArgument(std::string_view(text)) {}
    EventArgument(IDispatch* object);
    EventArgument(VARIANT_BOOL* result);  // what the sinks set
    ~EventArgument() { VariantClear(&value_); }
    EventArgument(const EventArgument&) = delete;
    EventArgument& operator=(const EventArgument&) = delete;

    // The value as it is handed out. It lasts as long as the argument.
    VARIANT Form();

private:
    VARIANT value_;
};

// The connection point of one event interface. It lives as a part of its object.
class EventSource final : public IConnectionPoint {
public:
    EventSource(IConnectionPointContainer& owner, const GUID& id) : owner_(owner), id_(id) {}

    STDMETHOD(QueryInterface)(REFIID id, void** result) override;
    STDMETHOD_(ULONG, AddRef)() override { return owner_.AddRef(); }
    STDMETHOD_(ULONG, Release)() override { return owner_.Release(); }
    STDMETHOD(GetConnectionInterface)(IID* id) override;
    STDMETHOD(GetConnectionPointContainer)(IConnectionPointContainer** owner) override;
    STDMETHOD(Advise)(IUnknown* sink, DWORD* cookie) override;
    STDMETHOD(Unadvise)(DWORD cookie) override;
    STDMETHOD(EnumConnections)(IEnumConnections**) override { return NotOffered(); }

    const GUID& id() const { return id_; }
    std::size_t sinks() const { return sinks_.size(); }

    // Tells each sink that was there at the start and still is.
    void Raise(DISPID event) { Fire(event, {}); }
    template <class... Arguments>
    void Raise(DISPID event, Arguments&&... arguments) {
        if (sinks_.empty()) return;
        EventArgument held[] = {EventArgument(std::forward<Arguments>(arguments))...};
        Fire(event, held);
    }

private:
    struct Sink {
        DWORD cookie;
        Ref<IDispatch> listener;
    };

    static constexpr std::size_t kMostArguments = 4;
    void Fire(DISPID event, std::span<EventArgument> arguments);

    IConnectionPointContainer& owner_;
    GUID id_;
    DWORD cookies_ = 0;
    std::vector<Sink> sinks_;
};

// An object with events.
template <class Main>
class SourceObject : public Object<Main, IConnectionPointContainer> {
public:
    explicit SourceObject(const GUID& id) : events(*this, id) {}

    STDMETHOD(EnumConnectionPoints)(IEnumConnectionPoints**) override { return NotOffered(); }
    STDMETHOD(FindConnectionPoint)(REFIID id, IConnectionPoint** point) override {
        return Serve([&] {
            *point = nullptr;
            if (!IsEqualIID(id, events.id())) return CONNECT_E_NOCONNECTION;
            *point = Ref<IConnectionPoint>(&events).Detach();
            return S_OK;
        });
    }

    EventSource events;
};

}  // namespace ombrel::standin
