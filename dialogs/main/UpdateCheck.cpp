#include "dialogs/main/UpdateCheck.h"

#include "addin/shared/AddinState.h"

namespace dialogs::update_check {

std::string Version() {
    return TARNWELL_VERSION;
}

std::string UpdaterCommandLine(const std::string& updaterPath) {
    // Quoted: the registered path usually lies under "Program Files".
    return "\"" + updaterPath + "\" /CLSID=" + kAddInClassId + " /URL=" + kVersionUrl + " /VER=" + Version();
}

void CheckForUpdate(addin::AddinState& state) {
    std::string updater = state.platform.ApplicationPath(kUpdaterExe);
    if (updater.empty()) {
        state.platform.MsgBox(kUpdaterMissing);
        return;
    }
    state.platform.Shell(UpdaterCommandLine(updater), 1);
}

void ShowAbout(addin::AddinState& state) {
    state.platform.MsgBox(
        "Tarnwell " + Version() + "\rTools for Autodesk Inventor assemblies, parts and drawings",
        ui::vbOKOnly, "About Tarnwell");
}

}  // namespace dialogs::update_check
