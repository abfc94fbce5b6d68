#include "simhost/WinPath.h"

#include <algorithm>
#include <cctype>

#include "support/Error.h"
#include "support/Text.h"

namespace simhost::winpath {

bool EqualNoCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        char x = a[i], y = b[i];
        if (x >= 'A' && x <= 'Z') x = static_cast<char>(x - 'A' + 'a');
        if (y >= 'A' && y <= 'Z') y = static_cast<char>(y - 'A' + 'a');
        if (x != y) return false;
    }
    return true;
}

Parsed Parse(std::string_view path) {
    auto notAPath = [&]() {
        return support::Error(support::errors::kPathNotFound,
                              "Path not found: \"" + std::string(path) + "\"");
    };
    if (path.size() < 3 || !std::isalpha(static_cast<unsigned char>(path[0])) || path[1] != ':' ||
        (path[2] != '\\' && path[2] != '/'))
        throw notAPath();
    Parsed out;
    out.drive = static_cast<char>(std::toupper(static_cast<unsigned char>(path[0])));
    std::size_t start = 3;
    while (start <= path.size()) {
        std::size_t end = path.find_first_of("\\/", start);
        if (end == std::string_view::npos) end = path.size();
        std::string_view part = path.substr(start, end - start);
        if (part == "..") {
            if (out.components.empty()) throw notAPath();
            out.components.pop_back();
        } else if (!part.empty() && part != ".") {
            // The host's file system takes none of these in a name, nor a control character;
            // a NUL would even cut the name short on the disk below and write another file.
            bool refused = std::any_of(part.begin(), part.end(), [](char c) {
                return static_cast<unsigned char>(c) < 32 ||
                       std::string_view("<>:\"|?*").find(c) != std::string_view::npos;
            });
            if (refused) throw notAPath();
            out.components.emplace_back(part);
        }
        start = end + 1;
    }
    return out;
}

std::string Join(char drive, const std::vector<std::string>& components) {
    std::string out{drive, ':'};
    if (components.empty()) return out + "\\";
    for (const auto& c : components) out += "\\" + c;
    return out;
}

std::string FileNamePart(std::string_view path) {
    std::size_t slash = path.rfind('\\');
    return std::string(slash == std::string_view::npos ? path : path.substr(slash + 1));
}

std::string FolderPart(std::string_view path) {
    std::size_t slash = path.rfind('\\');
    return slash == std::string_view::npos ? std::string() : std::string(path.substr(0, slash + 1));
}

std::string Extension(std::string_view path) {
    std::string name = FileNamePart(path);
    std::size_t dot = name.rfind('.');
    return dot == std::string::npos ? std::string() : support::LCase(name.substr(dot));
}

std::string BaseName(std::string_view path) {
    std::string name = FileNamePart(path);
    std::size_t dot = name.rfind('.');
    return dot == std::string::npos ? name : name.substr(0, dot);
}

}  // namespace simhost::winpath
