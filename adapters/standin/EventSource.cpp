#include "adapters/standin/EventSource.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <limits>

namespace ombrel::standin {

namespace {

template <class T>
bool Fits(std::int32_t number) {
    return number >= std::numeric_limits<T>::min() && number <= std::numeric_limits<T>::max();
}

}  // namespace

EventArgument::EventArgument(std::int32_t number) {
    VariantInit(&value_);
    value_.vt = VT_I4;
    value_.lVal = number;
}

EventArgument::EventArgument(bool flag) {
    VariantInit(&value_);
    value_.vt = VT_BOOL;
    value_.boolVal = ToVariantBool(flag);
}

EventArgument::EventArgument(std::string_view text) {
    VariantInit(&value_);
    value_.vt = VT_BSTR;
    value_.bstrVal = NewText(text);
}

EventArgument::EventArgument(IDispatch* object) {
    VariantInit(&value_);
    value_.vt = VT_DISPATCH;
    value_.pdispVal = Ref<IDispatch>(object).Detach();
}

EventArgument::EventArgument(VARIANT_BOOL* result) {
    VariantInit(&value_);
    value_.vt = VT_BYREF | VT_BOOL;
    value_.pboolVal = result;
}

VARIANT EventArgument::Form() {
    VARIANT form = value_;
    if (!TheHabits().odd_arguments) return form;
    switch (value_.vt) {
        case VT_I4:
            if (Fits<std::int16_t>(value_.lVal)) {
                form.vt = VT_I2;
                form.iVal = static_cast<std::int16_t>(value_.lVal);
            } else {
                form.vt = VT_BYREF | VT_I4;
                form.plVal = &value_.lVal;
            }
            break;
        case VT_BSTR:
            form.vt = VT_BYREF | VT_BSTR;
            form.pbstrVal = &value_.bstrVal;
            break;
        case VT_DISPATCH:
            form.vt = VT_UNKNOWN;
            form.punkVal = value_.pdispVal;
            break;
        case VT_BYREF | VT_BOOL:
            form.vt = VT_BYREF | VT_VARIANT;
            form.pvarVal = &value_;
            break;
        default:
            break;
    }
    return form;
}

HRESULT EventSource::QueryInterface(REFIID id, void** result) {
    return Serve([&] {
        *result = nullptr;
        if (!IsEqualIID(id, IID_IUnknown) && !IsEqualIID(id, IID_IConnectionPoint)) return E_NOINTERFACE;
        *result = Ref<IConnectionPoint>(this).Detach();
        return S_OK;
    });
}

HRESULT EventSource::GetConnectionInterface(IID* id) {
    return Serve([&] { *id = id_; });
}

HRESULT EventSource::GetConnectionPointContainer(IConnectionPointContainer** owner) {
    return Serve([&] { *owner = Ref<IConnectionPointContainer>(&owner_).Detach(); });
}

HRESULT EventSource::Advise(IUnknown* sink, DWORD* cookie) {
    return Serve([&] {
        if (!sink || !cookie) return E_POINTER;
        *cookie = 0;
        auto listener = Ask<IDispatch>(sink, id_);
        if (!listener) return CONNECT_E_CANNOTCONNECT;
        sinks_.push_back({++cookies_, std::move(listener)});
        *cookie = cookies_;
        return S_OK;
    });
}

HRESULT EventSource::Unadvise(DWORD cookie) {
    return Serve([&] {
        const auto found = std::ranges::find(sinks_, cookie, &Sink::cookie);
        if (found == sinks_.end()) return CONNECT_E_NOCONNECTION;
        const Sink going = *found;  // its end may come back here
        sinks_.erase(found);
        return S_OK;
    });
}

// Arguments stand in the other order in what a sink gets.
void EventSource::Fire(DISPID event, std::span<EventArgument> arguments) {
    std::array<VARIANT, kMostArguments> values;
    std::ranges::transform(arguments, std::reverse_iterator(values.begin() + std::ssize(arguments)),
                           [](EventArgument& argument) { return argument.Form(); });

    std::vector<Sink> walk = sinks_;
    if (TheHabits().last_sink_first) std::ranges::reverse(walk);
    const Ref<IConnectionPointContainer> alive(&owner_);
    for (const Sink& sink : walk) {
        if (std::ranges::find(sinks_, sink.cookie, &Sink::cookie) == sinks_.end()) continue;
        DISPPARAMS parameters{values.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
        const HRESULT result = sink.listener->Invoke(event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters,
                                                     nullptr, nullptr, nullptr);
        if (FAILED(result)) ++TheLedger().failed_sinks;
    }
}

}  // namespace ombrel::standin
