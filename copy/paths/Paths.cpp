#include "copy/paths/Paths.h"

#include "host/Application.h"
#include "host/FileSystem.h"
#include "support/Text.h"

namespace paths {

SplitPathResult SplitPath(const std::string& fullFileName) {
    auto last = fullFileName.rfind('\\');
    if (last == std::string::npos) return {"", fullFileName};
    return {fullFileName.substr(0, last + 1), fullFileName.substr(last + 1)};
}

std::string WithTrailingBackslash(std::string folder) {
    if (support::Right(folder, 1) != "\\") folder += "\\";
    return folder;
}

bool FileFound(host::FileSystem& fileSystem, const std::string& fullFileName) {
    try {
        return fileSystem.FileExists(fullFileName);
    } catch (const support::Error&) {
        return false;
    }
}

std::string BrowseForFolder(host::Application& hostApplication, ui::Platform& platform,
                            const std::string& prompt, const std::string& startFolder) {
    std::intptr_t owner = 0;
    if (auto view = hostApplication.ActiveView()) owner = view->HWND();
    std::string chosen = platform.BrowseForFolder(owner, prompt, startFolder);
    // The shell hands back a fixed buffer; whatever follows the first NUL is not the path.
    if (auto nul = chosen.find('\0'); nul != std::string::npos) chosen.resize(nul);
    return chosen;
}

std::string SaveFilePrompt(ui::Platform& platform, const std::string& currentFullFileName,
                           const std::string& fileType, const std::string& fallbackFolder) {
    ui::FileDialogRequest request;
    request.title = "Save Inventor File";
    if (fileType == "ipt")
        request.filter = "Inventor Part Files (*.ipt)|*.ipt";
    else if (fileType == "iam")
        request.filter = "Inventor Assembly Files (*.iam)|*.iam";
    request.filterIndex = 1;
    if (currentFullFileName.empty()) {
        request.initialDir = fallbackFolder;
    } else {
        auto parts = SplitPath(currentFullFileName);
        request.initialDir = parts.directory;
        request.fileName = parts.fileName;
    }
    return platform.SaveFilePrompt(request);
}

std::string OpenFilePrompt(ui::Platform& platform, const std::string& filter, const std::string& startFolder,
                           const std::string& fileName) {
    ui::FileDialogRequest request;
    request.title = "Open Template Part File";
    request.filter = filter;
    request.filterIndex = 1;
    request.initialDir = startFolder;
    request.fileName = fileName;
    return platform.OpenFilePrompt(request);
}

}  // namespace paths
