#include "win/server/ClassFactory.h"

#include <new>

#include "win/com/ComPtr.h"
#include "win/server/AddInServer.h"
#include "win/server/Module.h"

namespace win::server {

HRESULT ClassFactory::QueryInterface(REFIID iid, void** out) {
    if (!out) return E_POINTER;
    *out = nullptr;
    if (!IsEqualIID(iid, IID_IUnknown) && !IsEqualIID(iid, IID_IClassFactory)) return E_NOINTERFACE;
    *out = static_cast<IClassFactory*>(this);
    AddRef();
    return S_OK;
}

// A factory held by a client keeps the DLL loaded, as a lock does.
ULONG ClassFactory::AddRef() {
    LockModule(true);
    return 2;
}

ULONG ClassFactory::Release() {
    LockModule(false);
    return 1;
}

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID iid, void** out) {
    if (!out) return E_POINTER;
    *out = nullptr;
    if (outer) return CLASS_E_NOAGGREGATION;
    try {
        com::ComPtr<AddInServer> server =
            com::DispatchObject<IRxApplicationAddInServer>::Make<AddInServer>(MakeAddIn());
        return server->QueryInterface(iid, out);
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (...) {
        return E_UNEXPECTED;
    }
}

HRESULT ClassFactory::LockServer(BOOL lock) {
    LockModule(lock != FALSE);
    return S_OK;
}

ClassFactory& AddInServerFactory() {
    static ClassFactory factory;
    return factory;
}

}  // namespace win::server
