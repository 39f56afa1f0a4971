// The class of one looping sound for others to make: DX8Sound.
#pragma once

#include <memory>

#include "adapters/decal/ComObject.h"
#include "hud/DX8Sound.h"

namespace ombrel::decal {

inline constexpr GUID kSoundClass = Guid("ACF195EA-DFA4-4929-9241-0A5BC85CBE0E");

// Members are in the order of the vtable.
struct IOmbrelSound : IDispatch {
    static constexpr GUID kIid = Guid("B2EF4423-EF5E-4232-A04E-CF1764560E0D");
    virtual HRESULT STDMETHODCALLTYPE SetSound(BSTR soundname) = 0;      // dispid 1
    virtual HRESULT STDMETHODCALLTYPE UnSetSound() = 0;                  // dispid 2
    virtual HRESULT STDMETHODCALLTYPE Play(VARIANT_BOOL LoopSound) = 0;  // dispid 3
    virtual HRESULT STDMETHODCALLTYPE StopPlay() = 0;                    // dispid 4
    virtual HRESULT STDMETHODCALLTYPE get_Status(long* status) = 0;      // dispid 5

protected:
    ~IOmbrelSound() = default;
};

class SoundObject final : public ComObject<SoundObject, IOmbrelSound> {
public:
    SoundObject();
    ~SoundObject();

    void* Query(const GUID& id);

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT* result,
                                     EXCEPINFO*, UINT*) override;

    HRESULT STDMETHODCALLTYPE SetSound(BSTR soundname) override;
    HRESULT STDMETHODCALLTYPE UnSetSound() override;
    HRESULT STDMETHODCALLTYPE Play(VARIANT_BOOL LoopSound) override;
    HRESULT STDMETHODCALLTYPE StopPlay() override;
    HRESULT STDMETHODCALLTYPE get_Status(long* status) override;

private:
    std::unique_ptr<DX8Sound> sound_;
};

}  // namespace ombrel::decal
