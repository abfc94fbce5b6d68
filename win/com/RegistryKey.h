#pragma once
#include "win/com/Ole.h"

namespace win::com {

// An open registry key, closed when it goes: the registration and the settings store
// open keys the same way.
class RegistryKey {
public:
    RegistryKey() = default;
    ~RegistryKey() {
        if (h_) RegCloseKey(h_);
    }
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;
    HKEY* Receive() { return &h_; }
    HKEY Get() const { return h_; }

private:
    HKEY h_ = nullptr;
};

}  // namespace win::com
