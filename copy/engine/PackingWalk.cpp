#include "copy/engine/PackingWalk.h"

#include "copy/paths/Paths.h"
#include "host/Application.h"
#include "host/Codes.h"
#include "host/Component.h"
#include "host/Document.h"
#include "support/Error.h"
#include "ui/Platform.h"

namespace copy {

void PackDocument(const WalkContext& context, host::Document& document, const std::string& targetDir,
                  PackSource source, bool& stopFlag) {
    context.progress.ShowStatus("Packing: " + document.FullFileName());
    if (stopFlag) return;

    auto from = paths::SplitPath(document.FullFileName());
    std::string target = paths::WithTrailingBackslash(targetDir);
    if (target == from.directory) {
        context.platform.MsgBox("Source and Destination directories cannot be the same");
        stopFlag = true;
        return;
    }

    // Any failure from here on, however deep in the walk, ends the whole pack. What was
    // copied and replaced so far stays; the opened copy is left as it is, unsaved, and a
    // failed save leaves silent mode on, as the pack never gets to turn it off.
    auto& app = context.app;
    try {
        std::string newName = target + from.fileName;
        if (source == PackSource::Disk)
            app.FileManager()->CopyFile(document.FullFileName(), newName, host::kOverwriteExistingFile);
        else
            document.SaveAs(newName, true);
        auto copy = app.Documents()->Open(newName, false);
        copy->SetDisplayName("");
        PackOccurrences(context, *copy, target, source);
        app.SetSilentOperation(true);
        copy->Save();
        app.SetSilentOperation(false);
        copy->Close(false);
    } catch (const support::Error&) {
        context.platform.MsgBox("Stopping Pack N Link");
    }
}

void PackOccurrences(const WalkContext& context, host::Document& assemblyDocument,
                     const std::string& targetDir, PackSource source) {
    auto occurrences = assemblyDocument.ComponentDefinition()->Occurrences();
    const std::int32_t count = occurrences->Count();  // the walk adds and removes none
    for (std::int32_t i = 1; i <= count; ++i) {
        auto occurrence = occurrences->Item(i);
        auto definition = PackOccurrence(context, *occurrence, targetDir, source);
        if (definition->Occurrences()->Count() >= 1)
            PackOccurrences(context, *definition->Document(), targetDir, source);
    }
}

std::shared_ptr<host::ComponentDefinition> PackOccurrence(const WalkContext& context,
                                                          host::ComponentOccurrence& occurrence,
                                                          const std::string& targetDir, PackSource source) {
    auto definition = occurrence.Definition();
    auto document = definition->Document();
    std::string from = document->FullFileName();
    std::string target = paths::WithTrailingBackslash(targetDir);
    auto parts = paths::SplitPath(from);
    // An occurrence that points into the target already was packed with an earlier one.
    if (target == parts.directory) return definition;

    std::string newName = target + parts.fileName;
    if (source == PackSource::Disk) {
        context.app.FileManager()->CopyFile(from, newName, host::kOverwriteExistingFile);
    } else {
        context.progress.ShowStatus("Saving: " + newName);
        document->SaveAs(newName, true);
    }
    occurrence.Replace(newName, true);
    definition = occurrence.Definition();
    definition->Document()->SetDisplayName("");
    return definition;
}

}  // namespace copy
