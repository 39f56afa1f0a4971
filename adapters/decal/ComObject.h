// Objects of ours that the framework, other plug-ins and scripts hold.
#pragma once

#include <atomic>
#include <memory>
#include <utility>

#include "adapters/decal/Com.h"
#include "adapters/decal/Win32.h"

namespace ombrel::decal {

// How many objects of ours are held from outside, and locks of the class factory. The DLL may go while it is 0.
extern std::atomic<long> held_objects;

// Counts references for `Self`, which answers QueryInterface by a `void* Query(const GUID&)` of its own, and adds
// itself up among the held objects.
template <class Self, class... Interfaces>
class ComObject : public Interfaces... {
public:
    ComObject() { ++held_objects; }
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        if (!object) return E_POINTER;
        *object = static_cast<Self*>(this)->Query(id);
        if (!*object) return E_NOINTERFACE;
        ++references_;
        return S_OK;
    }

    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++references_); }

    ULONG STDMETHODCALLTYPE Release() override {
        const long left = --references_;
        if (left == 0) std::unique_ptr<Self>(static_cast<Self*>(this)).reset();
        return static_cast<ULONG>(left);
    }

protected:
    ~ComObject() { --held_objects; }

private:
    long references_ = 1;
};

// A new object, with one reference, which is the caller's.
template <class T, class... Arguments>
Com<T> MakeObject(Arguments&&... arguments) {
    return Com<T>::Taken(std::make_unique<T>(std::forward<Arguments>(arguments)...).release());
}

}  // namespace ombrel::decal
