#include "app/session/ScratchFolder.h"

#include <stdlib.h>

#include <cstdlib>
#include <string>
#include <system_error>

#include "ui/headless/ScriptError.h"

namespace session {

namespace fs = std::filesystem;
using ui::headless::ScriptError;

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    if (!root_.empty()) fs::remove_all(root_, ignored);
}

fs::path ScratchFolder::FreshFolder(char letter) {
    if (root_.empty()) {
        const char* tmp = std::getenv("TMPDIR");
        std::string pattern = std::string(tmp && *tmp ? tmp : "/tmp") + "/tarnwell-XXXXXX";
        if (!mkdtemp(pattern.data())) throw ScriptError("cannot make a scratch folder in " + pattern);
        root_ = pattern;
    }
    fs::path folder = root_ / std::string(1, letter);
    std::error_code ec;
    fs::remove_all(folder, ec);
    if (!ec) fs::create_directory(folder, ec);
    if (ec) throw ScriptError("cannot make the scratch folder " + folder.string() + ": " + ec.message());
    return folder;
}

fs::path ScratchFolder::CopyOf(const fs::path& source, char letter) {
    if (!fs::is_directory(source)) throw ScriptError("there is no folder " + source.string());
    fs::path folder = FreshFolder(letter);
    std::error_code ec;
    fs::copy(source, folder, fs::copy_options::recursive, ec);
    if (ec) throw ScriptError("cannot copy " + source.string() + ": " + ec.message());
    return folder;
}

fs::path ScratchFolder::Empty(char letter) {
    return FreshFolder(letter);
}

}  // namespace session
