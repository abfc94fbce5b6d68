#pragma once
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "host/FileSystem.h"
#include "simhost/VirtualDrive.h"

namespace simhost {

class Observer;

// host::FileSystem over the virtual drive. Every write goes through one gate that applies
// the injected faults, refuses read-only targets and reports to the observer; writes
// land in a temporary file that is renamed over the target, so a file is either whole or
// untouched. The host's own document saves use the same gate.
class SimFileSystem : public host::FileSystem {
public:
    VirtualDrive& Drive() { return drive_; }
    void SetObserver(Observer* observer) { observer_ = observer; }

    // Faults.
    void FailSaveOf(std::string_view path);  // writes and copies to this file fail
    void RefuseWrites(bool refuse) { refuseWrites_ = refuse; }
    void RefuseWritesIn(std::string_view folder);  // a folder the user may not write to
    // The write after the next `writesLeft` ones fails, as a failing save (kFail) or a disk
    // that refuses it (permission denied); then writes go through again. Returns whether
    // the fault has fired since it was armed.
    void FailWriteAfter(int writesLeft, bool refused);
    bool WriteFaultFired() const { return writeFaultFired_; }

    // The path with its existing components in their stored case.
    std::string Canonical(std::string_view path) const { return drive_.Resolve(path).windowsPath; }

    bool FileExists(const std::string& path) const override;
    bool FolderExists(const std::string& path) const override;
    bool IsReadOnly(const std::string& path) const override;
    void SetReadOnly(const std::string& path, bool readOnly) override;
    std::string ReadText(const std::string& path) const override;
    void WriteText(const std::string& path, const std::string& text) override;
    void CopyFile(const std::string& source, const std::string& destination, bool overwrite) override;
    void DeleteFile(const std::string& path) override;
    void CreateFolder(const std::string& path) override;
    std::vector<std::string> ListFiles(const std::string& folder) const override;

private:
    VirtualDrive::Resolved ExistingFile(std::string_view path) const;
    void CheckWriteAllowed(const VirtualDrive::Resolved& target) const;
    void WriteWhole(const VirtualDrive::Resolved& target, std::string_view content, bool readOnly);

    VirtualDrive drive_;
    Observer* observer_ = nullptr;
    bool refuseWrites_ = false;
    mutable int writesBeforeFault_ = -1;  // -1: no fault armed
    bool faultRefuses_ = false;
    mutable bool writeFaultFired_ = false;
    std::unordered_set<std::string> failSaveOf_;      // lower-case canonical names
    std::unordered_set<std::string> refusedFolders_;  // lower-case canonical names, "\" at the end
};

}  // namespace simhost
