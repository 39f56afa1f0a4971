// Messages of the game, decoded.
#pragma once

#include "adapters/standin/declarations/Slots.h"

namespace ombrel::standin {

struct IMessageMember;

struct IMessageMember : Dispatch {
    using Base = IDispatch;
    static constexpr GUID kId = {0x05D14E34, 0x0A23, 0x4A9F, {0x95, 0xCF, 0x9D, 0xB2, 0x4B, 0x3C, 0xFB, 0x9F}};

    STDMETHOD(get_Value)(VARIANT /*index*/, VARIANT*) { return NotOffered(); }
    STDMETHOD(get_RawValue)(VARIANT /*index*/, SAFEARRAY**) { return NotOffered(); }
    STDMETHOD(get_Struct)(VARIANT /*index*/, IMessageMember**) { return NotOffered(); }
    STDMETHOD(get_FieldName)(long /*index*/, BSTR*) { return NotOffered(); }
    STDMETHOD(get_Count)(long*) { return NotOffered(); }
    STDMETHOD(get_BeginOffset)(long*) { return NotOffered(); }
    STDMETHOD(get_EndOffset)(long*) { return NotOffered(); }
};

struct IMessage : Dispatch {
    using Base = IDispatch;
    static constexpr GUID kId = {0x23EE0804, 0xEAC7, 0x493B, {0xBB, 0x9D, 0x22, 0x98, 0xFD, 0x44, 0xFF, 0xA1}};

    STDMETHOD(get_Type)(long*) { return NotOffered(); }
    STDMETHOD(get_RawData)(SAFEARRAY**) { return NotOffered(); }
    STDMETHOD(get_Value)(VARIANT /*element*/, VARIANT*) { return NotOffered(); }
    STDMETHOD(get_Struct)(VARIANT /*element*/, IMessageMember**) { return NotOffered(); }
    STDMETHOD(get_RawValue)(VARIANT /*element*/, SAFEARRAY**) { return NotOffered(); }
    STDMETHOD(get_FieldName)(long /*index*/, BSTR*) { return NotOffered(); }
    STDMETHOD(get_Count)(long*) { return NotOffered(); }
};

struct IMessage2 : IMessage {
    using Base = IMessage;
    static constexpr GUID kId = {0x38AFE740, 0x9189, 0x4F7C, {0x8D, 0xE2, 0xE6, 0x10, 0x87, 0xDD, 0x9F, 0x19}};

    STDMETHOD(get_Begin)(IUnknown**) { return NotOffered(); }
};

}  // namespace ombrel::standin
