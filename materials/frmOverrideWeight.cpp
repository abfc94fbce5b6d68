#include "materials/frmOverrideWeight.h"

#include "host/Application.h"
#include "host/Codes.h"
#include "host/Component.h"
#include "host/Document.h"
#include "host/Styles.h"
#include "support/Error.h"
#include "support/Text.h"

namespace materials {

namespace {

struct MassUnitChoice {
    const char* text;
    std::int32_t code;
};
constexpr MassUnitChoice kMassUnits[] = {{"lbMass", host::kLbMassMassUnits},
                                         {"Slug", host::kSlugMassUnits},
                                         {"Gram", host::kGramMassUnits},
                                         {"Kilogram", host::kKilogramMassUnits}};

}  // namespace

frmOverrideWeight::frmOverrideWeight(addin::AddinState& state)
    : ui::Form(state.platform, "frmOverrideWeight", "Override Weight"), state_(state) {
    TW_ON(cboMassUnits, Click);
    TW_ON(tbxTargetWeight, Change);
    TW_ON(Command1, Click);
    TW_ON(Command2, Click);
}

// Where each control sits on the dialog, in twips.
constexpr ui::Placement kLayout[] = {
    {"Label7", 120, 150, 2040, 255},
    {"tbxMaterial", 2280, 120, 2640, 315},
    {"Label4", 120, 540, 2040, 255},
    {"cboMassUnits", 2280, 510, 2640, 315},
    {"Label3", 120, 930, 2040, 255},
    {"tbxUOWeight", 2280, 900, 2640, 315},
    {"Label1", 120, 1320, 2040, 255},
    {"tbxCurrentWeight", 2280, 1290, 2640, 315},
    {"Label2", 120, 1710, 2040, 255},
    {"tbxVolume", 2280, 1680, 2640, 315},
    {"Frame1", 120, 2100, 4800, 1200},
    {"Label5", 240, 2400, 1920, 255},
    {"tbxTargetWeight", 2280, 2370, 2520, 315},
    {"Label6", 240, 2790, 1920, 255},
    {"tbxNewDensity", 2280, 2760, 2520, 315},
    {"Command1", 120, 3420, 1320, 375},
    {"Command2", 3600, 3420, 1320, 375},
};

void frmOverrideWeight::Build() {
    Add("Label7", ui::ControlKind::Label, "Material");
    Add("tbxMaterial", ui::ControlKind::TextBox);
    Add("Label4", ui::ControlKind::Label, "Change Units");
    Add("cboMassUnits", ui::ControlKind::ComboBox);
    Add("Label3", ui::ControlKind::Label, "Unit Of Weight");
    Add("tbxUOWeight", ui::ControlKind::TextBox);
    Add("Label1", ui::ControlKind::Label, "Current Weight");
    Add("tbxCurrentWeight", ui::ControlKind::TextBox);
    Add("Label2", ui::ControlKind::Label, "Current Volume");
    Add("tbxVolume", ui::ControlKind::TextBox);
    Add("Frame1", ui::ControlKind::Frame, "New Properties");
    Add("Label5", ui::ControlKind::Label, "Target Weight");
    Add("tbxTargetWeight", ui::ControlKind::TextBox);
    Add("Label6", ui::ControlKind::Label, "New Density g/cm^3");
    Add("tbxNewDensity", ui::ControlKind::TextBox);
    Add("Command1", ui::ControlKind::Button, "Apply");
    Add("Command2", ui::ControlKind::Button, "Done");
    Arrange(5200, 4380, {kLayout});
}

void frmOverrideWeight::Form_Load() {
    document_ = state_.workingDocument;
    support::Required(document_, "working document");
    auto units = document_->UnitsOfMeasure();
    auto& choice = (*this)["cboMassUnits"];
    choice.SetCaption(units->GetStringFromType(host::kDefaultDisplayMassUnits));
    for (const auto& unit : kMassUnits) choice.AddItem(unit.text);
    RefreshWeightDisplay();
    double mass = document_->ComponentDefinition()->MassProperties()->Mass();
    (*this)["tbxTargetWeight"].SetText(units->GetStringFromValue(mass, host::kDefaultDisplayMassUnits));
}

void frmOverrideWeight::Form_Unload() {
    document_.reset();
}

// The volume line carries "^3" twice: the host's unit text has it, and the dialog adds it.
void frmOverrideWeight::RefreshWeightDisplay() {
    auto definition = document_->ComponentDefinition();
    auto mass = definition->MassProperties();
    auto units = document_->UnitsOfMeasure();
    volume_ = mass->Volume();
    std::string volumeUnit = units->GetStringFromType(host::kDefaultDisplayLengthUnits) + "^3";
    (*this)["tbxVolume"].SetText(units->GetStringFromValue(volume_, volumeUnit) + "^3");
    (*this)["tbxUOWeight"].SetText(units->GetStringFromType(host::kDefaultDisplayMassUnits));
    (*this)["tbxCurrentWeight"].SetText(
        units->GetStringFromValue(mass->Mass(), host::kDefaultDisplayMassUnits));
    (*this)["tbxMaterial"].SetText(definition->Material()->Name());
}

// The mass unit is the document's own: the change stays after the dialog closes.
void frmOverrideWeight::cboMassUnits_Click() {
    std::string chosen = (*this)["cboMassUnits"].Text();
    for (const auto& unit : kMassUnits)
        if (chosen == unit.text) document_->UnitsOfMeasure()->SetMassUnits(unit.code);
    RefreshWeightDisplay();
}

// While the target does not read as a mass, the density shown stays as it was and the
// focus stays in the field; nothing is said until Apply.
void frmOverrideWeight::tbxTargetWeight_Change() {
    double mass = 0;
    try {
        mass = document_->UnitsOfMeasure()->GetValueFromExpression((*this)["tbxTargetWeight"].Text(),
                                                                   host::kDefaultDisplayMassUnits);
    } catch (const support::Error&) {
        (*this)["tbxTargetWeight"].SetFocus();
        return;
    }
    if (volume_ == 0) return;
    (*this)["tbxNewDensity"].SetText(support::FormatFixed(mass / volume_ * 1000.0, 6));
}

// The present material gets the density first, "Override" is then chosen or made: with an
// "Override" that exists while the part uses another material, that other material takes
// the density and the part switches to "Override" as it was; the next Apply reaches the
// target. The tool has always worked in this order.
void frmOverrideWeight::Command1_Click() {
    std::string target = (*this)["tbxTargetWeight"].Text();
    double mass = 0;
    try {
        mass = document_->UnitsOfMeasure()->GetValueFromExpression(target, host::kDefaultDisplayMassUnits);
    } catch (const support::Error&) {
        state_.platform.MsgBox("The target weight \"" + target +
                               "\" is not a weight. Enter a number, with a unit if you like, such as 2 kg.");
        return;
    }
    if (volume_ == 0) {
        state_.platform.MsgBox("This part has no volume, so no density can give it a weight.");
        return;
    }
    double density = mass / volume_;  // kg/cm^3, as the host keeps it
    document_->ComponentDefinition()->Material()->SetDensity(density);
    if (!AssignMaterialByName(kOverrideMaterial)) CreateOverrideMaterial(kOverrideMaterial, density);
    RefreshWeightDisplay();
}

bool frmOverrideWeight::AssignMaterialByName(const std::string& name) {
    auto materials = document_->Materials();
    for (std::int32_t i = 1; i <= materials->Count(); ++i)
        if (auto material = materials->Item(i); material->Name() == name) {
            document_->ComponentDefinition()->SetMaterial(material);
            return true;
        }
    return false;
}

// The new material wears the part's present colour, so the part looks as it did. The
// colour is read before the material is made, so a failure leaves no material behind.
void frmOverrideWeight::CreateOverrideMaterial(const std::string& name, double density) {
    std::shared_ptr<host::RenderStyle> colour;
    try {
        colour = document_->ActiveRenderStyle();
    } catch (const support::Error&) {  // a part without a colour: the material has none either
    }
    auto material = document_->Materials()->Add(name, density);
    if (colour) material->SetRenderStyle(colour);
    document_->ComponentDefinition()->SetMaterial(material);
}

void frmOverrideWeight::Command2_Click() {
    Unload();
}

}  // namespace materials
