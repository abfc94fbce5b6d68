#pragma once
#include <string>

namespace host {
class Application;
class FileSystem;
}  // namespace host
namespace ui {
class Platform;
}

namespace copy {

// Where a walk reports its progress: the driving dialog's status line. The sink yields
// to the message loop after each line, so the dialog repaints while the walk runs.
class Progress {
public:
    virtual ~Progress() = default;
    virtual void ShowStatus(const std::string& line) = 0;
};

// What the copy walks need of their surroundings. They know no dialog: the caller hands
// in the host, the disk, the desktop (for the one question a pack may ask) and a sink.
struct WalkContext {
    host::Application& app;
    host::FileSystem& fileSystem;
    ui::Platform& platform;
    Progress& progress;
};

}  // namespace copy
