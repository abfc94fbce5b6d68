#pragma once
#include <string>

#include "ui/Platform.h"

namespace host {
class Application;
class FileSystem;
}  // namespace host

// The path splitter, the folder picker and the two file prompts that most dialogs share.
namespace paths {

struct SplitPathResult {
    std::string directory;  // everything up to and including the last "\"; "" when there is none
    std::string fileName;   // the text after the last "\"
};

SplitPathResult SplitPath(const std::string& fullFileName);

// The folder with a "\" at its end, added when it has none.
std::string WithTrailingBackslash(std::string folder);

// Whether a look-up of the name finds a file. A name the disk cannot resolve (empty, no
// drive, a drive that is not there) finds none: the copy tools then go on to write it,
// and the write reports the failure with the host's own message.
bool FileFound(host::FileSystem& fileSystem, const std::string& fullFileName);

// The shell's folder picker, owned by the host's active view; "" when cancelled.
std::string BrowseForFolder(host::Application& hostApplication, ui::Platform& platform,
                            const std::string& prompt, const std::string& startFolder);

// The host's save dialog titled "Save Inventor File": the filter follows the last three
// letters of the current name, compared exactly ("ipt", "iam"; anything else, no filter);
// it starts in the current name's folder with its file name filled in, or in
// fallbackFolder when there is no current name. "" when cancelled.
std::string SaveFilePrompt(ui::Platform& platform, const std::string& currentFullFileName,
                           const std::string& fileType, const std::string& fallbackFolder = "");

// The host's open dialog. It is titled "Open Template Part File" whatever is being
// opened (a drawing, a template): the add-in always showed that title, and users and
// their scripts know the prompt by it, so no caller can change it.
std::string OpenFilePrompt(ui::Platform& platform, const std::string& filter, const std::string& startFolder,
                           const std::string& fileName);

}  // namespace paths
