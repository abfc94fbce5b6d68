#include "app/session/ScratchFolder.h"

#include <random>
#include <string>
#include <system_error>

#include "ui/headless/ScriptError.h"

namespace session {

namespace fs = std::filesystem;
using ui::headless::ScriptError;

namespace {

// A new folder of our own in the system's temporary folder: creating it fails when the name
// is taken, so a name another run holds is never shared.
fs::path MakeRoot() {
    std::error_code ec;
    fs::path temp = fs::temp_directory_path(ec);
    if (ec) throw ScriptError("there is no temporary folder: " + ec.message());
    std::random_device random;
    for (int attempt = 0; attempt < 100; ++attempt) {
        fs::path root = temp / ("tarnwell-" + std::to_string(random() % 1000000000u));
        if (fs::create_directory(root, ec)) return root;
        if (ec) break;
    }
    throw ScriptError("cannot make a scratch folder in " + temp.string());
}

}  // namespace

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    if (!root_.empty()) fs::remove_all(root_, ignored);
}

fs::path ScratchFolder::FreshFolder(char letter) {
    if (root_.empty()) root_ = MakeRoot();
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
