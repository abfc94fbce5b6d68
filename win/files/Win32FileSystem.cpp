#include "win/files/Win32FileSystem.h"

// clang-format off
#include <windows.h>
// clang-format on
#undef CopyFile
#undef DeleteFile

#include <algorithm>

#include "support/Error.h"
#include "support/Text.h"
#include "support/Utf16.h"

namespace win::files {

namespace {

namespace errors = support::errors;
constexpr std::int32_t kFileAccessError = 75;

// The last Win32 failure as the platform reports a file error.
[[noreturn]] void Fail(const std::string& path) {
    switch (GetLastError()) {
        case ERROR_FILE_NOT_FOUND:
            throw support::Error(errors::kFileNotFound, "File not found: " + path);
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_NAME:
            throw support::Error(errors::kPathNotFound, "Path not found: " + path);
        case ERROR_FILE_EXISTS:
        case ERROR_ALREADY_EXISTS:
            throw support::Error(errors::kFileAlreadyExists, "File already exists: " + path);
        case ERROR_ACCESS_DENIED:
        case ERROR_SHARING_VIOLATION:
        case ERROR_WRITE_PROTECT:
            throw support::Error(errors::kPermissionDenied, "Permission denied: " + path);
        default:
            throw support::Error(kFileAccessError, "Path/File access error: " + path);
    }
}

std::wstring Wide(const std::string& path) {
    return support::Utf8ToUtf16(path);
}

DWORD Attributes(const std::string& path) {
    return GetFileAttributesW(Wide(path).c_str());
}

// A file handle that closes itself.
class File {
public:
    explicit File(HANDLE handle) : handle_(handle) {}
    ~File() {
        if (handle_ != INVALID_HANDLE_VALUE) CloseHandle(handle_);
    }
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    HANDLE Get() const { return handle_; }
    bool Open() const { return handle_ != INVALID_HANDLE_VALUE; }

private:
    HANDLE handle_;
};

}  // namespace

bool Win32FileSystem::FileExists(const std::string& path) const {
    DWORD attributes = Attributes(path);
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

bool Win32FileSystem::FolderExists(const std::string& path) const {
    DWORD attributes = Attributes(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

bool Win32FileSystem::IsReadOnly(const std::string& path) const {
    DWORD attributes = Attributes(path);
    if (attributes == INVALID_FILE_ATTRIBUTES) Fail(path);
    return attributes & FILE_ATTRIBUTE_READONLY;
}

void Win32FileSystem::SetReadOnly(const std::string& path, bool readOnly) {
    DWORD attributes = Attributes(path);
    if (attributes == INVALID_FILE_ATTRIBUTES) Fail(path);
    attributes = readOnly ? attributes | FILE_ATTRIBUTE_READONLY : attributes & ~FILE_ATTRIBUTE_READONLY;
    if (!SetFileAttributesW(Wide(path).c_str(), attributes)) Fail(path);
}

std::string Win32FileSystem::ReadText(const std::string& path) const {
    File file(CreateFileW(Wide(path).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                          FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.Open()) Fail(path);
    std::string text;
    char buffer[16384];
    DWORD read = 0;
    while (ReadFile(file.Get(), buffer, sizeof buffer, &read, nullptr) && read > 0) text.append(buffer, read);
    return text;
}

void Win32FileSystem::WriteText(const std::string& path, const std::string& text) {
    if (FolderExists(path)) throw support::Error(errors::kPermissionDenied, "Permission denied: " + path);
    if (FileExists(path) && IsReadOnly(path))
        throw support::Error(errors::kPermissionDenied, "Permission denied: " + path);
    const std::string partial = path + ".tarnwell-partial";
    {
        File file(CreateFileW(Wide(partial).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                              FILE_ATTRIBUTE_NORMAL, nullptr));
        if (!file.Open()) Fail(path);
        DWORD written = 0;
        if (!WriteFile(file.Get(), text.data(), static_cast<DWORD>(text.size()), &written, nullptr) ||
            written != text.size()) {
            DWORD error = GetLastError();
            CloseHandle(file.Get());
            DeleteFileW(Wide(partial).c_str());
            SetLastError(error);
            Fail(path);
        }
    }
    if (!MoveFileExW(Wide(partial).c_str(), Wide(path).c_str(), MOVEFILE_REPLACE_EXISTING)) {
        DWORD error = GetLastError();
        DeleteFileW(Wide(partial).c_str());
        SetLastError(error);
        Fail(path);
    }
}

void Win32FileSystem::CopyFile(const std::string& source, const std::string& destination, bool overwrite) {
    if (!FileExists(source)) throw support::Error(errors::kFileNotFound, "File not found: " + source);
    if (!CopyFileW(Wide(source).c_str(), Wide(destination).c_str(), !overwrite)) Fail(destination);
}

void Win32FileSystem::DeleteFile(const std::string& path) {
    if (!DeleteFileW(Wide(path).c_str())) Fail(path);
}

void Win32FileSystem::CreateFolder(const std::string& path) {
    if (!CreateDirectoryW(Wide(path).c_str(), nullptr)) Fail(path);
}

std::vector<std::string> Win32FileSystem::ListFiles(const std::string& folder) const {
    if (!FolderExists(folder)) throw support::Error(errors::kPathNotFound, "Path not found: " + folder);
    std::wstring pattern = Wide(folder);
    if (!pattern.empty() && pattern.back() != L'\\') pattern += L'\\';
    pattern += L'*';
    std::vector<std::string> names;
    WIN32_FIND_DATAW found;
    HANDLE search = FindFirstFileW(pattern.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    do {
        if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
            names.push_back(support::Utf16ToUtf8(found.cFileName));
    } while (FindNextFileW(search, &found));
    FindClose(search);
    std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        return support::LCase(a) < support::LCase(b);
    });
    return names;
}

}  // namespace win::files
