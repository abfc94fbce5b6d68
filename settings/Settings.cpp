#include "settings/Settings.h"

#include <cstdlib>
#include <fstream>
#include <random>
#include <sstream>
#include <vector>

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

std::vector<std::string> ReadLines(const std::filesystem::path& file) {
    std::vector<std::string> lines;
    std::ifstream in(file, std::ios::binary);
    std::string line;
    while (std::getline(in, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

// The section a line opens, or nothing when it opens none.
bool IsHeader(const std::string& line, std::string& header) {
    std::string t = TrimBlanks(line);
    if (t.size() < 2 || t.front() != '[' || t.back() != ']') return false;
    header = t.substr(1, t.size() - 2);
    return true;
}

// The key a line sets, or nothing: comments and lines without "=" set none.
bool IsEntry(const std::string& line, std::string& key, std::string& value) {
    std::string t = TrimBlanks(line);
    if (t.empty() || t[0] == ';') return false;
    auto eq = line.find('=');
    if (eq == std::string::npos) return false;
    key = TrimBlanks(line.substr(0, eq));
    value = line.substr(eq + 1);
    if (!value.empty() && value.back() == '\r') value.pop_back();
    return !key.empty();
}

}  // namespace

IniFileStore::IniFileStore(std::filesystem::path file) : file_(std::move(file)) {}

std::filesystem::path IniFileStore::DefaultPath() {
    if (const char* p = std::getenv("TARNWELL_SETTINGS"); p && *p) return p;
    if (const char* x = std::getenv("XDG_CONFIG_HOME"); x && *x)
        return std::filesystem::path(x) / "tarnwell" / "settings.ini";
    const char* home = std::getenv("HOME");
    return std::filesystem::path(home ? home : ".") / ".config" / "tarnwell" / "settings.ini";
}

// Read from the file as it is now: another session may have written since.
std::string IniFileStore::GetSetting(const std::string& app, const std::string& section,
                                     const std::string& key, const std::string& defaultValue) const {
    const std::string wanted = HeaderOf(app, section);
    std::string current, k, v;
    for (const auto& line : ReadLines(file_)) {
        if (IsHeader(line, current)) continue;
        // A key given twice counts once, the first time: the one a save changes.
        if (current == wanted && IsEntry(line, k, v) && k == key) return v;
    }
    return defaultValue;
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
    Write(WithSetting(ReadLines(file_), HeaderOf(app, section), key, value));
}

// One key changed in the lines as they are; every other line, comments and lines the store
// does not understand among them, stays as it was.
std::vector<std::string> IniFileStore::WithSetting(std::vector<std::string> lines, const std::string& header,
                                                   const std::string& key, const std::string& value) {
    const std::string entry = key + "=" + value;
    std::string current, k, v;
    std::ptrdiff_t sectionEnd = -1;  // after the last line of the wanted section
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (IsHeader(lines[i], current)) {
            if (current == header) sectionEnd = static_cast<std::ptrdiff_t>(i) + 1;
            continue;
        }
        if (current != header) continue;
        if (IsEntry(lines[i], k, v) && k == key) {
            lines[i] = entry;
            return lines;
        }
        if (!TrimBlanks(lines[i]).empty()) sectionEnd = static_cast<std::ptrdiff_t>(i) + 1;
    }
    if (sectionEnd < 0) {
        lines.push_back("[" + header + "]");
        lines.push_back(entry);
    } else {
        lines.insert(lines.begin() + sectionEnd, entry);
    }
    return lines;
}

// Whole or not at all: the lines go to a temporary file of this write's own, which then
// replaces the settings file.
void IniFileStore::Write(const std::vector<std::string>& lines) const {
    std::ostringstream out;
    for (const auto& line : lines) out << line << '\n';
    std::error_code ec;
    if (file_.has_parent_path()) std::filesystem::create_directories(file_.parent_path(), ec);
    auto temp = file_;
    temp += ".tmp" + std::to_string(std::random_device{}());
    {
        std::ofstream f(temp, std::ios::binary | std::ios::trunc);
        f << out.str();
        if (!f.flush()) {
            std::filesystem::remove(temp, ec);
            throw support::Error(support::errors::kPermissionDenied,
                                 "Cannot write settings file " + file_.string());
        }
    }
    std::filesystem::rename(temp, file_, ec);
    if (ec) {
        std::filesystem::remove(temp, ec);
        throw support::Error(support::errors::kPermissionDenied,
                             "Cannot write settings file " + file_.string());
    }
}

}  // namespace settings
