// Library DecalNet (decalnet.dll): decoded messages of the game. Elements go by field name or by number from 0.
#pragma once

#include "adapters/decal/interfaces/Member.h"

namespace ombrel::decal {

struct IMessageMember;

struct IMessage : Interface<IMessage> {
    static constexpr GUID kIid = Guid("23EE0804-EAC7-493B-BB9D-2298FD44FFA1");
    static constexpr Get<7, long> Type{};
    static constexpr Get<9, VARIANT, VARIANT> Value{};
    static constexpr Get<10, IMessageMember*, VARIANT> Struct{};
    static constexpr Get<11, SAFEARRAY*, VARIANT> RawValue{};
};

struct IMessage2 : Interface<IMessage2, IMessage> {
    static constexpr GUID kIid = Guid("38AFE740-9189-4F7C-8DE2-E61087DD9F19");
};

struct IMessageMember : Interface<IMessageMember> {
    static constexpr GUID kIid = Guid("05D14E34-0A23-4A9F-95CF-9DB24B3CFB9F");
    static constexpr Get<7, VARIANT, VARIANT> Value{};
    static constexpr Get<8, SAFEARRAY*, VARIANT> RawValue{};
    static constexpr Get<9, IMessageMember*, VARIANT> Struct{};
};

}  // namespace ombrel::decal
