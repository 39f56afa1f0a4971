#include "adapters/decal/EventSink.h"

#include "adapters/decal/ComObject.h"
#include "core/failure.h"

namespace ombrel::decal {

const VARIANT& EventArguments::At(unsigned index) const {
    if (index >= parameters_.cArgs) throw Failure(failure::kInvalidCall);
    return parameters_.rgvarg[parameters_.cArgs - 1 - index];  // they come last first
}

void EventArguments::Answer(unsigned index, bool value) const {
    const VARIANT& target = At(index);
    if (target.vt == (VT_BYREF | VT_BOOL) && target.pboolVal) *target.pboolVal = ToVariantBool(value);
    if (target.vt == (VT_BYREF | VT_VARIANT) && target.pvarVal) {
        VARIANT& behind = *target.pvarVal;
        if (behind.vt == (VT_BYREF | VT_BOOL) && behind.pboolVal)
            *behind.pboolVal = ToVariantBool(value);
        else if (behind.vt == VT_BOOL || behind.vt == VT_EMPTY)
            behind.vt = VT_BOOL, behind.boolVal = ToVariantBool(value);
    }
}

class Events::Sink final : public ComObject<Events::Sink, IDispatch> {
public:
    Sink(const GUID& events, Table handlers)
        : events_(events), handlers_(std::make_shared<const Table>(std::move(handlers))) {}

    void* Query(const GUID& id) {
        const bool known = id == IID_IUnknown || id == IID_IDispatch || id == events_;
        return known ? static_cast<IDispatch*>(this) : nullptr;
    }

    void Silence() { handlers_.reset(); }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        if (count) *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }

    HRESULT STDMETHODCALLTYPE Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                                     UINT*) override {
        // A handler may end this connection.
        const auto handlers = handlers_;
        if (!handlers || !parameters) return S_OK;
        try {
            for (const auto& [id, handler] : *handlers)
                if (id == event) handler(EventArguments(*parameters));
        } catch (...) {
            ReportFailure("Invoke", "EventSink");
        }
        return S_OK;
    }

private:
    GUID events_;
    std::shared_ptr<const Table> handlers_;
};

Events::Events(IUnknown* source, const GUID& events, Table handlers) {
    IConnectionPointContainer* container = nullptr;
    if (!source || FAILED(source->QueryInterface(IID_IConnectionPointContainer, reinterpret_cast<void**>(&container))))
        return;
    const auto kept = Com<IUnknown>::Taken(container);
    IConnectionPoint* point = nullptr;
    if (FAILED(container->FindConnectionPoint(events, &point)) || !point) return;
    point_ = Com<IUnknown>::Taken(point);
    sink_ = MakeObject<Sink>(events, std::move(handlers));
    if (FAILED(point->Advise(sink_.get(), &cookie_))) {
        point_.Release();
        sink_.Release();
    }
}

Events::~Events() { Disconnect(); }

Events::Events(Events&& other) noexcept
    : sink_(std::move(other.sink_)), point_(std::move(other.point_)), cookie_(std::exchange(other.cookie_, 0)) {}

Events& Events::operator=(Events&& other) noexcept {
    Disconnect();
    sink_ = std::move(other.sink_);
    point_ = std::move(other.point_);
    cookie_ = std::exchange(other.cookie_, 0);
    return *this;
}

void Events::Disconnect() {
    if (sink_) sink_.get()->Silence();
    if (point_) static_cast<IConnectionPoint*>(point_.get())->Unadvise(cookie_);
    point_.Release();
    sink_.Release();
}

}  // namespace ombrel::decal
