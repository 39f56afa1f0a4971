#include "adapters/standin/Timer.h"

#include "adapters/sim/Clock.h"

namespace ombrel::standin {

Timer::Timer(std::unique_ptr<host::Timer> timer) : SourceObject(ITimerEvents::kId), timer_(std::move(timer)) {
    timer_->Timeout = [this] { events.Raise(ITimerEvents::kTimeout, static_cast<IDispatch*>(this)); };
}

HRESULT Timer::Start(long milliseconds) {
    return Serve([&] { timer_->Start(milliseconds); });
}

HRESULT Timer::Stop() {
    return Serve([&] { timer_->Stop(); });
}

HRESULT Timer::get_Tag(VARIANT* tag) {
    return Serve([&] {
        VariantInit(tag);
        tag->vt = VT_BSTR;
        tag->bstrVal = NewText(tag_);
    });
}

HRESULT Timer::put_Tag(VARIANT tag) {
    return Serve([&] {
        if (tag.vt != VT_BSTR) return NotOffered();
        tag_ = Narrow(tag.bstrVal);
        static_cast<sim::SimTimer&>(*timer_).Rename(tag_);
        return S_OK;
    });
}

HRESULT Timer::get_Running(VARIANT_BOOL* running) {
    return Serve([&] { *running = ToVariantBool(timer_->Running()); });
}

}  // namespace ombrel::standin
