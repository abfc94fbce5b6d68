#include "copy/modRecurseSaveNReplace.h"

#include <memory>

#include "addin/AddinState.h"
#include "copy/frmCloneNames.h"
#include "copy/frmPacknLink.h"
#include "host/Application.h"
#include "host/Codes.h"
#include "host/Component.h"
#include "host/Document.h"
#include "host/FileSystem.h"
#include "support/Error.h"
#include "support/Text.h"

namespace copy {

namespace {

void EnsureTrailingBackslash(std::string& folder) {
    if (support::Right(folder, 1) != "\\") folder += "\\";
}

bool IsSubAssembly(host::ComponentOccurrence& occurrence) {
    return occurrence.Definition()->Occurrences()->Count() >= 1;
}

}  // namespace

std::string FormCopyName(const std::string& fullFileName, const std::string& prefix,
                         const std::string& suffix, std::string& targetDir) {
    std::string fileName = SplitPath(fullFileName).fileName;
    long length = static_cast<long>(fileName.size());
    std::string extension = support::Right(fileName, 4);
    std::string base = support::Left(fileName, length - 4);

    std::string prefixUsed = prefix;
    std::string suffixUsed = suffix;
    if (!prefix.empty() && support::Left(base, static_cast<long>(prefix.size())) == prefix)
        prefixUsed.clear();
    if (!suffix.empty() && support::Right(base, static_cast<long>(suffix.size())) == suffix)
        suffixUsed.clear();
    EnsureTrailingBackslash(targetDir);
    return targetDir + prefixUsed + base + suffixUsed + extension;
}

void SaveAndReplaceOccurrence(addin::AddinState& state, host::ComponentOccurrence& occurrence,
                              const std::string& prefix, const std::string& suffix, std::string& targetDir) {
    auto document = occurrence.Definition()->Document();
    std::string newName = FormCopyName(document->FullFileName(), prefix, suffix, targetDir);
    auto& dialog = state.Dialog<frmCloneNames>();

    if (!FileExists(state.fileSystem, newName)) {
        dialog.ShowStatus("Saving: " + newName);
        document->SaveAs(newName, true);
    }
    if (document->FullFileName() != newName) {
        dialog.ShowStatus("Replacing: " + newName + " In: " + occurrence.Name());
        occurrence.Replace(newName, false);
        state.platform.DoEvents();
        occurrence.Definition()->Document()->SetDisplayName("");
    }
    // The browser name goes back to the host's default, derived from the new file; a
    // host that refuses keeps the old name, which is harmless.
    try {
        occurrence.SetName("");
    } catch (const support::Error&) {
    }
}

void RecurseOccurrences(addin::AddinState& state, host::Document& assemblyDocument, const std::string& prefix,
                        const std::string& suffix, std::string& targetDir) {
    auto occurrences = assemblyDocument.ComponentDefinition()->Occurrences();
    for (std::int32_t i = 1; i <= occurrences->Count(); ++i) {
        auto occurrence = occurrences->Item(i);
        SaveAndReplaceOccurrence(state, *occurrence, prefix, suffix, targetDir);
        // The definition is the copy now: its children are replaced inside it.
        if (IsSubAssembly(*occurrence))
            RecurseOccurrences(state, *occurrence->Definition()->Document(), prefix, suffix, targetDir);
    }
}

void PackDocument(addin::AddinState& state, host::Document& document, std::string targetDir) {
    auto& dialog = state.Dialog<frmPacknLink>();
    dialog.ShowStatus("Packing: " + document.FullFileName());
    if (state.packStop) return;

    auto source = SplitPath(document.FullFileName());
    EnsureTrailingBackslash(targetDir);
    if (targetDir == source.directory) {
        state.platform.MsgBox("Source and Destination directories cannot be the same");
        state.packStop = true;
        return;
    }

    // Any failure from here on, however deep in the walk, ends the whole pack. What was
    // copied and replaced so far stays; the opened copy is left as it is, unsaved.
    auto& app = state.App();
    try {
        std::string newName = targetDir + source.fileName;
        if (dialog.DiskToDisk())
            app.FileManager()->CopyFile(document.FullFileName(), newName, host::kOverwriteExistingFile);
        else
            document.SaveAs(newName, true);
        auto copy = app.Documents()->Open(newName, false);
        copy->SetDisplayName("");
        PackOccurrences(state, *copy, targetDir);
        app.SetSilentOperation(true);
        copy->Save();
        app.SetSilentOperation(false);
        copy->Close(false);
    } catch (const support::Error&) {
        state.platform.MsgBox("Stopping Pack N Link");
    }
}

void PackOccurrences(addin::AddinState& state, host::Document& assemblyDocument, std::string& targetDir) {
    auto occurrences = assemblyDocument.ComponentDefinition()->Occurrences();
    for (std::int32_t i = 1; i <= occurrences->Count(); ++i) {
        auto occurrence = occurrences->Item(i);
        PackOccurrence(state, *occurrence, targetDir);
        if (IsSubAssembly(*occurrence))
            PackOccurrences(state, *occurrence->Definition()->Document(), targetDir);
    }
}

void PackOccurrence(addin::AddinState& state, host::ComponentOccurrence& occurrence, std::string& targetDir) {
    auto document = occurrence.Definition()->Document();
    std::string source = document->FullFileName();
    EnsureTrailingBackslash(targetDir);
    auto parts = SplitPath(source);
    // An occurrence that points into the target already was packed with an earlier one.
    if (targetDir == parts.directory) return;

    std::string newName = targetDir + parts.fileName;
    auto& dialog = state.Dialog<frmPacknLink>();
    if (dialog.DiskToDisk()) {
        state.App().FileManager()->CopyFile(source, newName, host::kOverwriteExistingFile);
    } else {
        dialog.ShowStatus("Saving: " + newName);
        document->SaveAs(newName, true);
    }
    occurrence.Replace(newName, true);
    occurrence.Definition()->Document()->SetDisplayName("");
}

}  // namespace copy
