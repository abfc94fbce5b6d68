#pragma once
#include "win/com/Ole.h"

namespace win::server {

// Makes add-in server objects for CoCreateInstance. One factory serves the whole module:
// it lives as long as the DLL, so its reference count only tells COM it is in use.
class ClassFactory : public IClassFactory {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** out) override;
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;
};

ClassFactory& AddInServerFactory();

}  // namespace win::server
