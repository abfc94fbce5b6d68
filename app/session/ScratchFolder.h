#pragma once
#include <filesystem>

namespace session {

// Fresh folders for the drives a session maps, so that a run never changes the folders
// it was given and every run starts from the same files. Removed with the session.
class ScratchFolder {
public:
    ScratchFolder() = default;
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    // A fresh copy of the folder `source` for drive `letter`, replacing an earlier one.
    std::filesystem::path CopyOf(const std::filesystem::path& source, char letter);
    // A fresh empty folder for drive `letter`, replacing an earlier one.
    std::filesystem::path Empty(char letter);

private:
    std::filesystem::path FreshFolder(char letter);
    std::filesystem::path root_;  // made on first use
};

}  // namespace session
