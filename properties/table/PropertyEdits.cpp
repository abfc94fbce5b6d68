#include "properties/table/PropertyEdits.h"

#include "support/Text.h"
#include "ui/Platform.h"

namespace properties {

namespace {

constexpr TextEdit kTextEdits[] = {
    {kTitleRow, kTitle, "Enter Title", "Title", false},
    {kDescriptionRow, kDescription, "Enter Description", "Description", false},
    {kPartNumberRow, kPartNumber, "Enter Part Number", "Part Number", false},
    {kRevisionRow, kRevisionNumber, "Enter Revision Number", "Revision Number", false},
    {kVendorRow, kVendor, "Vendor Info", "Vendor", false},
    {kCostRow, kCost, "Estimated Cost", "Cost", true},
    {kKeywordsRow, kKeywords, "Keywords", "Keywords", false},
};

}  // namespace

const TextEdit* FindTextEdit(int row) {
    for (const auto& edit : kTextEdits)
        if (edit.row == row) return &edit;
    return nullptr;
}

bool EditInInputBox(ui::Platform& platform, host::Document& document, const TextEdit& edit) {
    std::string current = ReadProperty(document, edit.address).ToText();
    std::string answer = platform.InputBox(edit.prompt, edit.title, current);
    if (answer.empty()) return false;
    if (!edit.currency) {
        WriteProperty(document, edit.address, support::Variant(answer));
        return true;
    }
    // A numeric text beyond the currency range is no more a cost than "abc" is.
    auto cost = support::IsNumeric(answer) ? support::ParseCurrency(answer) : std::nullopt;
    if (!cost) {
        platform.MsgBox(kNotCurrency);
        return false;
    }
    WriteProperty(document, edit.address, support::Variant(*cost));
    return true;
}

}  // namespace properties
