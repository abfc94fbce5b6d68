#include "copy/frmOpenIDW.h"

#include "copy/paths/Paths.h"
#include "host/Application.h"
#include "host/Document.h"
#include "host/FileSystem.h"
#include "properties/table/AttributeHelpers.h"
#include "support/Error.h"

namespace copy {

using ui::ControlKind;
using ui::EventKind;

namespace {
constexpr const char* kDrawingFilter = "Inventor Drawing Files (*.idw)|*.idw";
}  // namespace

frmOpenIDW::frmOpenIDW(addin::AddinState& state)
    : ui::Form(state.platform, "frmOpenIDW", "Link Matching IDW"), state_(state) {
    TW_ON(cmdBrowse, Click);
    TW_ON(cmdOpenIDW, Click);
    TW_ON(cmdCancel, Click);
    TW_ON(txtDrawingFile, Change);
    TW_ON(txtDrawingPath, Change);
}

void frmOpenIDW::txtDrawingFile_Change() {
    UpdateOpenButton();
}

void frmOpenIDW::txtDrawingPath_Change() {
    UpdateOpenButton();
}

// Where each control sits on the dialog, in twips.
constexpr ui::Placement kLayout[] = {
    {"fraModel", 120, 120, 6600, 1080},       {"txtModelFile", 240, 390, 6360, 315},
    {"lblModelPath", 240, 780, 600, 255},     {"txtModelPath", 840, 750, 5760, 315},
    {"fraDrawing", 120, 1320, 6600, 1080},    {"txtDrawingFile", 240, 1590, 5640, 315},
    {"cmdBrowse", 6000, 1560, 600, 375},      {"lblDrawingPath", 240, 2010, 600, 255},
    {"txtDrawingPath", 840, 1980, 5760, 315}, {"cmdOpenIDW", 120, 2520, 1800, 375},
    {"cmdCancel", 5400, 2520, 1320, 375},
};

void frmOpenIDW::Build() {
    Add("fraModel", ControlKind::Frame, "Model Part / Assembly File");
    Add("txtModelFile", ControlKind::TextBox);
    Add("lblModelPath", ControlKind::Label, "Path");
    Add("txtModelPath", ControlKind::TextBox);
    Add("fraDrawing", ControlKind::Frame, "Linked Drawing File");
    Add("txtDrawingFile", ControlKind::TextBox);
    Add("lblDrawingPath", ControlKind::Label, "Path");
    Add("txtDrawingPath", ControlKind::TextBox);
    Add("cmdBrowse", ControlKind::Button, "...");
    Add("cmdOpenIDW", ControlKind::Button, "Open IDW");
    Add("cmdCancel", ControlKind::Button, "Close");
    Arrange(7000, 3480, {kLayout});
}

void frmOpenIDW::Form_Load() {
    model_ = support::Required(state_.workingDocument, "working document");
    auto model = paths::SplitPath(model_->FullFileName());
    (*this)["txtModelPath"].SetText(model.directory);
    (*this)["txtModelFile"].SetText(model.fileName);

    std::string drawingFile =
        properties::GetAttribute(properties::kLinkAttributeSet, *model_, properties::kDrawingFileAttribute);
    std::string drawingPath =
        properties::GetAttribute(properties::kLinkAttributeSet, *model_, properties::kDrawingPathAttribute);
    if (drawingFile.empty()) {
        // No link kept yet: the host's own guess counts when that file is really there.
        std::string candidate = state_.App().FileLocations()->FindDrawing(model_->FullFileName(), "iparts");
        if (!candidate.empty() && paths::FileFound(state_.fileSystem, candidate)) {
            auto found = paths::SplitPath(candidate);
            drawingFile = found.fileName;
            drawingPath = found.directory;
        }
    }
    if (!drawingFile.empty()) (*this)["txtDrawingFile"].SetText(drawingFile);
    (*this)["txtDrawingPath"].SetText(drawingPath.empty() ? model.directory : drawingPath);
    UpdateOpenButton();
}

std::string frmOpenIDW::DrawingFullFileName() {
    return (*this)["txtDrawingPath"].Text() + (*this)["txtDrawingFile"].Text();
}

void frmOpenIDW::UpdateOpenButton() {
    (*this)["cmdOpenIDW"].Enabled = !(*this)["txtDrawingFile"].Text().empty() &&
                                    paths::FileFound(state_.fileSystem, DrawingFullFileName());
}

void frmOpenIDW::cmdBrowse_Click() {
    std::string chosen = paths::OpenFilePrompt(
        state_.platform, kDrawingFilter, (*this)["txtDrawingPath"].Text(), (*this)["txtDrawingFile"].Text());
    if (chosen.empty()) return;
    auto drawing = paths::SplitPath(chosen);
    auto& app = state_.App();
    properties::SetAttribute(app, properties::kLinkAttributeSet, *model_, properties::kDrawingFileAttribute,
                             drawing.fileName);
    properties::SetAttribute(app, properties::kLinkAttributeSet, *model_, properties::kDrawingPathAttribute,
                             drawing.directory);
    (*this)["txtDrawingFile"].SetText(drawing.fileName);
    (*this)["txtDrawingPath"].SetText(drawing.directory);
    UpdateOpenButton();
}

void frmOpenIDW::cmdOpenIDW_Click() {
    auto& app = state_.App();
    app.Documents()->Open(DrawingFullFileName(), true);
    Unload();
    state_.platform.AppActivate(app.Caption());
}

void frmOpenIDW::cmdCancel_Click() {
    Unload();
    state_.platform.AppActivate(state_.App().Caption());
}

}  // namespace copy
