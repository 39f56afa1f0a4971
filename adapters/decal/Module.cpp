#include "adapters/decal/Module.h"

#include "adapters/decal/ComObject.h"
#include "adapters/decal/PluginObject.h"
#include "adapters/decal/Registration.h"
#include "adapters/decal/SoundObject.h"
#include "adapters/decal/WindowsPlatform.h"

namespace ombrel::decal {

namespace {

HMODULE this_module = nullptr;

// Makes objects of one class.
template <class T>
class ClassFactory final : public ComObject<ClassFactory<T>, IClassFactory> {
public:
    void* Query(const GUID& id) {
        return id == IID_IUnknown || id == IID_IClassFactory ? static_cast<IClassFactory*>(this) : nullptr;
    }

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** object) override try {
        if (!object) return E_POINTER;
        *object = nullptr;
        if (outer) return CLASS_E_NOAGGREGATION;
        T* made = std::make_unique<T>().release();
        const HRESULT result = made->QueryInterface(id, object);
        made->Release();
        return result;
    } catch (...) {
        return E_FAIL;
    }

    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override {
        lock ? ++held_objects : --held_objects;
        return S_OK;
    }
};

template <class T>
HRESULT Factory(REFIID id, void** factory) {
    auto* made = std::make_unique<ClassFactory<T>>().release();
    const HRESULT result = made->QueryInterface(id, factory);
    made->Release();
    return result;
}

}  // namespace

HMODULE ThisModule() { return this_module; }

std::wstring ModuleFile(HMODULE module) {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

WindowsPlatform& ThePlatform() {
    static WindowsPlatform platform;
    return platform;
}

}  // namespace ombrel::decal

using namespace ombrel::decal;

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) {
        this_module = module;
        DisableThreadLibraryCalls(module);
    }
    return TRUE;
}

STDAPI DllGetClassObject(REFCLSID class_id, REFIID id, LPVOID* factory) try {
    if (!factory) return E_POINTER;
    *factory = nullptr;
    if (class_id == kPluginClass) return Factory<PluginObject>(id, factory);
    if (class_id == kSoundClass) return Factory<SoundObject>(id, factory);
    return CLASS_E_CLASSNOTAVAILABLE;
} catch (...) {
    return E_OUTOFMEMORY;
}

STDAPI DllCanUnloadNow() { return held_objects == 0 ? S_OK : S_FALSE; }

STDAPI DllRegisterServer() try { return RegisterServer(); } catch (...) {
    return E_FAIL;
}

STDAPI DllUnregisterServer() try { return UnregisterServer(); } catch (...) {
    return E_FAIL;
}
