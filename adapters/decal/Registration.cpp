#include "adapters/decal/Registration.h"

#include <olectl.h>

#include <filesystem>
#include <string>

#include "adapters/decal/Module.h"
#include "adapters/decal/PluginObject.h"
#include "adapters/decal/SoundObject.h"
#include "adapters/decal/WindowsPlatform.h"

namespace ombrel::decal {

namespace {

struct ClassRow {
    const GUID& id;
    const wchar_t* name;
    const wchar_t* prog_id;
};

constexpr ClassRow kClasses[] = {
    {kPluginClass, L"Ombrel plug-in", L"Ombrel.APluginCore"},
    {kSoundClass, L"Ombrel looping sound", L"Ombrel.DX8Sound"},
};

constexpr wchar_t kFramework[] = L"SOFTWARE\\Decal";
constexpr wchar_t kPlugins[] = L"SOFTWARE\\Decal\\Plugins";
constexpr wchar_t kFriendlyName[] = L"Ombrel";

std::wstring Text(const GUID& id) {
    wchar_t text[39] = {};
    StringFromGUID2(id, text, static_cast<int>(std::size(text)));
    return text;
}

// A key of the registry that is made when it isn't there.
class Key {
public:
    Key(HKEY root, const std::wstring& path) {
        if (RegCreateKeyExW(root, path.c_str(), 0, nullptr, 0, KEY_READ | KEY_WRITE, nullptr, &key_, nullptr) !=
            ERROR_SUCCESS)
            key_ = nullptr;
    }
    ~Key() {
        if (key_) RegCloseKey(key_);
    }
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;

    bool Has(const wchar_t* name) const {
        return key_ && RegQueryValueExW(key_, name, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
    }

    bool Set(const wchar_t* name, const std::wstring& text) const {
        const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
        return Write(name, REG_SZ, text.c_str(), bytes);
    }

    bool Set(const wchar_t* name, DWORD number) const { return Write(name, REG_DWORD, &number, sizeof number); }

private:
    bool Write(const wchar_t* name, DWORD type, const void* data, DWORD size) const {
        return key_ && RegSetValueExW(key_, name, 0, type, static_cast<const BYTE*>(data), size) == ERROR_SUCCESS;
    }

    HKEY key_ = nullptr;
};

bool WriteClass(const ClassRow& row) {
    const std::wstring id = Text(row.id), path = L"CLSID\\" + id;
    const Key top(HKEY_CLASSES_ROOT, path), server(HKEY_CLASSES_ROOT, path + L"\\InprocServer32");
    const Key name(HKEY_CLASSES_ROOT, path + L"\\ProgID");
    const Key back(HKEY_CLASSES_ROOT, std::wstring(row.prog_id) + L"\\CLSID");
    const Key prog_id(HKEY_CLASSES_ROOT, row.prog_id);
    return top.Set(nullptr, row.name) && server.Set(nullptr, ModuleFile(ThisModule())) &&
           server.Set(L"ThreadingModel", L"Apartment") && name.Set(nullptr, row.prog_id) &&
           prog_id.Set(nullptr, row.name) && back.Set(nullptr, id);
}

bool WritePlugin() {
    const Key plugin(HKEY_LOCAL_MACHINE, std::wstring(kPlugins) + L"\\" + Text(kPluginClass));
    return plugin.Set(nullptr, kFriendlyName) && (plugin.Has(L"Enabled") || plugin.Set(L"Enabled", 1));
}

bool RemoveTree(HKEY root, const std::wstring& path) {
    const LSTATUS status = RegDeleteTreeW(root, path.c_str());
    return status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND;
}

void RemoveWhenEmpty(HKEY root, const wchar_t* path) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(root, path, 0, KEY_READ, &key) != ERROR_SUCCESS) return;
    DWORD keys = 0, values = 0;
    const LSTATUS asked = RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values, nullptr,
                                           nullptr, nullptr, nullptr);
    RegCloseKey(key);
    if (asked == ERROR_SUCCESS && keys == 0 && values == 0) RegDeleteKeyW(root, path);
}

}  // namespace

HRESULT RegisterServer() {
    bool written = WritePlugin();
    for (const ClassRow& row : kClasses) written = written && WriteClass(row);
    if (written) return S_OK;
    UnregisterServer();
    return SELFREG_E_CLASS;
}

HRESULT UnregisterServer() {
    bool removed = RemoveTree(HKEY_LOCAL_MACHINE, std::wstring(kPlugins) + L"\\" + Text(kPluginClass));
    RemoveWhenEmpty(HKEY_LOCAL_MACHINE, kPlugins);
    RemoveWhenEmpty(HKEY_LOCAL_MACHINE, kFramework);
    for (const ClassRow& row : kClasses) {
        removed = RemoveTree(HKEY_CLASSES_ROOT, L"CLSID\\" + Text(row.id)) && removed;
        removed = RemoveTree(HKEY_CLASSES_ROOT, row.prog_id) && removed;
    }
    return removed ? S_OK : SELFREG_E_CLASS;
}

}  // namespace ombrel::decal
