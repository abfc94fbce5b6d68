#include "materials/frmGetMaterial.h"

#include "copy/paths/Paths.h"
#include "host/Application.h"
#include "host/Codes.h"
#include "host/Component.h"
#include "host/Document.h"
#include "host/FileSystem.h"
#include "host/Styles.h"
#include "materials/SourceLists.h"
#include "materials/TemplateFile.h"
#include "materials/records/DeleteUnused.h"
#include "support/Error.h"
#include "support/Text.h"

namespace materials {

namespace {

constexpr const char* kSection = "GetMaterials";
constexpr const char* kTemplateKey = "MaterialTemplate";
constexpr const char* kDefaultTemplate = "C:\\Program Files\\Autodesk\\Inventor 7\\Templates\\Standard.ipt";
constexpr const char* kPartFilter = "Inventor Part Files (*.ipt)|*.ipt";
constexpr const char* kNotANumber = "Invalid Entry, must be a number";
constexpr const char* kNothingSelected = "No Material selected in list";
constexpr const char* kCannotOpen = "Error opening Template File";

// The edit fields in the order of a MaterialRow; the render style is the combo box.
constexpr const char* kRowControls[kMaterialFieldCount] = {
    "txtMaterialName", "txtDensity", "txtLinear",  "txtPoissons", "cboRenderStyle",
    "txtSpecificHeat", "txtThermal", "txtTensile", "txtYeild",    "txtModulus"};

template <class Body>
void IgnoringErrors(Body&& body) {
    try {
        body();
    } catch (const support::Error&) {
    }
}

}  // namespace

frmGetMaterial::frmGetMaterial(addin::AddinState& state)
    : ui::Form(state.platform, "frmGetMaterial", "Import Material(s)"), state_(state) {
    TW_ON(cmdBrowse, Click);
    TW_ON(cmdImportMaterials, Click);
    TW_ON(Command1, Click);
    TW_ON(ListBox1, Click);
    TW_ON(ListBox1, DblClick);
    TW_ON(CommandButton1, Click);
    TW_ON(CommandButton2, Click);
    TW_ON(cmdPurgeMat, Click);
    TW_ON(cmdExpandDialog, Click);
    TW_ON(cmdSaveMaterial, Click);
    TW_ON(cmdInternet, Click);
    TW_ON(txtMaterialName, LostFocus);
    TW_ON(txtDensity, LostFocus);
    TW_ON(txtLinear, LostFocus);
    TW_ON(txtPoissons, LostFocus);
    TW_ON(txtSpecificHeat, LostFocus);
    TW_ON(txtThermal, LostFocus);
    TW_ON(txtTensile, LostFocus);
    TW_ON(txtYeild, LostFocus);
    TW_ON(txtModulus, LostFocus);
}

// Where each control sits on the dialog, in twips.
constexpr ui::Placement kLayout[] = {
    {"Label3", 120, 120, 2400, 255},
    {"Text1", 120, 420, 5160, 315},
    {"cmdBrowse", 5400, 390, 480, 375},
    {"cmdImportMaterials", 120, 840, 1800, 375},
    {"Frame4", 120, 1320, 2880, 3480},
    {"lstImport", 240, 1560, 2640, 2640},
    {"Command1", 240, 4320, 2640, 375},
    {"Frame3", 3120, 1320, 2880, 3480},
    {"Label2", 3240, 1560, 2640, 255},
    {"ListBox1", 3240, 1860, 2640, 2340},
    {"cmdPurgeMat", 3240, 4320, 2640, 375},
    {"CommandButton1", 120, 4920, 1320, 375},
    {"CommandButton2", 1560, 4920, 1320, 375},
    {"Picture2", 3120, 4920, 480, 375},
    {"Picture3", 3720, 4920, 480, 375},
    {"cmdExpandDialog", 5520, 4920, 480, 375},
    {"Status", 120, 5400, 5880, 255},
    {"Frame1", 6240, 120, 4440, 5535},
    {"Label1", 6360, 390, 2940, 255},
    {"txtMaterialName", 9360, 360, 1200, 315},
    {"Label4", 6360, 780, 2940, 255},
    {"txtDensity", 9360, 750, 1200, 315},
    {"Label5", 6360, 1170, 2940, 255},
    {"txtLinear", 9360, 1140, 1200, 315},
    {"Label6", 6360, 1560, 2940, 255},
    {"txtPoissons", 9360, 1530, 1200, 315},
    {"Label7", 6360, 1950, 2940, 255},
    {"cboRenderStyle", 9360, 1920, 1200, 315},
    {"Label8", 6360, 2340, 2940, 255},
    {"txtSpecificHeat", 9360, 2310, 1200, 315},
    {"Label9", 6360, 2730, 2940, 255},
    {"txtThermal", 9360, 2700, 1200, 315},
    {"Label10", 6360, 3120, 2940, 255},
    {"txtTensile", 9360, 3090, 1200, 315},
    {"Label11", 6360, 3510, 2940, 255},
    {"txtYeild", 9360, 3480, 1200, 315},
    {"Label12", 6360, 3900, 2940, 255},
    {"txtModulus", 9360, 3870, 1200, 315},
    {"Label13", 6360, 4260, 1800, 255},
    {"Frame2", 6360, 4560, 2520, 960},
    {"optTarget", 6480, 4800, 2280, 255},
    {"optTargetTemplate", 6480, 5130, 2280, 255},
    {"cmdSaveMaterial", 9000, 4620, 1560, 375},
    {"cmdInternet", 9000, 5100, 1560, 375},
};

void frmGetMaterial::Build() {
    Add("Label3", ui::ControlKind::Label, "Source Template");
    Add("Text1", ui::ControlKind::TextBox);
    auto& browse = Add("cmdBrowse", ui::ControlKind::Button);
    browse.ToolTipText = "Browse to Source Template";
    browse.Picture = "folder";
    Add("cmdImportMaterials", ui::ControlKind::Button, "Load Source");
    Add("Frame4", ui::ControlKind::Frame, "Source Material");
    Add("lstImport", ui::ControlKind::ListBox).MultiSelect = true;
    Add("Command1", ui::ControlKind::Button, "Import Selected");
    Add("Frame3", ui::ControlKind::Frame, "Target Materials");
    Add("Label2", ui::ControlKind::Label, "Target Materials");
    Add("ListBox1", ui::ControlKind::ListBox).MultiSelect = true;
    Add("cmdPurgeMat", ui::ControlKind::Button, "Purge Materials");
    Add("CommandButton1", ui::ControlKind::Button, "Apply");
    Add("CommandButton2", ui::ControlKind::Button, "Done");
    auto& expand = Add("cmdExpandDialog", ui::ControlKind::Button);
    expand.ToolTipText = "Expands to show other options";
    expand.Picture = "collapsed";
    Add("Frame1", ui::ControlKind::Frame, "Create New Material");
    static constexpr const char* kLabels[][2] = {{"Label1", "Material Name"},
                                                 {"Label4", "Density [g/cm^3]"},
                                                 {"Label5", "Linear Expansion [10^-5m/m/C]"},
                                                 {"Label6", "Poisson's Ratio"},
                                                 {"Label7", "Render Style"},
                                                 {"Label8", "Specific Heat [J/(kg*K)]"},
                                                 {"Label9", "Thermal Conductivity [W/m*K)]"},
                                                 {"Label10", "Ulitmate Tensile Strength [MPa]"},
                                                 {"Label11", "Yeild Strength  [MPa]"},
                                                 {"Label12", "Young's Modulus [GPa]"}};
    for (std::size_t field = 0; field < kMaterialFieldCount; ++field) {
        Add(kLabels[field][0], ui::ControlKind::Label, kLabels[field][1]);
        if (field == kRenderStyle)
            Add(kRowControls[field], ui::ControlKind::ComboBox, "Mauve");
        else
            Add(kRowControls[field], ui::ControlKind::TextBox);
    }
    Add("Label13", ui::ControlKind::Label, "* Required");
    Add("Frame2", ui::ControlKind::Frame, "Save To:");
    auto& target = Add("optTarget", ui::ControlKind::OptionButton, "Target");
    auto& both = Add("optTargetTemplate", ui::ControlKind::OptionButton, "Template && Target");
    target.Group = both.Group = "SaveTo";
    target.SetValue(-1);
    Add("cmdSaveMaterial", ui::ControlKind::Button, "Save");
    Add("cmdInternet", ui::ControlKind::Button, "Internet");
    Add("Status", ui::ControlKind::Label, "Status");
    Add("Picture2", ui::ControlKind::Picture).Visible = false;
    Add("Picture3", ui::ControlKind::Picture).Visible = false;
    (*this)["Picture2"].Picture = "collapsed";
    (*this)["Picture3"].Picture = "expanded";
    Arrange(kExpandedWidth, 6240, {kLayout});
}

void frmGetMaterial::Form_Load() {
    (*this)["Text1"].SetCaption(state_.GetSetting(kSection, kTemplateKey, kDefaultTemplate));
    Width = kCollapsedWidth;
    expanded_ = false;
    previousOwner_ = state_.platform.SetOwner(*this, state_.App().MainFrameHWND());
    document_ = state_.workingDocument;
    support::Required(document_, "working document");
    targetMaterialTable_.clear();
    sourceMaterialTable_.clear();
    sourceStyleTable_.clear();
    sourceLoaded_ = false;
    RefreshTargetMaterials();
}

void frmGetMaterial::Form_Unload() {
    state_.workingDocument = nullptr;
    currentStyle_.reset();
    document_.reset();
}

void frmGetMaterial::RefreshTargetMaterials() {
    auto materials = document_->Materials();
    auto& list = (*this)["ListBox1"];
    list.Clear();
    targetMaterialTable_.clear();
    for (std::int32_t i = 1; i <= materials->Count(); ++i) {
        auto material = materials->Item(i);
        list.AddItem(material->Name());
        targetMaterialTable_.push_back(ReadMaterialRow(*material));
    }
    auto& styles = (*this)["cboRenderStyle"];
    styles.Items.clear();
    auto renderStyles = document_->RenderStyles();
    for (std::int32_t i = 1; i <= renderStyles->Count(); ++i)
        IgnoringErrors([&] { styles.AddItem(renderStyles->Item(i)->Name()); });
}

std::string frmGetMaterial::SelectedText(ui::Control& list) {
    if (list.ListIndex < 0 || list.ListIndex >= static_cast<int>(list.Items.size())) return "";
    return list.Items[static_cast<std::size_t>(list.ListIndex)];
}

void frmGetMaterial::ListBox1_Click() {
    if ((*this)["ListBox1"].SelectedCount() != 1) return;
    (*this)["optTarget"].SetValue(-1);
    ShowMaterialProperties();
}

void frmGetMaterial::ShowMaterialProperties() {
    auto& list = (*this)["ListBox1"];
    std::string name;
    for (int row = 0; row < static_cast<int>(list.Items.size()); ++row)
        if (list.Selected(row)) name = list.Items[static_cast<std::size_t>(row)];
    auto materials = document_->Materials();
    for (std::int32_t i = 1; i <= materials->Count(); ++i) {
        auto material = materials->Item(i);
        if (material->Name() != name) continue;
        auto show = [&](const char* control, double value) {
            (*this)[control].SetText(support::NumberToText(value));
        };
        (*this)["txtMaterialName"].SetText(material->Name());
        show("txtDensity", material->Density());
        show("txtModulus", material->YoungsModulus());
        show("txtLinear", material->LinearExpansion());
        show("txtPoissons", material->PoissonsRatio());
        show("txtSpecificHeat", material->SpecificHeat());
        show("txtThermal", material->ThermalConductivity());
        show("txtTensile", material->UltimateTensileStrength());
        show("txtYeild", material->YieldStrength());
        auto style = material->RenderStyle();
        (*this)["cboRenderStyle"].SetText(style ? style->Name() : std::string());
        return;
    }
}

void frmGetMaterial::CommandButton1_Click() {
    if ((*this)["ListBox1"].SelectedCount() == 0) {
        state_.platform.MsgBox(kNothingSelected);
        return;
    }
    ApplySelectedMaterial();
    CloseToHost();
}

void frmGetMaterial::ListBox1_DblClick() {
    ApplySelectedMaterial();
    CloseToHost();
}

// A name that matches no material changes nothing.
void frmGetMaterial::ApplySelectedMaterial() {
    std::string name = SelectedText((*this)["ListBox1"]);
    auto materials = document_->Materials();
    for (std::int32_t i = 1; i <= materials->Count(); ++i) {
        auto material = materials->Item(i);
        if (material->Name() != name) continue;
        document_->ComponentDefinition()->SetMaterial(material);
        return;
    }
}

void frmGetMaterial::CommandButton2_Click() {
    CloseToHost();
}

void frmGetMaterial::CloseToHost() {
    Unload();
    state_.platform.AppActivate(state_.App().Caption());
}

// A cancelled prompt empties the path and loads nothing.
void frmGetMaterial::cmdBrowse_Click() {
    std::string chosen = BrowseForSource(state_, (*this)["Text1"], kPartFilter, kSection, kTemplateKey);
    if (!chosen.empty()) LoadSourceTemplate(chosen);
}

void frmGetMaterial::cmdImportMaterials_Click() {
    LoadSourceTemplate((*this)["Text1"].Text());
}

// A file that cannot be opened (or is no part) leaves the tables and the list as they
// were, and the status line saying it was loading.
void frmGetMaterial::LoadSourceTemplate(const std::string& path) {
    (*this)["Status"].SetCaption("Loading Materials, Please wait...");
    std::unique_ptr<TemplateFile> source;
    try {
        source = std::make_unique<TemplateFile>(state_.App(), path);
        if (source->Document().DocumentType() != host::kPartDocumentObject) {
            source->CloseWithoutSaving();
            source.reset();
        }
    } catch (const support::Error&) {
        source.reset();
    }
    if (!source) {
        state_.platform.MsgBox(kCannotOpen);
        return;
    }
    auto& document = source->Document();
    auto styles = document.RenderStyles();
    sourceStyleTable_.clear();
    for (std::int32_t k = 1; k <= styles->Count(); ++k)
        sourceStyleTable_.push_back(ReadRenderStyleRow(*styles->Item(k)));
    sourceLoaded_ = true;

    auto& list = (*this)["lstImport"];
    list.Clear();
    sourceMaterialTable_.clear();
    auto materials = document.Materials();
    for (std::int32_t j = 1; j <= materials->Count(); ++j) {
        sourceMaterialTable_.push_back(ReadMaterialRow(*materials->Item(j)));
        list.AddItem(sourceMaterialTable_.back()[kName].ToText());
    }
    source->CloseWithoutSaving();
    (*this)["Status"].SetCaption("Status: Done");
}

void frmGetMaterial::Command1_Click() {
    ImportSelectedRows((*this)["lstImport"], (*this)["ListBox1"],
                       [this](const std::string& name) { CreateMaterial(name, sourceMaterialTable_); },
                       [this] { RefreshTargetMaterials(); });
}

std::shared_ptr<host::Material> frmGetMaterial::CreateMaterial(const std::string& name,
                                                               const std::vector<MaterialRow>& table) {
    const MaterialRow* row = FindMaterialRow(table, name);
    if (!row) {
        state_.platform.MsgBox("The material \"" + name +
                               "\" is not in the source template, so it was not imported.");
        return nullptr;
    }
    // Every number is converted before the document is touched: a value that is no number
    // leaves no half-made material behind.
    ConvertedRow converted = ConvertNumbers(*row);
    if (!converted.numbers) {
        state_.platform.MsgBox(std::string("The ") + MaterialFieldName(converted.badField) + " of \"" + name +
                               "\" is not a number, so the material was not saved.");
        return nullptr;
    }
    const MaterialNumbers& numbers = *converted.numbers;

    auto materials = document_->Materials();
    std::shared_ptr<host::Material> material;
    for (std::int32_t i = 1; i <= materials->Count() && !material; ++i)
        if (auto existing = materials->Item(i); existing->Name() == name) material = existing;
    if (material) {
        if (state_.platform.MsgBox("Style:" + name + "\rAlready exists, do you want to overwrite?",
                                   ui::vbYesNo) != ui::vbYes)
            return nullptr;
        material->SetDensity(numbers.density);
    } else {
        material = materials->Add(name, numbers.density);
    }
    WriteMaterialValues(*material, numbers);
    ResolveRenderStyle((*row)[kRenderStyle].ToText(), *document_);
    if (currentStyle_) material->SetRenderStyle(currentStyle_);
    return material;
}

// An empty name keeps whatever style the last call found; a name neither the document
// nor the loaded template holds is said to the user, and no style is made up for it.
void frmGetMaterial::ResolveRenderStyle(const std::string& styleName, host::Document& document) {
    if (styleName.empty()) return;
    auto styles = document.RenderStyles();
    for (std::int32_t i = 1; i <= styles->Count(); ++i)
        if (auto style = styles->Item(i); style->Name() == styleName) {
            currentStyle_ = style;
            return;
        }
    const RenderStyleRow* row = FindStyleRow(sourceStyleTable_, styleName);
    if (!row) {
        currentStyle_.reset();
        state_.platform.MsgBox(
            "The render style \"" + styleName + "\" is neither in " + document.DisplayName() +
            (sourceLoaded_ ? " nor in the source template" : " nor in a loaded source template") +
            ", so the material keeps the render style it had.");
        return;
    }
    auto style = styles->Add(styleName);
    try {
        CopyRowToStyle(*row, *style);
    } catch (const support::Error&) {
        IgnoringErrors([&] { style->Delete(); });  // no style without its colours
        throw;
    }
    currentStyle_ = style;
}

void frmGetMaterial::cmdSaveMaterial_Click() {
    for (std::size_t field = 0; field < kMaterialFieldCount; ++field)
        newMaterialRow_[field] = (*this)[kRowControls[field]].Text();
    std::string name = (*this)["txtMaterialName"].Text();
    auto material = CreateMaterial(name, {newMaterialRow_});
    RefreshTargetMaterials();
    if ((*this)["optTarget"].Value() == 0) {
        if (material)
            WriteMaterialToTemplate((*this)["Text1"].Text(), *material);
        else
            state_.platform.MsgBox("The material \"" + name +
                                   "\" was not saved to the template either, since this part kept its own.");
    }
    auto& list = (*this)["ListBox1"];
    for (int row = 0; row < static_cast<int>(list.Items.size()); ++row)
        if (list.Items[static_cast<std::size_t>(row)] == name) {
            list.SetSelected(row, true);
            list.ListIndex = row;
            break;
        }
}

// The first three checks end the write silently. A name the template already has ends it
// with a message and leaves the template open and untouched.
void frmGetMaterial::WriteMaterialToTemplate(const std::string& path, host::Material& material) {
    if ((*this)["Text1"].Text().empty()) return;
    if (!paths::FileFound(state_.fileSystem, (*this)["Text1"].Text())) return;
    if (support::LCase(support::Right(path, 3)) != "ipt") return;
    auto& app = state_.App();
    app.SetStatusBarText("Opening Template for Write...");
    TemplateFile target(app, path);
    auto& document = target.Document();
    auto materials = document.Materials();
    std::string name = material.Name();
    for (std::int32_t i = 1; i <= materials->Count(); ++i)
        if (materials->Item(i)->Name() == name) {
            state_.platform.MsgBox("The Material " + name + "\rAlready exists in the template, exiting");
            return;
        }
    app.SetStatusBarText("Adding " + name + " to Template");
    const MaterialNumbers numbers = *ConvertNumbers(newMaterialRow_).numbers;  // checked when the part got it
    auto added = materials->Add(name, numbers.density);
    WriteMaterialValues(*added, numbers);
    ResolveRenderStyle(newMaterialRow_[kRenderStyle].ToText(), document);
    if (currentStyle_) added->SetRenderStyle(currentStyle_);
    target.SaveAndClose();
}

void frmGetMaterial::cmdPurgeMat_Click() {
    DeleteEveryUnused(*document_->Materials());
    if (state_.platform.MsgBox("Do you want to purge Unused Colors?", ui::vbYesNo) == ui::vbYes)
        DeleteEveryUnused(*document_->RenderStyles());
    RefreshTargetMaterials();
}

void frmGetMaterial::cmdExpandDialog_Click() {
    auto& button = (*this)["cmdExpandDialog"];
    if (expanded_) {
        Width = kCollapsedWidth;
        button.Picture = (*this)["Picture2"].Picture;
    } else {
        Width = kExpandedWidth;
        button.Picture = (*this)["Picture3"].Picture;
    }
    expanded_ = !expanded_;
}

void frmGetMaterial::cmdInternet_Click() {
    state_.platform.ShellOpen(kMaterialsWebPage);
}

// A field that fails keeps the focus. The name is checked with the number message too.
void frmGetMaterial::CheckField(const char* control, bool mustBeNumber) {
    auto& field = (*this)[control];
    bool ok = mustBeNumber ? support::IsNumeric(field.Text()) : !field.Text().empty();
    if (ok) return;
    state_.platform.MsgBox(kNotANumber);
    field.SetFocus();
}

void frmGetMaterial::txtMaterialName_LostFocus() {
    CheckField("txtMaterialName", false);
}
void frmGetMaterial::txtDensity_LostFocus() {
    CheckField("txtDensity", true);
}
void frmGetMaterial::txtLinear_LostFocus() {
    CheckField("txtLinear", true);
}
void frmGetMaterial::txtPoissons_LostFocus() {
    CheckField("txtPoissons", true);
}
void frmGetMaterial::txtSpecificHeat_LostFocus() {
    CheckField("txtSpecificHeat", true);
}
void frmGetMaterial::txtThermal_LostFocus() {
    CheckField("txtThermal", true);
}
void frmGetMaterial::txtTensile_LostFocus() {
    CheckField("txtTensile", true);
}
void frmGetMaterial::txtYeild_LostFocus() {
    CheckField("txtYeild", true);
}
void frmGetMaterial::txtModulus_LostFocus() {
    CheckField("txtModulus", true);
}

}  // namespace materials
