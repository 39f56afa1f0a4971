#include "adapters/standin/SystemCalls.h"

#include <shlobj.h>

#include <cstring>
#include <cwchar>
#include <span>
#include <string>
#include <utility>

#include "adapters/standin/Object.h"
#include "adapters/standin/Sound.h"
#include "adapters/standin/Text.h"

#undef SHGetFolderPath

namespace ombrel::standin {

namespace {

// Whom the DLL's calls reach, and the DLL.
sim::Client* the_client = nullptr;
HMODULE the_dll = nullptr;

host::Platform& System() { return the_client->platform(); }

// The system's calls have no way to fail as the client's may: what is made to fail there gives a default here.
template <class Body>
auto Ask(Body body, decltype(body()) otherwise = {}) {
    try {
        return body();
    } catch (const Failure&) {
        return otherwise;
    }
}
template <class Body>
void Tell(Body body) {
    try {
        body();
    } catch (const Failure&) {
    }
}

// Clock and zone

constexpr std::int64_t kTicksPerMillisecond = 10000;
constexpr std::int64_t kFileTimeOf1970 = 116444736000000000;

FILETIME NowAsFileTime() {
    const std::int64_t ticks = Ask([] { return System().Now(); }) * kTicksPerMillisecond + kFileTimeOf1970;
    return {static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
}

void WINAPI OurGetSystemTimeAsFileTime(FILETIME* time) { *time = NowAsFileTime(); }

void WINAPI OurGetSystemTime(SYSTEMTIME* time) {
    const FILETIME now = NowAsFileTime();
    FileTimeToSystemTime(&now, time);
}

// A zone with a rule for summer time has the moments at which it begins and ends.
DWORD WINAPI OurGetTimeZoneInformation(TIME_ZONE_INFORMATION* information) {
    constexpr LONG hour = 60;
    constexpr SYSTEMTIME none{}, spring{0, 3, 0, 2, 2, 0, 0, 0}, autumn{0, 11, 0, 1, 2, 0, 0, 0};
    const host::TimeZone zone = Ask([] { return System().GetTimeZoneInformation(); });
    *information = {};
    information->Bias = zone.bias;
    information->StandardDate = zone.daylight_rule ? autumn : none;
    information->DaylightDate = zone.daylight_rule ? spring : none;
    information->DaylightBias = zone.daylight_rule ? -hour : 0;
    if (!zone.daylight_rule) return TIME_ZONE_ID_UNKNOWN;
    return zone.daylight ? TIME_ZONE_ID_DAYLIGHT : TIME_ZONE_ID_STANDARD;
}

// Folders

HRESULT WINAPI OurSHGetFolderPathW(HWND, int folder, HANDLE, DWORD, wchar_t* path) {
    const host::Folder found = Ask([&] { return System().SHGetFolderPath(folder & 0xFF); }, {0x80004005, {}});
    const std::wstring text = Wide(found.path);
    if (text.size() >= MAX_PATH) return E_INVALIDARG;
    std::wmemcpy(path, text.c_str(), text.size() + 1);
    return static_cast<HRESULT>(found.status);
}

HRESULT WINAPI OurSHGetFolderPathA(HWND window, int folder, HANDLE token, DWORD flags, char* path) {
    wchar_t wide[MAX_PATH];
    const HRESULT result = OurSHGetFolderPathW(window, folder, token, flags, wide);
    WideCharToMultiByte(CP_ACP, 0, wide, -1, path, MAX_PATH, nullptr, nullptr);
    return result;
}

DWORD WINAPI OurGetModuleFileNameW(HMODULE module, wchar_t* path, DWORD size) {
    if (module != the_dll) return GetModuleFileNameW(module, path, size);
    const std::wstring text = Wide(Ask([] { return System().ProgramPath(); }) + "\\Ombrel.dll");
    if (text.size() >= size) return GetModuleFileNameW(module, path, size);
    std::wmemcpy(path, text.c_str(), text.size() + 1);
    return static_cast<DWORD>(text.size());
}

// Files, for the sake of sounds

FILE* Our_wfopen(const wchar_t* path, const wchar_t* mode) {
    FILE* file = _wfopen(path, mode);
    NoteOpened(Narrow(std::wstring_view(path)), file != nullptr);
    return file;
}

HANDLE WINAPI OurCreateFileW(const wchar_t* path, DWORD access, DWORD sharing, SECURITY_ATTRIBUTES* security,
                             DWORD creation, DWORD flags, HANDLE pattern) {
    const HANDLE file = CreateFileW(path, access, sharing, security, creation, flags, pattern);
    const DWORD error = GetLastError();
    NoteOpened(Narrow(std::wstring_view(path)), file != INVALID_HANDLE_VALUE);
    SetLastError(error);
    return file;
}

// Sounds

BOOL WINAPI OursndPlaySoundW(const wchar_t* path, UINT flags) {
    Tell([&] { System().sndPlaySound(path ? Narrow(std::wstring_view(path)) : "", static_cast<std::int32_t>(flags)); });
    return TRUE;
}

BOOL WINAPI OursndPlaySoundA(const char* path, UINT flags) {
    Tell([&] { System().sndPlaySound(path ? path : "", static_cast<std::int32_t>(flags)); });
    return TRUE;
}

HRESULT WINAPI OurDirectSoundCreate8(const GUID*, IDirectSound8** device, IUnknown*) {
    *device = nullptr;
    auto made = Ask([] { return System().DirectSoundCreate(); });
    return made ? MakeSoundDevice(std::move(made), device) : DSERR_NODRIVER;
}

// Keys and mouse

SHORT WINAPI OurGetAsyncKeyState(int key) {
    return Ask([&] { return System().GetAsyncKeyState(key); });
}

SHORT WINAPI OurGetKeyState(int key) {
    return Ask([&] { return System().GetKeyState(key); });
}

UINT WINAPI OurMapVirtualKey(UINT key, UINT kind) {
    return static_cast<UINT>(
        Ask([&] { return System().MapVirtualKey(static_cast<std::int32_t>(key), static_cast<std::int32_t>(kind)); }));
}

SHORT WINAPI OurVkKeyScanA(char character) {
    return Ask([&] { return System().VkKeyScan(character); }, -1);
}

SHORT WINAPI OurVkKeyScanW(wchar_t character) { return OurVkKeyScanA(static_cast<char>(character)); }

void WINAPI Ourkeybd_event(BYTE key, BYTE scan, DWORD flags, ULONG_PTR) {
    Tell([&] { System().keybd_event(key, scan, static_cast<std::int32_t>(flags)); });
}

BOOL WINAPI OurGetCursorPos(POINT* point) {
    const host::Point cursor = Ask([] { return System().GetCursorPos(); });
    *point = {cursor.x, cursor.y};
    return TRUE;
}

BOOL WINAPI OurSetCursorPos(int x, int y) {
    Tell([&] { System().SetCursorPos(x, y); });
    return TRUE;
}

BOOL WINAPI OurScreenToClient(HWND, POINT* point) {
    const host::Point converted = Ask([&] { return System().ScreenToClient({point->x, point->y}); });
    *point = {converted.x, converted.y};
    return TRUE;
}

BOOL WINAPI OurClientToScreen(HWND, POINT* point) {
    const host::Point converted = Ask([&] { return System().ClientToScreen({point->x, point->y}); });
    *point = {converted.x, converted.y};
    return TRUE;
}

void WINAPI Ourmouse_event(DWORD flags, DWORD, DWORD, DWORD, ULONG_PTR) {
    Tell([&] { System().mouse_event(static_cast<std::int32_t>(flags)); });
}

// The table of what is led here.
struct Detour {
    const char* name;
    FARPROC ours;
};

template <class Function>
FARPROC Address(Function* function) {
    return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(function));
}

const Detour* FindDetour(const char* name) {
    static const Detour detours[] = {
        {"GetSystemTimeAsFileTime", Address(OurGetSystemTimeAsFileTime)},
        {"GetSystemTimePreciseAsFileTime", Address(OurGetSystemTimeAsFileTime)},
        {"GetSystemTime", Address(OurGetSystemTime)},
        {"GetTimeZoneInformation", Address(OurGetTimeZoneInformation)},
        {"SHGetFolderPathA", Address(OurSHGetFolderPathA)},
        {"SHGetFolderPathW", Address(OurSHGetFolderPathW)},
        {"GetModuleFileNameW", Address(OurGetModuleFileNameW)},
        {"_wfopen", Address(Our_wfopen)},
        {"CreateFileW", Address(OurCreateFileW)},
        {"sndPlaySoundA", Address(OursndPlaySoundA)},
        {"sndPlaySoundW", Address(OursndPlaySoundW)},
        {"DirectSoundCreate8", Address(OurDirectSoundCreate8)},
        {"GetAsyncKeyState", Address(OurGetAsyncKeyState)},
        {"GetKeyState", Address(OurGetKeyState)},
        {"MapVirtualKeyA", Address(OurMapVirtualKey)},
        {"MapVirtualKeyW", Address(OurMapVirtualKey)},
        {"VkKeyScanA", Address(OurVkKeyScanA)},
        {"VkKeyScanW", Address(OurVkKeyScanW)},
        {"keybd_event", Address(Ourkeybd_event)},
        {"GetCursorPos", Address(OurGetCursorPos)},
        {"SetCursorPos", Address(OurSetCursorPos)},
        {"ScreenToClient", Address(OurScreenToClient)},
        {"ClientToScreen", Address(OurClientToScreen)},
        {"mouse_event", Address(Ourmouse_event)},
    };
    for (const Detour& detour : detours) {
        if (std::strcmp(detour.name, name) == 0) return &detour;
    }
    return nullptr;
}

template <class T>
T* At(HMODULE module, DWORD offset) {
    return reinterpret_cast<T*>(reinterpret_cast<unsigned char*>(module) + offset);
}

void Replace(IMAGE_THUNK_DATA& entry, FARPROC function) {
    DWORD protection = 0;
    VirtualProtect(&entry, sizeof entry, PAGE_READWRITE, &protection);
    entry.u1.Function = static_cast<DWORD>(reinterpret_cast<std::uintptr_t>(function));
    VirtualProtect(&entry, sizeof entry, protection, &protection);
}

}  // namespace

void RedirectSystemCalls(HMODULE dll, sim::Client& client) {
    the_client = &client;
    the_dll = dll;
    const auto* header = At<IMAGE_NT_HEADERS>(dll, static_cast<DWORD>(At<IMAGE_DOS_HEADER>(dll, 0)->e_lfanew));
    const DWORD imports = header->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    if (imports == 0) return;
    for (auto* library = At<IMAGE_IMPORT_DESCRIPTOR>(dll, imports); library->Name != 0; ++library) {
        const auto* name = At<IMAGE_THUNK_DATA>(dll, library->OriginalFirstThunk);
        auto* entry = At<IMAGE_THUNK_DATA>(dll, library->FirstThunk);
        for (; name->u1.AddressOfData != 0; ++name, ++entry) {
            if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal)) continue;
            const auto* import = At<IMAGE_IMPORT_BY_NAME>(dll, name->u1.AddressOfData);
            if (const Detour* detour = FindDetour(reinterpret_cast<const char*>(import->Name))) {
                Replace(*entry, detour->ours);
            }
        }
    }
}

}  // namespace ombrel::standin
