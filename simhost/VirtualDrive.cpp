#include "simhost/VirtualDrive.h"

#include <algorithm>

#include "simhost/HostCalls.h"
#include "simhost/WinPath.h"
#include "support/Error.h"
#include "support/Text.h"

namespace fs = std::filesystem;

namespace simhost {

void VirtualDrive::Map(char letter, const fs::path& folder) {
    std::error_code ec;
    if (!fs::is_directory(folder, ec))
        throw support::Error(support::errors::kPathNotFound,
                             "Cannot map drive " + std::string(1, letter) + ": no folder " + folder.string());
    char drive = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
    drives_[drive] = fs::absolute(folder).lexically_normal();
    cache_.clear();
}

const VirtualDrive::Listing* VirtualDrive::ListingOf(const fs::path& hostFolder, bool trustCache) const {
    const std::uint64_t operation = HostCalls::Operation();
    if (auto held = cache_.find(hostFolder.string()); held != cache_.end())
        if (trustCache || (operation != 0 && held->second.checkedIn == operation)) return &held->second;
    std::error_code ec;
    auto stamp = fs::last_write_time(hostFolder, ec);
    if (ec) return nullptr;
    auto [it, inserted] = cache_.try_emplace(hostFolder.string());
    Listing& listing = it->second;
    listing.checkedIn = operation;
    if (!inserted && listing.stamp == stamp) return &listing;
    listing.stamp = stamp;
    listing.byLower.clear();
    for (const auto& entry : fs::directory_iterator(hostFolder, ec)) {
        std::string name = entry.path().filename().string();
        std::error_code typeEc;
        Entry e{name, entry.is_directory(typeEc)};
        // Two names that differ only in case cannot both exist on the host; the
        // smaller one wins so that the choice does not depend on listing order.
        auto [slot, fresh] = listing.byLower.try_emplace(support::LCase(name), e);
        if (!fresh && name < slot->second.name) slot->second = e;
    }
    return &listing;
}

void VirtualDrive::Restamp(const fs::path& hostFolder, Listing& listing) const {
    std::error_code ec;
    auto stamp = fs::last_write_time(hostFolder, ec);
    if (!ec) listing.stamp = stamp;
}

VirtualDrive::Resolved VirtualDrive::Resolve(std::string_view windowsPath) const {
    winpath::Parsed parsed = winpath::Parse(windowsPath);
    auto drive = drives_.find(parsed.drive);
    if (drive == drives_.end())
        throw support::Error(support::errors::kPathNotFound, "Path not found: \"" + std::string(windowsPath) +
                                                                 "\" (drive " + std::string(1, parsed.drive) +
                                                                 ": is not mapped)");
    Resolved out;
    out.hostPath = drive->second;
    std::vector<std::string> stored;
    bool present = true;  // every component so far exists as a folder
    for (std::size_t i = 0; i < parsed.components.size(); ++i) {
        const std::string& part = parsed.components[i];
        bool last = i + 1 == parsed.components.size();
        if (last) out.parentExists = present;
        const Entry* hit = nullptr;
        auto lookUp = [&](bool trustCache) {
            if (const Listing* listing = present ? ListingOf(out.hostPath, trustCache) : nullptr) {
                auto found = listing->byLower.find(support::LCase(part));
                if (found != listing->byLower.end()) hit = &found->second;
            }
        };
        lookUp(!last);
        if (!hit && !last) lookUp(false);
        if (hit) {
            stored.push_back(hit->name);
            out.hostPath /= hit->name;
            if (last) {
                out.exists = true;
                out.isFolder = hit->isFolder;
            } else if (!hit->isFolder) {
                present = false;
            }
        } else {
            stored.push_back(part);
            out.hostPath /= part;
            present = false;
        }
    }
    if (parsed.components.empty()) {
        out.exists = out.isFolder = out.parentExists = true;
    }
    out.windowsPath = winpath::Join(parsed.drive, stored);
    return out;
}

void VirtualDrive::NoteCreated(const fs::path& hostPath, bool isFolder) const {
    auto it = cache_.find(hostPath.parent_path().string());
    if (it == cache_.end()) return;
    std::string name = hostPath.filename().string();
    it->second.byLower[support::LCase(name)] = Entry{name, isFolder};
    Restamp(hostPath.parent_path(), it->second);
}

void VirtualDrive::NoteRemoved(const fs::path& hostPath) const {
    auto it = cache_.find(hostPath.parent_path().string());
    if (it == cache_.end()) return;
    it->second.byLower.erase(support::LCase(hostPath.filename().string()));
    Restamp(hostPath.parent_path(), it->second);
}

std::vector<std::string> VirtualDrive::FileNames(const fs::path& hostFolder) const {
    std::vector<std::string> names;
    if (const Listing* listing = ListingOf(hostFolder))
        for (const auto& [lower, entry] : listing->byLower)
            if (!entry.isFolder) names.push_back(entry.name);
    std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        std::string la = support::LCase(a), lb = support::LCase(b);
        return la != lb ? la < lb : a < b;
    });
    return names;
}

}  // namespace simhost
