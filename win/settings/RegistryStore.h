#pragma once
#include <string>

#include "settings/Settings.h"

namespace win::settings {

// Settings in the registry, one string value per key under
// HKEY_CURRENT_USER\<base>\<app>\<section>, where the add-in's original platform kept them,
// so a designer's existing settings carry over.
class RegistryStore : public ::settings::Store {
public:
    static constexpr const char* kProgramSettings = "Software\\VB and VBA Program Settings";
    // base: the key under HKEY_CURRENT_USER that holds the applications (tests use their own).
    explicit RegistryStore(std::string base = kProgramSettings) : base_(std::move(base)) {}

    // The default when the application, the section or the key is missing, or the value
    // is not text.
    std::string GetSetting(const std::string& app, const std::string& section, const std::string& key,
                           const std::string& defaultValue = "") const override;
    // Creates the keys as needed. An empty application, section or key name is an
    // invalid-call error, as on the original platform.
    void SaveSetting(const std::string& app, const std::string& section, const std::string& key,
                     const std::string& value) override;

private:
    std::wstring SectionKey(const std::string& app, const std::string& section) const;
    std::string base_;
};

}  // namespace win::settings
