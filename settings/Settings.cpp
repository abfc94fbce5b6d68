#include "settings/Settings.h"

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "support/Error.h"

namespace settings {

namespace {
std::string HeaderOf(const std::string& app, const std::string& section) {
    return app + "\\" + section;
}

std::string TrimBlanks(const std::string& s) {
    auto b = s.find_first_not_of(" \t\r");
    if (b == std::string::npos) return "";
    auto e = s.find_last_not_of(" \t\r");
    return s.substr(b, e - b + 1);
}
}  // namespace

IniFileStore::IniFileStore(std::filesystem::path file) : file_(std::move(file)) {
    Load();
}

std::filesystem::path IniFileStore::DefaultPath() {
    if (const char* p = std::getenv("TARNWELL_SETTINGS"); p && *p) return p;
    if (const char* x = std::getenv("XDG_CONFIG_HOME"); x && *x)
        return std::filesystem::path(x) / "tarnwell" / "settings.ini";
    const char* home = std::getenv("HOME");
    return std::filesystem::path(home ? home : ".") / ".config" / "tarnwell" / "settings.ini";
}

void IniFileStore::Load() {
    std::ifstream in(file_);
    if (!in) return;  // no file yet: every read gives its default
    std::string line, current;
    while (std::getline(in, line)) {
        line = TrimBlanks(line);
        if (line.empty() || line[0] == ';') continue;
        if (line.front() == '[' && line.back() == ']') {
            current = line.substr(1, line.size() - 2);
            sections_[current];
            continue;
        }
        auto eq = line.find('=');
        if (eq == std::string::npos || current.empty()) continue;
        sections_[current][TrimBlanks(line.substr(0, eq))] = line.substr(eq + 1);
    }
}

std::string IniFileStore::GetSetting(const std::string& app, const std::string& section,
                                     const std::string& key, const std::string& defaultValue) const {
    auto s = sections_.find(HeaderOf(app, section));
    if (s == sections_.end()) return defaultValue;
    auto k = s->second.find(key);
    return k == s->second.end() ? defaultValue : k->second;
}

void IniFileStore::SaveSetting(const std::string& app, const std::string& section, const std::string& key,
                               const std::string& value) {
    // The file's own syntax: a key may not hold "=", a section name may not hold "]", and
    // nothing may break a line.
    auto has = [](const std::string& text, const char* chars) {
        return text.find_first_of(chars) != std::string::npos;
    };
    if (has(value, "\r\n") || has(key, "=\r\n") || key.empty() || has(section, "]\r\n") || has(app, "]\r\n"))
        throw support::Error(support::errors::kInvalidCall, "A setting cannot be stored under " + section +
                                                                " " + key +
                                                                ": the name or value has a "
                                                                "character the settings file cannot hold");
    sections_[HeaderOf(app, section)][key] = value;
    Write();
}

void IniFileStore::Write() const {
    std::ostringstream out;
    for (const auto& [header, keys] : sections_) {
        out << '[' << header << "]\n";
        for (const auto& [k, v] : keys) out << k << '=' << v << '\n';
    }
    std::error_code ec;
    if (file_.has_parent_path()) std::filesystem::create_directories(file_.parent_path(), ec);
    auto temp = file_;
    temp += ".tmp";
    {
        std::ofstream f(temp, std::ios::binary | std::ios::trunc);
        f << out.str();
        if (!f.flush())
            throw support::Error(support::errors::kPermissionDenied,
                                 "Cannot write settings file " + file_.string());
    }
    std::filesystem::rename(temp, file_, ec);
    if (ec)
        throw support::Error(support::errors::kPermissionDenied,
                             "Cannot write settings file " + file_.string());
}

}  // namespace settings
