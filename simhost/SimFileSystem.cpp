#include "simhost/SimFileSystem.h"

#include <fstream>
#include <iterator>
#include <sstream>

#include "simhost/HostCalls.h"
#include "simhost/SimHost.h"
#include "simhost/WinPath.h"
#include "support/Error.h"
#include "support/Text.h"

namespace fs = std::filesystem;
using support::Error;
namespace errors = support::errors;

namespace simhost {

namespace {

constexpr fs::perms kWriteBits = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;

bool HostReadOnly(const fs::path& p) {
    std::error_code ec;
    auto status = fs::status(p, ec);
    return !ec && (status.permissions() & fs::perms::owner_write) == fs::perms::none;
}

std::string ReadBytes(const fs::path& p, const std::string& windowsPath) {
    std::ifstream in(p, std::ios::binary);
    if (!in) throw Error(errors::kPermissionDenied, "Permission denied: " + windowsPath);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

}  // namespace

void SimFileSystem::FailSaveOf(std::string_view path) {
    failSaveOf_.insert(support::LCase(Canonical(path)));
}

void SimFileSystem::RefuseWritesIn(std::string_view folder) {
    std::string name = support::LCase(Canonical(folder));
    if (name.empty() || name.back() != '\\') name += '\\';
    refusedFolders_.insert(name);
}

VirtualDrive::Resolved SimFileSystem::ExistingFile(std::string_view path) const {
    auto r = drive_.Resolve(path);
    if (!r.exists || r.isFolder) throw Error(errors::kFileNotFound, "File not found: " + r.windowsPath);
    return r;
}

void SimFileSystem::FailWriteAfter(int writesLeft, bool refused) {
    writesBeforeFault_ = writesLeft;
    faultRefuses_ = refused;
    writeFaultFired_ = false;
}

void SimFileSystem::CheckWriteAllowed(const VirtualDrive::Resolved& target) const {
    if (writesBeforeFault_ >= 0 && writesBeforeFault_-- == 0) {
        writeFaultFired_ = true;
        if (faultRefuses_)
            throw Error(errors::kPermissionDenied,
                        "Permission denied: " + target.windowsPath + " (the disk refused)");
        throw Error(errors::kFail, "Cannot save " + target.windowsPath);
    }
    if (refuseWrites_)
        throw Error(errors::kPermissionDenied,
                    "Permission denied: " + target.windowsPath + " (the disk refuses writes)");
    if (failSaveOf_.count(support::LCase(target.windowsPath)))
        throw Error(errors::kFail, "Cannot save " + target.windowsPath);
    std::string folder = support::LCase(target.windowsPath.substr(0, target.windowsPath.rfind('\\') + 1));
    if (refusedFolders_.count(folder))
        throw Error(errors::kPermissionDenied, "Permission denied: " + target.windowsPath);
    if (!target.parentExists) throw Error(errors::kPathNotFound, "Path not found: " + target.windowsPath);
    if (target.isFolder)
        throw Error(errors::kPermissionDenied, "Permission denied: " + target.windowsPath + " is a folder");
    if (target.exists && HostReadOnly(target.hostPath))
        throw Error(errors::kPermissionDenied, "Permission denied: " + target.windowsPath + " is read-only");
}

void SimFileSystem::WriteWhole(const VirtualDrive::Resolved& target, std::string_view content,
                               bool readOnly) {
    fs::path temp =
        target.hostPath.parent_path() / ("." + target.hostPath.filename().string() + ".tarnwell-tmp");
    {
        std::ofstream out(temp, std::ios::binary | std::ios::trunc);
        out.write(content.data(), static_cast<std::streamsize>(content.size()));
        out.close();
        if (!out) {
            std::error_code ec;
            fs::remove(temp, ec);
            throw Error(errors::kPermissionDenied, "Cannot write " + target.windowsPath);
        }
    }
    if (readOnly) fs::permissions(temp, kWriteBits, fs::perm_options::remove);
    std::error_code ec;
    fs::rename(temp, target.hostPath, ec);
    if (ec) {
        fs::remove(temp, ec);
        throw Error(errors::kPermissionDenied, "Cannot write " + target.windowsPath);
    }
    drive_.NoteCreated(target.hostPath, false);
}

bool SimFileSystem::FileExists(const std::string& path) const {
    SIM_HOST_CALL("FileSystem.FileExists");
    auto r = drive_.Resolve(path);
    return r.exists && !r.isFolder;
}

bool SimFileSystem::FolderExists(const std::string& path) const {
    SIM_HOST_CALL("FileSystem.FolderExists");
    auto r = drive_.Resolve(path);
    return r.exists && r.isFolder;
}

bool SimFileSystem::IsReadOnly(const std::string& path) const {
    SIM_HOST_CALL("FileSystem.IsReadOnly");
    return HostReadOnly(ExistingFile(path).hostPath);
}

void SimFileSystem::SetReadOnly(const std::string& path, bool readOnly) {
    SIM_HOST_CALL("FileSystem.SetReadOnly");
    auto r = ExistingFile(path);
    if (refuseWrites_)
        throw Error(errors::kPermissionDenied,
                    "Permission denied: " + r.windowsPath + " (the disk refuses writes)");
    fs::permissions(r.hostPath, readOnly ? kWriteBits : fs::perms::owner_write,
                    readOnly ? fs::perm_options::remove : fs::perm_options::add);
}

std::string SimFileSystem::ReadText(const std::string& path) const {
    SIM_HOST_CALL("FileSystem.ReadText");
    auto r = ExistingFile(path);
    return ReadBytes(r.hostPath, r.windowsPath);
}

void SimFileSystem::WriteText(const std::string& path, const std::string& text) {
    SIM_HOST_CALL("FileSystem.WriteText");
    auto target = drive_.Resolve(path);
    CheckWriteAllowed(target);
    WriteWhole(target, text, false);
    if (observer_) observer_->FileWritten(target.windowsPath);
}

// Copies keep the read-only attribute, as the host's own file copy does.
void SimFileSystem::CopyFile(const std::string& source, const std::string& destination, bool overwrite) {
    SIM_HOST_CALL("FileSystem.CopyFile");
    auto from = ExistingFile(source);
    auto to = drive_.Resolve(destination);
    if (to.exists && !to.isFolder && !overwrite)
        throw Error(errors::kFileAlreadyExists, "File already exists: " + to.windowsPath);
    CheckWriteAllowed(to);
    WriteWhole(to, ReadBytes(from.hostPath, from.windowsPath), HostReadOnly(from.hostPath));
    if (observer_) observer_->FileCopied(from.windowsPath, to.windowsPath);
}

void SimFileSystem::DeleteFile(const std::string& path) {
    SIM_HOST_CALL("FileSystem.DeleteFile");
    auto r = ExistingFile(path);
    if (refuseWrites_)
        throw Error(errors::kPermissionDenied,
                    "Permission denied: " + r.windowsPath + " (the disk refuses writes)");
    if (HostReadOnly(r.hostPath))
        throw Error(errors::kPermissionDenied, "Permission denied: " + r.windowsPath + " is read-only");
    std::error_code ec;
    fs::remove(r.hostPath, ec);
    if (ec) throw Error(errors::kPermissionDenied, "Permission denied: " + r.windowsPath);
    drive_.NoteRemoved(r.hostPath);
    if (observer_) observer_->FileDeleted(r.windowsPath);
}

void SimFileSystem::CreateFolder(const std::string& path) {
    SIM_HOST_CALL("FileSystem.CreateFolder");
    auto r = drive_.Resolve(path);
    if (r.exists) throw Error(errors::kFileAlreadyExists, "File already exists: " + r.windowsPath);
    if (!r.parentExists) throw Error(errors::kPathNotFound, "Path not found: " + r.windowsPath);
    if (refuseWrites_)
        throw Error(errors::kPermissionDenied,
                    "Permission denied: " + r.windowsPath + " (the disk refuses writes)");
    std::error_code ec;
    fs::create_directory(r.hostPath, ec);
    if (ec) throw Error(errors::kPermissionDenied, "Permission denied: " + r.windowsPath);
    drive_.NoteCreated(r.hostPath, true);
}

std::vector<std::string> SimFileSystem::ListFiles(const std::string& folder) const {
    SIM_HOST_CALL("FileSystem.ListFiles");
    auto r = drive_.Resolve(folder);
    if (!r.exists || !r.isFolder) throw Error(errors::kPathNotFound, "Path not found: " + r.windowsPath);
    return drive_.FileNames(r.hostPath);
}

}  // namespace simhost
