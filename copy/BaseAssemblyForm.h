#pragma once
#include <string>

#include "addin/shared/AddinState.h"
#include "addin/shared/clsSelect.h"
#include "copy/engine/WalkContext.h"
#include "ui/Form.h"

namespace copy {

// What the clone and Pack-N-Link dialogs share: the base assembly is either the top
// document ("Top") or an assembly picked in the model ("Select Assembly"), the target
// is a folder chosen with the folder picker, and a walk reports progress in Status.
class BaseAssemblyForm : public ui::Form, public Progress {
public:
    // Writes a progress line into Status and yields, so the dialog repaints while a
    // walk runs: the dialog is the walk's progress sink.
    void ShowStatus(const std::string& text) override;

protected:
    BaseAssemblyForm(addin::AddinState& state, std::string name, std::string caption);

    // The shared frames sit at the top of the dialog, as wide as it is (kSharedWidth).
    static constexpr int kSharedWidth = 7000;
    static constexpr ui::Placement kBaseAssemblyLayout[] = {
        {"fraBaseAssembly", 120, 120, 6600, 1080},    {"chkTop", 240, 390, 840, 255},
        {"cmdSelect", 4920, 330, 1680, 375},          {"txtBaseAssembly", 240, 780, 6360, 315},
        {"fraTargetDirectory", 120, 1320, 6600, 720}, {"txtTargetDir", 240, 1590, 5640, 315},
        {"cmdBrowse", 6000, 1560, 600, 375}};

    // Declare the shared controls from Build(), in the dialog's layout order.
    void AddBaseAssemblyControls();                              // chkTop, txtBaseAssembly, cmdSelect
    void AddTargetControls();                                    // txtTargetDir, cmdBrowse
    void AddCommandControls(const std::string& executeCaption);  // cmdClone, cmdDone, Status

    // Picks an assembly occurrence in the model and makes it the selected occurrence.
    // While a pick already waits, asking again keeps that one waiting.
    void SelectAssembly();
    void StopPick();
    void ShowBaseAssembly(const std::string& fullFileName);
    bool TopChecked() { return (*this)["chkTop"].Value() == 1; }
    // The first check of Execute: the walk needs a picked assembly or "Top" with an
    // active document. Shows the message and answers false when it has neither.
    bool CheckBaseAssembly();
    // What the walks need, with this dialog as their progress sink.
    WalkContext Context() { return {state_.App(), state_.fileSystem, state_.platform, *this}; }

    addin::AddinState& state_;

private:
    void cmdSelect_Click();
    void chkTop_Click();
    void cmdBrowse_Click();
    void cmdDone_Click();

    addin::clsSelect select_;
};

}  // namespace copy
