#pragma once
#include <string>

namespace addin {
class AddinState;
}

// The Help menu: the update check through the separate updater, and the About box.
namespace dialogs::update_check {

// The updater is a program of its own, registered in the application paths.
inline constexpr const char* kUpdaterExe = "Pellorin.exe";
// The add-in server's class identifier, as registered with the host.
inline constexpr const char* kAddInClassId = "{6C4B1F52-8E3A-4D8B-9F27-3A1D5E0C7B94}";
// Where the updater reads the latest version number, one line of text.
inline constexpr const char* kVersionUrl = "https://updates.tarnwell.example/inventor/version.txt";
inline constexpr const char* kUpdaterMissing =
    "The updater Pellorin is not installed on this computer, so Tarnwell cannot check for a newer version.";

// The installed version as major.minor.revision.
std::string Version();

// The command line that starts the updater found at updaterPath.
std::string UpdaterCommandLine(const std::string& updaterPath);

// Finds the updater and starts it; a missing updater is reported and nothing starts.
void CheckForUpdate(addin::AddinState& state);

// The About box: the add-in's name and version.
void ShowAbout(addin::AddinState& state);

}  // namespace dialogs::update_check
