#include "purge/frmPurge.h"

#include <algorithm>

#include "host/Application.h"
#include "host/Document.h"
#include "host/FileSystem.h"
#include "support/Error.h"
#include "support/Text.h"

namespace purge {

namespace {

constexpr const char* kLogTitle = "Log File to Save";
constexpr const char* kLogFilter = "Log Files (*.txt)|*.txt|Excel Tab Delimited(*.csv)|*.csv";
constexpr const char* kNoPermission = "You do not have permission to save to the folder.";

}  // namespace

frmPurge::frmPurge(addin::AddinState& state)
    : ui::Form(state.platform, "frmPurge", "Purge Results"), state_(state) {
    TW_ON(cmdStart, Click);
    TW_ON(cmdStop, Click);
    TW_ON(cmdDone, Click);
    TW_ON(cmdSaveLog, Click);
}

// Where each control sits on the dialog, in twips.
constexpr ui::Placement kLayout[] = {
    {"lstResults", 120, 120, 7200, 3600},  {"chkWrite", 120, 3840, 2400, 255},
    {"cmdStart", 120, 4200, 1200, 375},    {"cmdStop", 1440, 4200, 1200, 375},
    {"cmdSaveLog", 2760, 4200, 1200, 375}, {"cmdDone", 6120, 4200, 1200, 375},
};

void frmPurge::Build() {
    Add("lstResults", ui::ControlKind::ListBox);
    Add("chkWrite", ui::ControlKind::CheckBox, "Reset Read Only");
    Add("cmdStart", ui::ControlKind::Button, "Start");
    Add("cmdStop", ui::ControlKind::Button, "Stop").Enabled = false;
    Add("cmdSaveLog", ui::ControlKind::Button, "Save Log");
    Add("cmdDone", ui::ControlKind::Button, "Close");
    Arrange(7600, 5160, {kLayout});
}

// Once the walk has ended, by itself or by Stop, "Start" is back and "Stop" rests
// disabled, so that the purge can be run again with the other choice of the check box.
void frmPurge::cmdStart_Click() {
    stop_ = false;
    (*this)["lstResults"].Clear();
    auto& stop = (*this)["cmdStop"];
    stop.Enabled = true;
    stop.Visible = true;
    (*this)["cmdStart"].Visible = false;

    PurgeWalk walk({state_.App(), state_.fileSystem, *this, (*this)["chkWrite"].Value() == 1});
    walk.PurgeTree(state_.App().ActiveDocument());

    if (!Loaded()) return;  // closed while the walk yielded
    (*this)["cmdStart"].Visible = true;
    stop.Enabled = false;
    stop.Visible = true;
}

void frmPurge::cmdStop_Click() {
    stop_ = true;
    (*this)["cmdStart"].Visible = true;
    (*this)["cmdStop"].Visible = false;
}

// Closing also stops a walk that is still running.
void frmPurge::cmdDone_Click() {
    stop_ = true;
    Unload();
}

void frmPurge::AddLine(const std::string& line) {
    (*this)["lstResults"].AddItem(line);
}

void frmPurge::Yield() {
    state_.platform.DoEvents();
}

void frmPurge::cmdSaveLog_Click() {
    auto& app = state_.App();
    ui::FileDialogRequest request;
    request.title = kLogTitle;
    request.filter = kLogFilter;
    request.filterIndex = 1;
    request.initialDir = app.FileLocations()->Workspace();
    if (auto active = app.ActiveDocument()) {
        std::string name = active->FullFileName();
        request.fileName = support::Left(name, std::max<long>(0, static_cast<long>(name.size()) - 3)) + "csv";
    }
    std::string chosen = state_.platform.SaveFilePrompt(request);
    if (chosen.empty()) return;
    try {
        WriteLog(chosen);
    } catch (const support::Error& e) {
        if (e.Number() != support::errors::kPermissionDenied) throw;
        state_.platform.MsgBox(std::string(kNoPermission) + "\r\n" + chosen + " was not saved.", ui::vbOKOnly,
                               "File Error");
    }
}

void frmPurge::WriteLog(const std::string& fullFileName) {
    auto& files = state_.fileSystem;
    if (files.FileExists(fullFileName)) files.DeleteFile(fullFileName);
    std::string text;
    for (const auto& line : (*this)["lstResults"].Items) text += line + "\r\n";
    files.WriteText(fullFileName, text);
}

}  // namespace purge
