#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace host {

// The file system as the add-in sees it: Windows paths ("C:\Work\Frame.iam"),
// names compared without regard to case, as on the host's own file system.
class FileSystem {
public:
    virtual ~FileSystem() = default;
    virtual bool FileExists(const std::string& path) const = 0;
    virtual bool FolderExists(const std::string& path) const = 0;
    virtual bool IsReadOnly(const std::string& path) const = 0;
    virtual void SetReadOnly(const std::string& path, bool readOnly) = 0;
    virtual std::string ReadText(const std::string& path) const = 0;               // throws when missing
    virtual void WriteText(const std::string& path, const std::string& text) = 0;  // whole or nothing
    virtual void CopyFile(const std::string& source, const std::string& destination, bool overwrite) = 0;
    virtual void DeleteFile(const std::string& path) = 0;
    virtual void CreateFolder(const std::string& path) = 0;
    // Files directly in a folder, names only, in a stable order.
    virtual std::vector<std::string> ListFiles(const std::string& folder) const = 0;
};

}  // namespace host
