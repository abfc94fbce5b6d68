#pragma once
#include <string>

#include "win/com/Ole.h"

// The DLL as a COM module: where it was loaded from, and whether anything still needs it.
namespace win::server {

void SetModuleHandle(HINSTANCE module);
// The full path of the DLL, as registration writes it.
std::wstring ModulePath();

// IClassFactory::LockServer counts here; live objects are counted by com::DispatchObject.
void LockModule(bool lock);
bool ModuleInUse();

}  // namespace win::server
