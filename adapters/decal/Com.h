// Objects of the framework, and calls of their members. A call that fails throws Failure.
#pragma once

#include <cstdint>
#include <string>
#include <type_traits>
#include <utility>

#include "adapters/decal/Convert.h"
#include "adapters/decal/Win32.h"
#include "adapters/decal/interfaces/Member.h"

namespace ombrel::decal {

// Throws what a failed call says of itself: numbers of the classic run time as they are, others as the system's.
[[noreturn]] void ThrowFailed(HRESULT result);

inline void Check(HRESULT result) {
    if (FAILED(result)) ThrowFailed(result);
}

inline IUnknown* AsUnknown(void* object) { return static_cast<IUnknown*>(object); }

// A counted reference. `I` is one of the declared interfaces, IUnknown or IDispatch.
template <class I>
class Com {
public:
    Com() = default;
    ~Com() { Release(); }
    Com(const Com& other) : object_(other.object_) {
        if (object_) AsUnknown(object_)->AddRef();
    }
    Com(Com&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    Com& operator=(Com other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }

    // Takes over a reference that somebody counted for us.
    static Com Taken(I* object) {
        Com com;
        com.object_ = object;
        return com;
    }

    // The interface of an object that is another's; nothing when the object doesn't have it.
    static Com Of(IUnknown* object) {
        Com com;
        void* found = nullptr;
        if (object && SUCCEEDED(object->QueryInterface(Id(), &found))) com.object_ = static_cast<I*>(found);
        return com;
    }

    static const GUID& Id() {
        if constexpr (std::is_same_v<I, IUnknown>)
            return IID_IUnknown;
        else if constexpr (std::is_same_v<I, IDispatch>)
            return IID_IDispatch;
        else
            return I::kIid;
    }

    I* get() const { return object_; }
    IUnknown* Unknown() const { return AsUnknown(object_); }
    explicit operator bool() const { return object_ != nullptr; }

    I** Out() {
        Release();
        return &object_;
    }

    void Release() {
        if (I* object = std::exchange(object_, nullptr)) AsUnknown(object)->Release();
    }

    template <class J>
    Com<J> As() const {
        return Com<J>::Of(Unknown());
    }

    // Calls a member and gives its result code.
    template <class Owner, int Slot, class... Parameters>
    HRESULT Try(MethodOf<Owner, Slot, Parameters...>, std::type_identity_t<Parameters>... arguments) const {
        static_assert(std::is_base_of_v<Owner, I>);
        using Function = HRESULT(STDMETHODCALLTYPE*)(void*, Parameters...);
        // A handler may let go of this very reference while the call runs.
        const Com kept = Required();
        void** members = *reinterpret_cast<void***>(kept.object_);
        return reinterpret_cast<Function>(members[Slot])(kept.object_, arguments...);
    }

    template <class Owner, int Slot, class... Parameters>
    void Call(MethodOf<Owner, Slot, Parameters...> member, std::type_identity_t<Parameters>... arguments) const {
        Check(Try(member, arguments...));
    }

    // Reads a property. Without an answer (S_FALSE) the result is its kind's nothing.
    template <class Owner, int Slot, class T, class... Parameters>
    auto Read(GetOf<Owner, Slot, T, Parameters...>, std::type_identity_t<Parameters>... arguments) const {
        constexpr MethodOf<Owner, Slot, Parameters..., T*> member{};
        if constexpr (std::is_same_v<T, BSTR>) {
            Bstr text;
            Call(member, arguments..., text.Out());
            return text.Utf8();
        } else if constexpr (std::is_same_v<T, VARIANT>) {
            Variant value;
            Call(member, arguments..., value.Out());
            return value;
        } else if constexpr (std::is_same_v<T, VARIANT_BOOL>) {
            VARIANT_BOOL value = VARIANT_FALSE;
            Call(member, arguments..., &value);
            return ToBool(value);
        } else if constexpr (std::is_same_v<T, long>) {
            long value = 0;
            Call(member, arguments..., &value);
            return static_cast<std::int32_t>(value);
        } else if constexpr (std::is_pointer_v<T> && !std::is_same_v<T, SAFEARRAY*>) {
            Com<std::remove_pointer_t<T>> object;
            Call(member, arguments..., object.Out());
            return object;
        } else {
            T value{};
            Call(member, arguments..., &value);
            return value;
        }
    }

    // The object that a property gives; nothing when the call fails.
    template <class Owner, int Slot, class T, class... Parameters>
    Com<T> Look(GetOf<Owner, Slot, T*, Parameters...>, std::type_identity_t<Parameters>... arguments) const {
        Com<T> object;
        if (FAILED(Try(MethodOf<Owner, Slot, Parameters..., T**>(), arguments..., object.Out()))) object.Release();
        return object;
    }

private:
    const Com& Required() const;

    I* object_ = nullptr;
};

[[noreturn]] void ThrowNoObject();

template <class I>
const Com<I>& Com<I>::Required() const {
    if (!object_) ThrowNoObject();
    return *this;
}

// A new object of a registered class. Throws failure 429 when it can't be made.
template <class I>
Com<I> CreateInstance(const GUID& class_id);

Com<IUnknown> CreateUnknown(const GUID& class_id);

template <class I>
Com<I> CreateInstance(const GUID& class_id) {
    auto object = CreateUnknown(class_id).As<I>();
    if (!object) ThrowNoObject();
    return object;
}

}  // namespace ombrel::decal
