// How members of the framework's interfaces are declared: by their slot in the vtable and their parameters, so that a
// declaration holds what the plug-in calls and nothing else.
//
//     struct IThing : Interface<IThing> {
//         static constexpr GUID kIid = Guid("12345678-9ABC-DEF0-1234-56789ABCDEF0");
//         static constexpr Method<7, BSTR, long> Rename{};
//         static constexpr Get<8, VARIANT_BOOL> Open{};
//         static constexpr Put<9, VARIANT_BOOL> SetOpen{};
//     };
//
// Every member is `HRESULT __stdcall` behind the object's address. Enumerations are long. Out parameters are pointers;
// the one that is a result comes last, and is the `T` of a Get. One declaration a line: a test reads them against the
// framework's published tables.
#pragma once

#include <cstddef>

#include "adapters/decal/Win32.h"

namespace ombrel::decal {

template <class Owner, int Slot, class... Parameters>
struct MethodOf {};

template <class Owner, int Slot, class T, class... Parameters>
struct GetOf {};

// `Self` is a name for objects of the framework: it is never made, and has no members of its own at run time.
template <class Self, class Base = void>
struct Interface : Base {
    template <int Slot, class... Parameters>
    using Method = MethodOf<Self, Slot, Parameters...>;
    template <int Slot, class... Parameters>
    using Put = MethodOf<Self, Slot, Parameters...>;
    template <int Slot, class T, class... Parameters>
    using Get = GetOf<Self, Slot, T, Parameters...>;
};

template <class Self>
struct Interface<Self, void> {
    template <int Slot, class... Parameters>
    using Method = MethodOf<Self, Slot, Parameters...>;
    template <int Slot, class... Parameters>
    using Put = MethodOf<Self, Slot, Parameters...>;
    template <int Slot, class T, class... Parameters>
    using Get = GetOf<Self, Slot, T, Parameters...>;
};

namespace detail {

consteval unsigned HexDigit(char digit) {
    if (digit >= '0' && digit <= '9') return static_cast<unsigned>(digit - '0');
    if (digit >= 'A' && digit <= 'F') return static_cast<unsigned>(digit - 'A' + 10);
    throw "not a hexadecimal digit";
}

consteval unsigned long Hex(const char* digits, int count) {
    unsigned long value = 0;
    for (int i = 0; i < count; ++i) value = value * 16 + HexDigit(digits[i]);
    return value;
}

}  // namespace detail

consteval GUID Guid(const char (&text)[37]) {
    GUID guid{};
    guid.Data1 = detail::Hex(text, 8);
    guid.Data2 = static_cast<unsigned short>(detail::Hex(text + 9, 4));
    guid.Data3 = static_cast<unsigned short>(detail::Hex(text + 14, 4));
    for (int i = 0; i < 2; ++i) guid.Data4[i] = static_cast<unsigned char>(detail::Hex(text + 19 + 2 * i, 2));
    for (int i = 0; i < 6; ++i) guid.Data4[2 + i] = static_cast<unsigned char>(detail::Hex(text + 24 + 2 * i, 2));
    return guid;
}

}  // namespace ombrel::decal
