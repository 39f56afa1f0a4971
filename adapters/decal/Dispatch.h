// Scripts' way to our objects: IDispatch answered from a table of members.
#pragma once

#include <cwchar>
#include <span>

#include "adapters/decal/EventSink.h"
#include "adapters/decal/Win32.h"

namespace ombrel::decal {

template <class Self>
struct ScriptMember {
    const wchar_t* name;  // compares without case
    DISPID id;
    unsigned arguments;
    HRESULT (*call)(Self& self, const EventArguments& arguments, VARIANT* result);
};

template <class Self>
HRESULT FindMember(std::span<const ScriptMember<Self>> members, LPOLESTR* names, UINT count, DISPID* ids) {
    if (!names || !ids || count == 0) return E_POINTER;
    // Only the first is the member's: parameters have no names here.
    for (UINT i = 0; i < count; ++i) ids[i] = DISPID_UNKNOWN;
    for (const auto& member : members)
        if (_wcsicmp(member.name, names[0]) == 0) ids[0] = member.id;
    return ids[0] == DISPID_UNKNOWN || count > 1 ? DISP_E_UNKNOWNNAME : S_OK;
}

template <class Self>
HRESULT CallMember(std::span<const ScriptMember<Self>> members, Self& self, DISPID id, DISPPARAMS* parameters,
                   VARIANT* result) try {
    if (!parameters) return E_POINTER;
    if (parameters->cNamedArgs != 0) return DISP_E_NONAMEDARGS;
    if (result) VariantInit(result);
    for (const auto& member : members) {
        if (member.id != id) continue;
        if (parameters->cArgs != member.arguments) return DISP_E_BADPARAMCOUNT;
        return member.call(self, EventArguments(*parameters), result);
    }
    return DISP_E_MEMBERNOTFOUND;
} catch (...) {
    return DISP_E_TYPEMISMATCH;
}

}  // namespace ombrel::decal
