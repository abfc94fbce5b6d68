// The four functions every in-process COM server exports, and the DLL's entry point.
#include "win/com/Ole.h"
#include "win/server/AddInClsid.h"
#include "win/server/ClassFactory.h"
#include "win/server/Module.h"
#include "win/server/Registration.h"

extern "C" {

BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) {
        win::server::SetModuleHandle(module);
        DisableThreadLibraryCalls(module);  // the add-in has no threads to hear about
    }
    return TRUE;
}

STDAPI DllGetClassObject(REFCLSID clsid, REFIID iid, void** out) {
    if (!out) return E_POINTER;
    *out = nullptr;
    if (!IsEqualCLSID(clsid, win::server::kAddInClsid)) return CLASS_E_CLASSNOTAVAILABLE;
    return win::server::AddInServerFactory().QueryInterface(iid, out);
}

STDAPI DllCanUnloadNow() {
    return win::server::ModuleInUse() ? S_FALSE : S_OK;
}

STDAPI DllRegisterServer() {
    return win::server::Register(HKEY_CLASSES_ROOT, win::server::ModulePath());
}

STDAPI DllUnregisterServer() {
    return win::server::Unregister(HKEY_CLASSES_ROOT);
}

}  // extern "C"
