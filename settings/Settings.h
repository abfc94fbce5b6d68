#pragma once
#include <filesystem>
#include <string>
#include <vector>

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

// One INI file with "[App\Section]" headers. Each read reads the file as it is; each save
// changes one key in the file as it is on disk at that moment and keeps every other line,
// so that two sessions never lose each other's keys nor the user's comments. A save goes
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
    static std::vector<std::string> WithSetting(std::vector<std::string> lines, const std::string& header,
                                                const std::string& key, const std::string& value);
    void Write(const std::vector<std::string>& lines) const;
    std::filesystem::path file_;
};

}  // namespace settings
