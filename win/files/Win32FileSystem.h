#pragma once
#include "host/FileSystem.h"

namespace win::files {

// The add-in's file system on Windows: the disk itself, through the system's wide-character
// functions (Windows XP has every one used here). Failures are the platform's file errors:
// 53 file not found, 76 path not found, 70 permission denied, 58 file already exists.
class Win32FileSystem : public host::FileSystem {
public:
    bool FileExists(const std::string& path) const override;
    bool FolderExists(const std::string& path) const override;
    bool IsReadOnly(const std::string& path) const override;
    void SetReadOnly(const std::string& path, bool readOnly) override;
    std::string ReadText(const std::string& path) const override;
    // Written beside the target and moved over it, so a failed write leaves the old file.
    void WriteText(const std::string& path, const std::string& text) override;
    void CopyFile(const std::string& source, const std::string& destination, bool overwrite) override;
    void DeleteFile(const std::string& path) override;
    void CreateFolder(const std::string& path) override;
    // Names only, sorted without regard to case, as the file system compares them.
    std::vector<std::string> ListFiles(const std::string& folder) const override;
};

}  // namespace win::files
