#include "win/server/Module.h"

#include "win/com/DispatchObject.h"

namespace win::server {

namespace {
HINSTANCE module = nullptr;
LONG locks = 0;
}  // namespace

void SetModuleHandle(HINSTANCE handle) {
    module = handle;
}

std::wstring ModulePath() {
    // Paths longer than MAX_PATH need a prefix XP's loader did not give DLLs anyway.
    wchar_t path[MAX_PATH + 1];
    DWORD length = GetModuleFileNameW(module, path, MAX_PATH + 1);
    return std::wstring(path, length <= MAX_PATH ? length : 0);
}

void LockModule(bool lock) {
    lock ? InterlockedIncrement(&locks) : InterlockedDecrement(&locks);
}

bool ModuleInUse() {
    return locks > 0 || com::LiveObjectCount() > 0;
}

}  // namespace win::server
