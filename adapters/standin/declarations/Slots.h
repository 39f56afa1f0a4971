// How the framework's interfaces are declared here: in the order of their slots, each doing nothing unless an object of
// the stand-in fills it.
#pragma once

#include "adapters/standin/WindowsHeaders.h"

namespace ombrel::standin {

// The answer of a slot that no object fills. It is counted: a plug-in that gets here is wrong, or the stand-in lacks
// something.
HRESULT NotOffered();

// The four slots of dispatch. Everything is called by slot.
struct Dispatch : IDispatch {
    STDMETHOD(GetTypeInfoCount)(UINT*) override { return NotOffered(); }
    STDMETHOD(GetTypeInfo)(UINT, LCID, ITypeInfo**) override { return NotOffered(); }
    STDMETHOD(GetIDsOfNames)(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return NotOffered(); }
    STDMETHOD(Invoke)(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return NotOffered();
    }
};

}  // namespace ombrel::standin
