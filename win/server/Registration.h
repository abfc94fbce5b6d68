#pragma once
#include <optional>
#include <string>
#include <vector>

#include "win/com/Ole.h"

// The registry entries by which the host of releases 7 to 9 finds the add-in: its CLSID
// key with the DLL, the versioned add-in category, and the add-in's Settings.
namespace win::server {

struct RegistryEntry {
    std::wstring key;                  // below HKEY_CLASSES_ROOT
    std::optional<std::wstring> name;  // none: the key alone; "": the key's default value
    std::wstring value;
};

// Every key and value that registration writes, parents before children.
std::vector<RegistryEntry> RegistrationEntries(const std::wstring& dllPath);

// Writes the entries under root (HKEY_CLASSES_ROOT for regsvr32).
HRESULT Register(HKEY root, const std::wstring& dllPath);
// Removes the add-in's CLSID key with everything under it, and nothing else. Removing
// what is not there succeeds.
HRESULT Unregister(HKEY root);

// Deletes a key and all its subkeys with the calls XP has (RegDeleteTreeW came with Vista).
LONG DeleteKeyTree(HKEY parent, const std::wstring& subkey);

}  // namespace win::server
