#include "properties/frmUpdateMatrix.h"

#include <algorithm>

#include "copy/paths/Paths.h"
#include "host/Application.h"
#include "host/Codes.h"
#include "host/Document.h"
#include "host/FileSystem.h"
#include "host/Properties.h"
#include "properties/table/CommodityList.h"
#include "properties/table/EMatrixSet.h"
#include "properties/table/PropertyTable.h"
#include "support/Error.h"
#include "support/Text.h"

namespace properties {

namespace {

constexpr const char* kUniqueFileName = "Unique File Name";
constexpr const char* kCommodityCode = "Commodity Code";
constexpr const char* kCommodityNumber = "Commodity Number";
constexpr const char* kLibrary = "Library";
constexpr const char* kUnassigned = "Unassigned";
constexpr const char* kCommercial = "Commercial";

// A property of the set by name, as text; "" when the set has none of that name.
std::string ReadByName(host::PropertySet& set, const char* name) {
    try {
        return set.Item(name)->Value().ToText();
    } catch (const support::Error&) {
        return "";
    }
}

// Writes by name; a property the set lacks is added, so that what the user committed is
// kept whatever the set held before.
void WriteByName(host::PropertySet& set, const char* name, const std::string& value) {
    std::shared_ptr<host::Property> property;
    try {
        property = set.Item(name);
    } catch (const support::Error&) {
        set.Add(support::Variant(value), name);
        return;
    }
    property->SetValue(support::Variant(value));
}

}  // namespace

frmUpdateMatrix::frmUpdateMatrix(addin::AddinState& state)
    : ui::Form(state.platform, "frmUpdateMatrix", "Update eMatrix Properties"), state_(state) {
    TW_ON(cboComCode, Click);
    TW_ON(cboLibrary, Click);
    TW_ON(OKButton, Click);
    TW_ON(CancelButton, Click);
}

// Where each control sits on the dialog, in twips.
constexpr ui::Placement kLayout[] = {
    {"cboLibrary", 120, 120, 3000, 315},
    {"Label1", 120, 540, 2640, 255},
    {"txtUniqueFile", 2880, 510, 3720, 315},
    {"lblRevision", 120, 930, 2640, 255},
    {"txtRevision", 2880, 900, 1440, 315},
    {"lblPartNumber", 120, 1320, 2640, 255},
    {"txtPartNumber", 2880, 1290, 3720, 315},
    {"lblCommodityCode", 120, 1710, 2640, 255},
    {"txtCommCode", 2880, 1680, 3720, 315},
    {"lblSelectCommodityCode", 120, 2100, 6480, 255},
    {"cboComCode", 120, 2400, 6480, 315},
    {"lblFileDescriptiveText", 120, 2820, 6480, 255},
    {"txtFileDescriptionText", 120, 3120, 6480, 315},
    {"OKButton", 3720, 3600, 1440, 375},
    {"CancelButton", 5280, 3600, 1320, 375},
};

void frmUpdateMatrix::Build() {
    auto& library = Add("cboLibrary", ui::ControlKind::ComboBox);
    library.Items = {kUnassigned, kCommercial};
    Add("txtUniqueFile", ui::ControlKind::TextBox).ToolTipText =
        "Exercise Care, only change this if your are sure about it!!!";
    Add("txtRevision", ui::ControlKind::TextBox);
    Add("txtPartNumber", ui::ControlKind::TextBox);
    Add("txtCommCode", ui::ControlKind::TextBox);
    Add("cboComCode", ui::ControlKind::ComboBox);
    Add("txtFileDescriptionText", ui::ControlKind::TextBox);
    Add("CancelButton", ui::ControlKind::Button, "Cancel");
    Add("OKButton", ui::ControlKind::Button, "OK - Commit");
    Add("Label1", ui::ControlKind::Label, "Unique File Name (internal)");
    Add("lblRevision", ui::ControlKind::Label, "Revision");
    Add("lblPartNumber", ui::ControlKind::Label, "Part Number");
    Add("lblCommodityCode", ui::ControlKind::Label, "Commodity Code");
    Add("lblSelectCommodityCode", ui::ControlKind::Label, "Select a commodity code from the list below.");
    Add("lblFileDescriptiveText", ui::ControlKind::Label, "Enter a Descriptive name for this file.");
    Arrange(6880, 4560, {kLayout});
}

// The fields are filled without raising their events: loading asks nothing and writes
// nothing.
void frmUpdateMatrix::Form_Load() {
    document_ = state_.workingDocument;
    support::Required(document_, "working document");
    LoadCommodityList();
    (*this)["txtFileDescriptionText"].SetCaption(ReadProperty(*document_, kDescriptionById).ToText());
    (*this)["txtRevision"].SetCaption(ReadProperty(*document_, kRevisionNumber).ToText());
    (*this)["txtPartNumber"].SetCaption(ReadProperty(*document_, kPartNumber).ToText());

    std::string uniqueFile;
    std::string commodityNumber;
    commodity_.clear();
    auto set = FindEMatrixSet();
    setFound_ = set != nullptr;
    if (set) {
        uniqueFile = ReadByName(*set, kUniqueFileName);
        commodity_ = ReadByName(*set, kCommodityCode);
        commodityNumber = ReadByName(*set, kCommodityNumber);
        ShowLibrary(ReadByName(*set, kLibrary), true);
    } else {
        std::string fileName = paths::SplitPath(document_->FullFileName()).fileName;
        uniqueFile = support::Left(fileName, std::max<long>(0, static_cast<long>(fileName.size()) - 4));
        ShowLibrary(
            document_->DocumentType() == host::kAssemblyDocumentObject ? "0000_ASSEMBLY" : "9999_PART",
            false);
    }

    (*this)["txtCommCode"].SetCaption(CommodityCode(commodity_));
    auto& list = (*this)["cboComCode"];
    auto found = std::find(list.Items.begin(), list.Items.end(), commodity_);
    if (found == list.Items.end()) {
        state_.platform.MsgBox("Mismatch on Commodity code\rPlease update from Dropdown");
    } else {
        list.ListIndex = static_cast<int>(found - list.Items.begin());
        list.SetCaption(commodity_);
    }
    (*this)["txtUniqueFile"].SetCaption(uniqueFile);
}

void frmUpdateMatrix::LoadCommodityList() {
    auto& list = (*this)["cboComCode"];
    if (!state_.fileSystem.FileExists(kCommodityFile)) {
        state_.platform.MsgBox(std::string("Cannot Find ") + kCommodityFile);
        return;
    }
    for (auto& entry : ReadCommodityEntries(state_.fileSystem.ReadText(kCommodityFile))) list.AddItem(entry);
}

std::shared_ptr<host::PropertySet> frmUpdateMatrix::FindEMatrixSet() {
    auto sets = document_->PropertySets();
    for (std::int32_t i = 1; i <= sets->Count(); ++i) {
        auto set = sets->Item(i);
        if (set->Name() != kEMatrixName) continue;
        if (set->InternalName() == kEMatrixId) return set;
        if (state_.platform.MsgBox("Incorrect Internal ID, Do you want it fixed?", ui::vbYesNo) != ui::vbYes)
            return set;
        // A document that cannot be changed keeps its set as it is, and says so.
        if (!document_->IsModifiable()) {
            state_.platform.MsgBox("Is not modifiable\r" + document_->FullFileName());
            return set;
        }
        RebuildEMatrixSet(*document_);
        return sets->Item(kEMatrixId);
    }
    return nullptr;
}

// A library that is neither of the two fixed ones is added to the list; a stored one is
// labelled as the eMatrix library.
void frmUpdateMatrix::ShowLibrary(const std::string& library, bool stored) {
    auto& list = (*this)["cboLibrary"];
    list.Clear();
    list.AddItem(kUnassigned);
    list.AddItem(kCommercial);
    if (stored) (*this)["Label1"].SetCaption("eMatrix Library (Internal)");
    if (library != kUnassigned && library != kCommercial) list.AddItem(library);
    storedLibrary_ = library;
    SelectLibrary(library);
}

void frmUpdateMatrix::SelectLibrary(const std::string& library) {
    auto& list = (*this)["cboLibrary"];
    auto found = std::find(list.Items.begin(), list.Items.end(), library);
    list.ListIndex = found == list.Items.end() ? -1 : static_cast<int>(found - list.Items.begin());
    list.SetCaption(library);
}

void frmUpdateMatrix::cboComCode_Click() {
    commodity_ = (*this)["cboComCode"].Text();
    (*this)["txtCommCode"].SetText(CommodityCode(commodity_));
}

void frmUpdateMatrix::cboLibrary_Click() {
    std::string chosen = (*this)["cboLibrary"].Text();
    if (chosen == storedLibrary_) return;
    if (state_.platform.MsgBox("Chaning the Library Property can cause problems with eMatrix Release\rAre "
                               "you sure you want to change it?",
                               ui::vbYesNo, "Warning, Are you a Librarian?") == ui::vbYes)
        (*this)["txtUniqueFile"].SetText(chosen);
    else
        SelectLibrary(storedLibrary_);
}

void frmUpdateMatrix::OKButton_Click() {
    Commit();
    Unload();
    state_.platform.AppActivate(state_.App().Caption());
}

void frmUpdateMatrix::CancelButton_Click() {
    Unload();
}

// The commodity number is the entry's four-character code, the number eMatrix files the
// commodity under; the part number shown is the document's own and goes back to it.
void frmUpdateMatrix::Commit() {
    WriteProperty(*document_, kDescriptionById, support::Variant((*this)["txtFileDescriptionText"].Text()));
    WriteProperty(*document_, kRevisionNumber, support::Variant((*this)["txtRevision"].Text()));
    WriteProperty(*document_, kPartNumber, support::Variant((*this)["txtPartNumber"].Text()));

    auto sets = document_->PropertySets();
    std::shared_ptr<host::PropertySet> set;
    if (setFound_) {
        set = sets->Item(kEMatrixName);
    } else {
        set = sets->Add(kEMatrixName, kEMatrixId);
        set->Add(support::Variant(std::string()), kCommodityCode, 2);
        set->Add(support::Variant(std::string()), kCommodityNumber, 3);
        set->Add(support::Variant(std::string()), kUniqueFileName, 4);
    }
    WriteByName(*set, kCommodityCode, commodity_);
    WriteByName(*set, kCommodityNumber, (*this)["txtCommCode"].Text());
    WriteByName(*set, kUniqueFileName, (*this)["txtUniqueFile"].Text());
    WriteByName(*set, kLibrary, (*this)["cboLibrary"].Text());
}

}  // namespace properties
