#include "dialogs/main/BrowserNames.h"

#include "addin/shared/AddinState.h"
#include "copy/paths/Paths.h"
#include "host/Application.h"
#include "host/Component.h"
#include "host/Document.h"
#include "properties/table/PropertyTable.h"
#include "support/Error.h"

namespace dialogs::browser_names {

namespace {

const char* ModeStatus(Mode mode) {
    switch (mode) {
        case Mode::Description:
            return "Setting to Description";
        case Mode::PartNumber:
            return "Setting to Part Number";
        case Mode::Default:
            break;
    }
    return "Setting to Default";
}

}  // namespace

void BrowserRename::Run(bool topLevel, bool doAll,
                        const std::shared_ptr<host::ComponentOccurrence>& selected) {
    auto& app = state_.App();
    auto top = app.ActiveDocument();
    support::Required(top, "active document");
    auto transaction = app.TransactionManager()->StartTransaction(top, "Browser Rename");
    try {
        Rename(topLevel, doAll, selected);
    } catch (const support::Error&) {
        // A run that fails half way is taken back whole, as one undo would.
        transaction->Abort();
        throw;
    }
    transaction->End();
}

void BrowserRename::Rename(bool topLevel, bool doAll,
                           const std::shared_ptr<host::ComponentOccurrence>& selected) {
    auto top = state_.App().ActiveDocument();
    if (topLevel) SetTopLevelName(*top);
    if (doAll) {
        Status(ModeStatus(mode_));
        SetTopLevelName(*top);
        auto occurrences = top->ComponentDefinition()->Occurrences();
        for (std::int32_t i = 1; i <= occurrences->Count(); ++i) RenameTree(*occurrences->Item(i));
        Status("Finished Renaming, Ready");
    } else if (selected) {
        Status(ModeStatus(mode_));
        RenameOne(*selected);
    }
}

std::string BrowserRename::NameSource(host::Document& document) {
    switch (mode_) {
        case Mode::Description:
            return properties::ReadProperty(document, properties::kDescription).ToText();
        case Mode::PartNumber:
            return properties::ReadProperty(document, properties::kPartNumber).ToText();
        case Mode::Default:
            break;
    }
    return "";
}

void BrowserRename::SetTopLevelName(host::Document& top) {
    std::string name =
        mode_ == Mode::Default ? paths::SplitPath(top.FullFileName()).fileName : NameSource(top);
    top.SetDisplayName(name);
}

// An occurrence whose document cannot be modified keeps its name, and so does all that
// lies below it: those occurrences live in that same document.
bool BrowserRename::RenameOne(host::ComponentOccurrence& occurrence) {
    auto document = occurrence.Definition()->Document();
    if (!document->IsModifiable()) return false;
    GiveUniqueName(occurrence, NameSource(*document));
    return true;
}

void BrowserRename::RenameTree(host::ComponentOccurrence& occurrence) {
    if (!RenameOne(occurrence)) return;
    auto children = occurrence.Definition()->Occurrences();
    for (std::int32_t i = 1; i <= children->Count(); ++i) RenameTree(*children->Item(i));
}

// The bare name is never tried: names always carry a suffix, the first one ":1".
void BrowserRename::GiveUniqueName(host::ComponentOccurrence& occurrence, const std::string& name) {
    if (name.empty()) {
        try {
            occurrence.SetName("");
        } catch (const support::Error&) {
        }
    } else {
        for (int n = 1; n <= kMaxSuffix; ++n) {
            try {
                occurrence.SetName(name + ":" + std::to_string(n));
                break;
            } catch (const support::Error&) {
                // Taken: try the next number.
            }
        }
    }
    std::string resulting;
    try {
        resulting = occurrence.Name();
    } catch (const support::Error&) {
    }
    Status("Setting to: " + resulting);
}

void BrowserRename::Status(const std::string& text) {
    state_.App().SetStatusBarText(text);
}

}  // namespace dialogs::browser_names
