#include "materials/frmGetColor.h"

#include "host/Application.h"
#include "host/Codes.h"
#include "host/Component.h"
#include "host/Document.h"
#include "host/Styles.h"
#include "materials/SourceLists.h"
#include "materials/TemplateFile.h"
#include "materials/records/DeleteUnused.h"
#include "support/Error.h"

namespace materials {

namespace {

constexpr const char* kSection = "GetColors";
constexpr const char* kTemplateKey = "ColorsTemplate";
constexpr const char* kDefaultTemplate = "C:\\Program Files\\Autodesk\\Inventor 7\\Templates\\Standard.ipt";
constexpr const char* kModelFilter = "Inventor Files (*.ipt;*.iam)|*.ipt;*.iam";

}  // namespace

frmGetColor::frmGetColor(addin::AddinState& state)
    : ui::Form(state.platform, "frmGetColor", "Import Color(s)"), state_(state) {
    TW_ON(cmdBrowse, Click);
    TW_ON(cmdImportMaterials, Click);
    TW_ON(Command1, Click);
    TW_ON(cmdPurgeColor, Click);
    TW_ON(CommandButton1, Click);
    TW_ON(CommandButton2, Click);
}

// Where each control sits on the dialog, in twips.
constexpr ui::Placement kLayout[] = {
    {"Text1", 120, 120, 4800, 315},
    {"cmdBrowse", 5040, 90, 480, 375},
    {"cmdImportMaterials", 5640, 90, 1560, 375},
    {"Label1", 120, 600, 2400, 255},
    {"lstImport", 120, 900, 3480, 2880},
    {"Command1", 120, 3900, 3480, 375},
    {"ListBox1", 3720, 900, 3480, 2880},
    {"cmdPurgeColor", 3720, 3900, 3480, 375},
    {"CommandButton1", 120, 4380, 1320, 375},
    {"CommandButton2", 5880, 4380, 1320, 375},
    {"Status", 120, 4860, 7080, 255},
};

void frmGetColor::Build() {
    Add("Text1", ui::ControlKind::TextBox);
    Add("cmdBrowse", ui::ControlKind::Button).Picture = "folder";
    Add("cmdImportMaterials", ui::ControlKind::Button, "Load Source");
    Add("Label1", ui::ControlKind::Label, "Source Colors");
    Add("lstImport", ui::ControlKind::ListBox).MultiSelect = true;
    Add("Command1", ui::ControlKind::Button, "Import Selected");
    Add("ListBox1", ui::ControlKind::ListBox).MultiSelect = true;
    Add("cmdPurgeColor", ui::ControlKind::Button, "Purge Colors");
    Add("CommandButton1", ui::ControlKind::Button, "Apply");
    Add("CommandButton2", ui::ControlKind::Button, "Done");
    Add("Status", ui::ControlKind::Label, "Status");
    Arrange(7480, 5700, {kLayout});
}

void frmGetColor::Form_Load() {
    (*this)["Text1"].SetCaption(state_.GetSetting(kSection, kTemplateKey, kDefaultTemplate));
    previousOwner_ = state_.platform.SetOwner(*this, state_.App().MainFrameHWND());
    document_ = state_.workingDocument;
    support::Required(document_, "working document");
    sourceStyleTable_.clear();
    RefreshTargetColors();
}

void frmGetColor::Form_Unload() {
    state_.workingDocument = nullptr;
    currentStyle_.reset();
    document_.reset();
}

void frmGetColor::RefreshTargetColors() {
    auto& list = (*this)["ListBox1"];
    list.Clear();
    auto styles = document_->RenderStyles();
    for (std::int32_t i = 1; i <= styles->Count(); ++i) list.AddItem(styles->Item(i)->Name());
}

void frmGetColor::CommandButton1_Click() {
    if ((*this)["ListBox1"].SelectedCount() == 0) {
        state_.platform.MsgBox("No Material selected in list");
        return;
    }
    ApplySelectedColor();
    CloseToHost();
}

void frmGetColor::ApplySelectedColor() {
    if (document_->DocumentType() != host::kPartDocumentObject) return;
    auto& list = (*this)["ListBox1"];
    if (list.ListIndex < 0) return;
    std::string name = list.Items[static_cast<std::size_t>(list.ListIndex)];
    auto part = document_->ComponentDefinition()->Document();
    auto styles = document_->RenderStyles();
    for (std::int32_t i = 1; i <= styles->Count(); ++i)
        if (auto style = styles->Item(i); style->Name() == name) part->SetActiveRenderStyle(style);
}

void frmGetColor::CommandButton2_Click() {
    CloseToHost();
}

void frmGetColor::CloseToHost() {
    Unload();
    state_.platform.AppActivate(state_.App().Caption());
}

void frmGetColor::cmdBrowse_Click() {
    std::string chosen = BrowseForSource(state_, (*this)["Text1"], kModelFilter, kSection, kTemplateKey);
    if (!chosen.empty()) LoadSourceColors(chosen);
}

void frmGetColor::cmdImportMaterials_Click() {
    LoadSourceColors((*this)["Text1"].Text());
}

// The list is not cleared first: a second load shows the names again after the first
// ones, while the table holds the new file's styles only. The dialog always did so.
void frmGetColor::LoadSourceColors(const std::string& path) {
    (*this)["Status"].SetCaption("Loading Colors (Render Styles), Please wait...");
    std::unique_ptr<TemplateFile> source;
    try {
        source = std::make_unique<TemplateFile>(state_.App(), path);
    } catch (const support::Error&) {
        state_.platform.MsgBox("Error opening Template File");
        return;
    }
    auto styles = source->Document().RenderStyles();
    sourceStyleTable_.clear();
    for (std::int32_t k = 1; k <= styles->Count(); ++k) {
        sourceStyleTable_.push_back(ReadRenderStyleRow(*styles->Item(k)));
        (*this)["lstImport"].AddItem(sourceStyleTable_.back().name);
    }
    source->CloseWithoutSaving();
    (*this)["Status"].SetCaption("Status: Done reading Colors");
}

void frmGetColor::Command1_Click() {
    ImportSelectedRows((*this)["lstImport"], (*this)["ListBox1"],
                       [this](const std::string& name) { ImportColor(name); },
                       [this] { RefreshTargetColors(); });
}

// A style of the document's is overwritten without a question. A name the loaded table
// does not hold (a name left in the list from an earlier load, or no load at all) is said
// to the user before anything is made, so no style is left without its colours.
void frmGetColor::ImportColor(const std::string& name) {
    if (!FindStyleRow(sourceStyleTable_, name)) {
        state_.platform.MsgBox("The render style \"" + name +
                               "\" is not in the source last loaded, so it was not imported.");
        return;
    }
    currentStyle_.reset();
    auto styles = document_->RenderStyles();
    for (std::int32_t i = 1; i <= styles->Count() && !currentStyle_; ++i)
        if (auto style = styles->Item(i); style->Name() == name) currentStyle_ = style;
    bool added = !currentStyle_;
    if (added) currentStyle_ = styles->Add(name);
    try {
        CopyStyleFromSource(name);
    } catch (const support::Error&) {
        if (added) currentStyle_->Delete();
        throw;
    }
}

void frmGetColor::CopyStyleFromSource(const std::string& name) {
    CopyRowToStyle(*FindStyleRow(sourceStyleTable_, name), *currentStyle_);
}

// Materials are offered first, and only in a part; the material dialog asks in the other
// order. Both orders are the tools' own.
void frmGetColor::cmdPurgeColor_Click() {
    if (document_->DocumentType() == host::kPartDocumentObject) {
        auto answer =
            state_.platform.MsgBox("Do you want to purge Unused Materials First?", ui::vbYesNoCancel);
        if (answer == ui::vbCancel) return;
        if (answer == ui::vbYes) DeleteEveryUnused(*document_->Materials());
    }
    DeleteEveryUnused(*document_->RenderStyles());
    RefreshTargetColors();
}

}  // namespace materials
