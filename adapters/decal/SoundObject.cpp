#include "adapters/decal/SoundObject.h"

#include "adapters/decal/Dispatch.h"
#include "adapters/decal/Module.h"
#include "adapters/decal/WindowsPlatform.h"
#include "core/Vars.h"

namespace ombrel::decal {

namespace {

constexpr ScriptMember<SoundObject> kMembers[] = {
    {L"SetSound", 1, 1,
     [](SoundObject& self, const EventArguments& arguments, VARIANT*) {
         return self.SetSound(Bstr(arguments.Text(0)).get());
     }},
    {L"UnSetSound", 2, 0, [](SoundObject& self, const EventArguments&, VARIANT*) { return self.UnSetSound(); }},
    {L"Play", 3, 1,
     [](SoundObject& self, const EventArguments& arguments, VARIANT*) {
         return self.Play(ToVariantBool(arguments.Bool(0)));
     }},
    {L"StopPlay", 4, 0, [](SoundObject& self, const EventArguments&, VARIANT*) { return self.StopPlay(); }},
    {L"Status", 5, 0,
     [](SoundObject& self, const EventArguments&, VARIANT* result) {
         if (!result) return S_OK;
         result->vt = VT_I4;
         return self.get_Status(&result->lVal);
     }},
};
constexpr std::span<const ScriptMember<SoundObject>> kScriptMembers = kMembers;

// The plug-in's end takes the platform along, and a sound may outlive it.
void LendPlatform() {
    if (!Vars::Platform) Vars::Platform = &ThePlatform();
}

}  // namespace

SoundObject::SoundObject() {
    LendPlatform();
    sound_ = std::make_unique<DX8Sound>();
}

SoundObject::~SoundObject() { LendPlatform(); }

void* SoundObject::Query(const GUID& id) {
    const bool known = id == IID_IUnknown || id == IID_IDispatch || id == IOmbrelSound::kIid;
    return known ? static_cast<IOmbrelSound*>(this) : nullptr;
}

HRESULT SoundObject::GetTypeInfoCount(UINT* count) {
    if (!count) return E_POINTER;
    *count = 0;
    return S_OK;
}

HRESULT SoundObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
    return FindMember(kScriptMembers, names, count, ids);
}

HRESULT SoundObject::Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO*,
                            UINT*) {
    return CallMember(kScriptMembers, *this, member, parameters, result);
}

HRESULT SoundObject::SetSound(BSTR soundname) try {
    LendPlatform();
    sound_->SetSound(ToUtf8({soundname, SysStringLen(soundname)}));
    return S_OK;
} catch (...) {
    return E_FAIL;
}

HRESULT SoundObject::UnSetSound() try {
    sound_->UnSetSound();
    return S_OK;
} catch (...) {
    return E_FAIL;
}

HRESULT SoundObject::Play(VARIANT_BOOL LoopSound) try {
    LendPlatform();
    sound_->Play(ToBool(LoopSound));
    return S_OK;
} catch (...) {
    return E_FAIL;
}

HRESULT SoundObject::StopPlay() try {
    LendPlatform();
    sound_->StopPlay();
    return S_OK;
} catch (...) {
    return E_FAIL;
}

HRESULT SoundObject::get_Status(long* status) try {
    if (!status) return E_POINTER;
    LendPlatform();
    *status = sound_->Status();
    return S_OK;
} catch (...) {
    return E_FAIL;
}

}  // namespace ombrel::decal
