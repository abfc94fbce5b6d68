#pragma once
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace simhost {

// Windows drive letters mapped to folders on disk. Look-up is case-insensitive and
// case-preserving per path component, as on the host's own file system. Directory
// listings are cached and re-read only when a folder's modification time moves, and our
// own changes update the cache in place, so that thousands of look-ups in one folder
// cost one listing.
class VirtualDrive {
public:
    void Map(char letter, const std::filesystem::path& folder);

    struct Resolved {
        std::filesystem::path hostPath;  // where the name lives (or would live) on disk
        std::string windowsPath;         // existing components in their stored case
        bool exists = false;
        bool isFolder = false;
        bool parentExists = false;  // the folder that would hold it exists
    };
    // Throws a path-not-found error for a malformed path or an unmapped drive.
    Resolved Resolve(std::string_view windowsPath) const;

    // Our own changes, so that the cache follows without a re-listing.
    void NoteCreated(const std::filesystem::path& hostPath, bool isFolder) const;
    void NoteRemoved(const std::filesystem::path& hostPath) const;

    // Names of the regular files in a folder, ordered without regard to case.
    std::vector<std::string> FileNames(const std::filesystem::path& hostFolder) const;

private:
    struct Entry {
        std::string name;
        bool isFolder = false;
    };
    struct Listing {
        std::filesystem::file_time_type stamp;
        std::uint64_t checkedIn = 0;  // the host operation that last compared the stamp
        std::unordered_map<std::string, Entry> byLower;
    };
    // The folder's listing, read again when the folder changed on disk. A listing checked
    // in the host operation under way is not checked again. With trustCache a listing
    // already held is used without asking the disk: the walk down a path checks only the
    // folder that holds the last name, and re-checks the others on a miss.
    const Listing* ListingOf(const std::filesystem::path& hostFolder, bool trustCache = false) const;
    void Restamp(const std::filesystem::path& hostFolder, Listing& listing) const;

    std::map<char, std::filesystem::path> drives_;
    mutable std::unordered_map<std::string, Listing> cache_;  // by host folder path
};

}  // namespace simhost
