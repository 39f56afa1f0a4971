// The class that the framework makes: APluginCore.
#pragma once

#include <memory>

#include "adapters/decal/ComObject.h"
#include "adapters/decal/interfaces/Decal.h"
#include "adapters/decal/interfaces/DecalPlugins.h"
#include "core/APluginCore.h"

namespace ombrel::decal {

class DecalSite;

inline constexpr GUID kPluginClass = Guid("F11BC362-933A-4A7A-897B-15BEB69E539C");

// What other plug-ins and scripts call. Members are in the order of the vtable.
struct IOmbrel : IDispatch {
    static constexpr GUID kIid = Guid("A349DA66-A293-45A7-9F27-D32DE290C35C");
    virtual HRESULT STDMETHODCALLTYPE AddChatText(BSTR text, long color, long window) = 0;  // dispid 1

protected:
    ~IOmbrel() = default;
};

class PluginObject final : public ComObject<PluginObject, IPlugin2, IWindowsMessageSink, IOmbrel> {
public:
    PluginObject();
    ~PluginObject();

    void* Query(const GUID& id);

    HRESULT STDMETHODCALLTYPE Initialize(::IUnknown* Site) override;
    HRESULT STDMETHODCALLTYPE Terminate() override;

    HRESULT STDMETHODCALLTYPE WindowMessage(long HWND, short uMsg, long wParam, long lParam,
                                            VARIANT_BOOL* pbEat) override;
    HRESULT STDMETHODCALLTYPE WindowMessageEnd() override;

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT* result,
                                     EXCEPINFO*, UINT*) override;

    HRESULT STDMETHODCALLTYPE AddChatText(BSTR text, long color, long window) override;

private:
    std::unique_ptr<DecalSite> site_;
    std::unique_ptr<APluginCore> core_;  // from Initialize on
};

}  // namespace ombrel::decal
