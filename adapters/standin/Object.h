// What the framework's objects have in common: they are counted, answer for their interfaces, and turn failures into
// results.
#pragma once

#include <functional>
#include <type_traits>
#include <typeinfo>
#include <utility>

#include "adapters/standin/Ledger.h"
#include "adapters/standin/Text.h"
#include "adapters/standin/declarations/Slots.h"
#include "core/failure.h"

namespace ombrel::standin {

// A counted reference.
template <class T>
class Ref {
public:
    Ref() = default;
    Ref(T* object) : object_(object) {
        if (object_) object_->AddRef();
    }
    Ref(const Ref& other) : Ref(other.object_) {}
    Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    ~Ref() {
        if (object_) object_->Release();
    }
    Ref& operator=(Ref other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }

    T* get() const { return object_; }
    T* operator->() const { return object_; }
    T& operator*() const { return *object_; }
    explicit operator bool() const { return object_ != nullptr; }

    T* Detach() { return std::exchange(object_, nullptr); }
    T** Receive() {
        *this = Ref();
        return &object_;
    }

private:
    T* object_ = nullptr;
};

// The interface of that id, where the object has it.
template <class T>
Ref<T> Ask(IUnknown* object, const GUID& id) {
    Ref<T> result;
    if (object) object->QueryInterface(id, reinterpret_cast<void**>(result.Receive()));
    return result;
}

// Whether an interface, or one that it extends, has that id.
template <class Interface>
bool Answers(REFIID id) {
    if constexpr (std::is_same_v<Interface, IUnknown>) {
        return IsEqualIID(id, IID_IUnknown);
    } else if constexpr (requires { typename Interface::Base; }) {
        return IsEqualIID(id, Interface::kId) || Answers<typename Interface::Base>(id);
    } else {
        return IsEqualIID(id, __uuidof(Interface)) || IsEqualIID(id, IID_IUnknown);
    }
}

// A failure as a result, with its text for who asks for it.
HRESULT ResultOf(const Failure& failure);

// Runs what stands behind a slot. It may give a result of its own.
template <class Body>
HRESULT Serve(Body body) {
    ++TheLedger().calls;
    try {
        if constexpr (std::is_void_v<decltype(body())>) {
            body();
            return S_OK;
        } else {
            return body();
        }
    } catch (const Failure& failure) {
        return ResultOf(failure);
    }
}

template <class Main, class... Others>
class Object : public Main, public Others..., public ISupportErrorInfo {
public:
    Object() = default;
    virtual ~Object() {
        TheLedger().live.erase(this);
        if (gone) gone();
    }
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;

    STDMETHOD(QueryInterface)(REFIID id, void** result) override {
        ++TheLedger().calls;
        if (!result) return E_POINTER;
        *result = nullptr;
        (Offer<Main>(id, result) || ... || Offer<Others>(id, result)) || Offer<ISupportErrorInfo>(id, result);
        if (!*result) return E_NOINTERFACE;
        ++references_;
        return S_OK;
    }
    STDMETHOD_(ULONG, AddRef)() override { return ++references_; }
    STDMETHOD_(ULONG, Release)() override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }
    STDMETHOD(InterfaceSupportsErrorInfo)(REFIID) override { return S_OK; }

    ULONG references() const { return references_; }
    std::function<void()> gone;  // told when the last reference has gone

private:
    template <class Interface>
    bool Offer(REFIID id, void** result) {
        if (!Answers<Interface>(id)) return false;
        *result = static_cast<Interface*>(this);
        return true;
    }

    ULONG references_ = 0;
};

template <class T, class... Arguments>
Ref<T> Make(Arguments&&... arguments) {
    Ref<T> object(new T(std::forward<Arguments>(arguments)...));
    TheLedger().live.emplace(object.get(), typeid(T).name());
    return object;
}

// The object that all who look for it share, while one of them holds it.
template <class T>
class Only {
public:
    template <class Maker>
    Ref<T> Get(Maker make) {
        if (!object_) {
            Ref<T> made = make();
            object_ = made.get();
            object_->gone = [this] { object_ = nullptr; };
            return made;
        }
        return object_;
    }
    T* get() const { return object_; }

private:
    T* object_ = nullptr;
};

}  // namespace ombrel::standin
