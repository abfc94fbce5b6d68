#pragma once
#include <filesystem>
#include <map>
#include <string>

namespace settings {

// Per-user settings by application, section and key, read with a default.
class Store {
public:
    virtual ~Store() = default;
    virtual std::string GetSetting(const std::string& app, const std::string& section, const std::string& key,
                                   const std::string& defaultValue = "") const = 0;
    virtual void SaveSetting(const std::string& app, const std::string& section, const std::string& key,
                             const std::string& value) = 0;
};

// One INI file with "[App\Section]" headers. Every save rewrites the file whole
// through a temporary file, so an interrupted write never leaves half a file.
class IniFileStore : public Store {
public:
    explicit IniFileStore(std::filesystem::path file);
    // The file named by TARNWELL_SETTINGS, else $XDG_CONFIG_HOME/tarnwell/settings.ini
    // (or ~/.config/tarnwell/settings.ini).
    static std::filesystem::path DefaultPath();

    std::string GetSetting(const std::string& app, const std::string& section, const std::string& key,
                           const std::string& defaultValue = "") const override;
    void SaveSetting(const std::string& app, const std::string& section, const std::string& key,
                     const std::string& value) override;
    const std::filesystem::path& Path() const { return file_; }

private:
    using Sections = std::map<std::string, std::map<std::string, std::string>>;
    void Load();
    void Write() const;
    std::filesystem::path file_;
    Sections sections_;
};

}  // namespace settings
