#include "properties/frmIDW.h"

#include "addin/shared/DialogPosition.h"
#include "copy/paths/Paths.h"
#include "host/Application.h"
#include "host/Document.h"
#include "host/Properties.h"
#include "properties/frmMergeCustomProperties.h"
#include "properties/frmUpdateMatrix.h"
#include "properties/table/AttributeHelpers.h"
#include "properties/table/PropertyEdits.h"
#include "properties/table/TitleBlockField.h"
#include "support/Error.h"
#include "support/Text.h"

namespace properties {

namespace {

constexpr const char* kSection = "IDWProps";
constexpr const char* kDesignStates[] = {"WorkInProgress", "Pending", "Released"};
constexpr PropertyAddress kDesignStatus{kDesignTrackingId, 0, PropertyAddress::By::Identifier, 40};
// Drawings saved before release 7 have no deferred updates, nor a design status to set.
constexpr std::int32_t kDeferFromRelease = 7;
constexpr std::int32_t kTitleBlockSwapFromRelease = 9;
constexpr const char* kDateHint = "Not a valid date use:\rmm/dd/yy hr:min:sec am";

}  // namespace

frmIDW::frmIDW(addin::AddinState& state) : ui::Form(state.platform, "frmIDW", "IDW Settings"), state_(state) {
    TW_ON(cmdGetCustomProperties, Click);
    TW_ON(cmdEmatrix, Click);
    TW_ON(cmdLinkModels, Click);
    TW_ON(lstProps, DblClick);
    TW_ON(lstProps, MouseUp);
    TW_ON(chkDefer, Click);
    TW_ON(cbxDesignState, Click);
    TW_ON(cmdCancel, Click);
    TW_ON(cmdTBSwap, Click);
    TW_ON_MENU(mnuExplore);
}

// Where each control sits on the dialog, in twips.
constexpr ui::Placement kLayout[] = {
    {"cmdGetCustomProperties", 120, 120, 2160, 375},
    {"cmdEmatrix", 2400, 120, 2160, 375},
    {"cmdLinkModels", 4680, 120, 3240, 375},
    {"Frame2", 120, 600, 7800, 3600},
    {"lstProps", 240, 840, 7560, 3240},
    {"chkDefer", 120, 4380, 1200, 255},
    {"Frame1", 1440, 4260, 3000, 720},
    {"cbxDesignState", 1560, 4500, 2760, 315},
    {"cmdTBSwap", 4560, 4440, 1680, 375},
    {"cmdCancel", 6360, 4440, 1560, 375},
    {"Status", 120, 5100, 7800, 255},
};

void frmIDW::Build() {
    Add("cmdGetCustomProperties", ui::ControlKind::Button, "Get Custom Prop's");
    Add("cmdEmatrix", ui::ControlKind::Button, "eMatrix Prop");
    Add("cmdLinkModels", ui::ControlKind::Button, "Link Referenced Models to This IDW").Picture = "link";
    Add("Frame2", ui::ControlKind::Frame, "Tite Block Properties");
    Add("lstProps", ui::ControlKind::ListBox);
    Add("chkDefer", ui::ControlKind::CheckBox, "Defer");
    Add("Frame1", ui::ControlKind::Frame, "Design Status");
    Add("cbxDesignState", ui::ControlKind::ComboBox);
    Add("cmdCancel", ui::ControlKind::Button, "Done");
    Add("cmdTBSwap", ui::ControlKind::Button, "Get Titleblock");
    Add("Status", ui::ControlKind::Label, "Status");
    AddMenu("mnuPopUp", "PopUp").Visible = false;  // shown over the list, never in the menu bar
    AddMenu("mnuExplore", "Explore", "mnuPopUp");
    Arrange(8200, 5940, {kLayout});
}

// Showing the stored state writes nothing back: the design status is shown without its
// Click, and the defer box's Click finds the setting as it is.
void frmIDW::Form_Load() {
    auto& app = state_.App();
    placed_ = false;
    previousOwner_ = state_.platform.SetOwner(*this, app.MainFrameHWND());
    addin::RestorePosition(state_, *this, kSection);
    placed_ = true;
    drawing_ = app.ActiveDocument();
    support::Required(drawing_, "active document");

    auto& defer = (*this)["chkDefer"];
    auto& states = (*this)["cbxDesignState"];
    if (drawing_->SoftwareVersionSaved() >= kDeferFromRelease) {
        defer.SetValue(drawing_->DrawingSettings()->DeferUpdates() ? 1 : 0);
    } else {
        defer.Visible = false;
        states.Enabled = false;
    }
    for (const char* s : kDesignStates) states.AddItem(s);
    designStatus_ = FindProperty(*drawing_, kDesignStatus);
    double status = support::Val(designStatus_->Value().ToText());  // never set: empty, so 0
    states.ListIndex = status >= 1 && status <= 3 ? static_cast<int>(status) - 1 : 0;
    states.SetCaption(states.Items[static_cast<std::size_t>(states.ListIndex)]);

    CollectTitleBlockProperties();
    RefreshList();
}

void frmIDW::Form_QueryUnload(bool& /*cancel*/) {
    if (placed_) addin::SavePosition(state_, *this, kSection);
}

// A text box whose text cannot be read, or whose property the drawing does not have,
// adds nothing; a field of identifier 0 is collected whatever the look-up finds.
void frmIDW::CollectTitleBlockProperties() {
    titleBlockProperties_.Clear();
    auto blocks = drawing_->TitleBlockDefinitions();
    for (std::int32_t b = 1; b <= blocks->Count(); ++b) {
        auto boxes = blocks->Item(b)->Sketch()->TextBoxes();
        for (std::int32_t t = 1; t <= boxes->Count(); ++t) {
            std::optional<TitleBlockField> field;
            try {
                field = ParseTitleBlockField(boxes->Item(t)->FormattedText());
            } catch (const support::Error&) {
            }
            if (!field) continue;
            try {
                auto property =
                    drawing_->PropertySets()->Item(field->formatId)->ItemByPropId(field->propertyId);
                titleBlockProperties_.Add({field->formatId, field->propertyId, property->Name(), ""});
            } catch (const support::Error&) {
                // A field without a property identifier is still collected, nameless: it
                // takes a place in the collection, though the list never shows it.
                if (field->propertyId == 0) titleBlockProperties_.Add({field->formatId, 0, "", ""});
            }
        }
    }
}

// Fields of identifier 0 are collected but never listed.
void frmIDW::RefreshList() {
    auto& list = (*this)["lstProps"];
    list.Clear();
    for (auto& record : titleBlockProperties_.Records()) {
        if (record.PropertyID <= 0) continue;
        record.Value = drawing_->PropertySets()
                           ->Item(record.FormatID)
                           ->ItemByPropId(record.PropertyID)
                           ->Value()
                           .ToText();
        list.AddItem(record.Name + " = " + record.Value);
    }
}

void frmIDW::cbxDesignState_Click() {
    auto position = static_cast<std::int16_t>((*this)["cbxDesignState"].ListIndex + 1);
    designStatus_->SetValue(support::Variant(position));
}

void frmIDW::chkDefer_Click() {
    drawing_->DrawingSettings()->SetDeferUpdates((*this)["chkDefer"].Value() == 1);
}

// The record is taken by the line's place in the whole collection, fields of identifier
// 0 included, as the list has always been read.
void frmIDW::lstProps_DblClick() {
    if (drawing_->FullFileName().empty()) {
        state_.platform.MsgBox(kSaveFirst);
        return;
    }
    auto& records = titleBlockProperties_.Records();
    int index = (*this)["lstProps"].ListIndex;
    if (index < 0 || index >= static_cast<int>(records.size())) return;
    const clsTprop record = records[static_cast<std::size_t>(index)];
    std::string answer = state_.platform.InputBox("New Value", record.Name, record.Value);
    if (answer.empty()) return;
    WriteAnswer(record, answer);
}

// A date property takes a date only, stored as a general date. A date the property then
// refuses shows the date hint and the general error, one after the other.
void frmIDW::WriteAnswer(const clsTprop& record, const std::string& answer) {
    bool writingDate = false;
    try {
        auto property = drawing_->PropertySets()->Item(record.FormatID)->ItemByPropId(record.PropertyID);
        if (property->Value().Type() != support::VariantType::Date) {
            property->SetValue(support::Variant(answer));
            FocusHost();
            RefreshList();
            return;
        }
        auto date = support::ParseDate(answer);
        if (!date) {
            state_.platform.MsgBox(kDateHint);
            return;
        }
        writingDate = true;
        property->SetValue(support::Variant(support::FormatGeneralDate(*date)));
        RefreshList();
        FocusHost();
    } catch (const support::Error&) {
        if (writingDate) state_.platform.MsgBox(kDateHint);
        state_.platform.MsgBox("Error setting property, sorry");
    }
}

void frmIDW::cmdLinkModels_Click() {
    auto drawing = paths::SplitPath(drawing_->FullFileName());
    for (const auto& model : drawing_->ReferencedDocuments()) {
        (*this)["Status"].SetCaption("Linking: " + paths::SplitPath(model->FullFileName()).fileName);
        state_.platform.DoEvents();
        SetAttribute(state_.App(), kLinkAttributeSet, *model, kDrawingFileAttribute, drawing.fileName);
        SetAttribute(state_.App(), kLinkAttributeSet, *model, kDrawingPathAttribute, drawing.directory);
    }
    (*this)["Status"].SetCaption("Finished Linking");
}

void frmIDW::cmdTBSwap_Click() {
    if (state_.App().SoftwareVersionMajor() < kTitleBlockSwapFromRelease)
        state_.platform.MsgBox("This funcion requires Inventor R9 or higher\rConsider upgrading");
}

// The working document stays set afterwards, as the other tools expect to find it.
void frmIDW::cmdEmatrix_Click() {
    state_.workingDocument = drawing_;
    state_.Dialog<frmUpdateMatrix>().Show(true);
    FocusHost();
}

void frmIDW::cmdGetCustomProperties_Click() {
    state_.Dialog<frmMergeCustomProperties>().Show(true);
}

void frmIDW::cmdCancel_Click() {
    Unload();
    FocusHost();
}

void frmIDW::lstProps_MouseUp(int button) {
    if (button == ui::kRightButton) platform().PopupMenu(*this, "mnuPopUp");
}

void frmIDW::mnuExplore_Click() {
    state_.platform.Shell("exploreR /e, " + paths::SplitPath(drawing_->FullFileName()).directory, 1);
}

void frmIDW::FocusHost() {
    state_.platform.AppActivate(state_.App().Caption());
}

}  // namespace properties
