#pragma once
#include <string>

#include "ui/Platform.h"

namespace host {
class Application;
class FileSystem;
}  // namespace host

// The path splitter, the folder picker and the two file prompts that most dialogs share.
namespace copy {

struct SplitPathResult {
    std::string directory;  // everything up to and including the last "\"; "" when there is none
    std::string fileName;   // the text after the last "\"
};

SplitPathResult SplitPath(const std::string& fullFileName);

// Whether a file of that name exists. A name that is no full path (empty, no drive)
// names no file here: whatever then tries to write it reports the failure.
bool FileExists(host::FileSystem& fileSystem, const std::string& fullFileName);

// The shell's folder picker, owned by the host's active view; "" when cancelled.
std::string BrowseForFolder(host::Application& hostApplication, ui::Platform& platform,
                            const std::string& prompt, const std::string& startFolder);

// The host's save dialog titled "Save Inventor File": the filter follows the last three
// letters of the current name, compared exactly ("ipt", "iam"; anything else, no filter);
// it starts in the current name's folder with its file name filled in, or in
// fallbackFolder when there is no current name. "" when cancelled.
std::string SaveFilePrompt(ui::Platform& platform, const std::string& currentFullFileName,
                           const std::string& fileType, const std::string& fallbackFolder = "");

// The host's open dialog. Whatever title the caller asks for, the dialog shows
// "Open Template Part File": callers rely on that title, so it stays.
std::string OpenFilePrompt(ui::Platform& platform, const std::string& filter, const std::string& startFolder,
                           const std::string& fileName, const std::string& requestedTitle = "");

}  // namespace copy
