#include "copy/engine/RenamingWalk.h"

#include "copy/paths/Paths.h"
#include "host/Component.h"
#include "host/Document.h"
#include "support/Error.h"
#include "support/Text.h"
#include "ui/Platform.h"

namespace copy {

std::string FormCopyName(const std::string& fullFileName, const std::string& prefix,
                         const std::string& suffix, const std::string& targetDir) {
    std::string fileName = paths::SplitPath(fullFileName).fileName;
    long length = static_cast<long>(fileName.size());
    std::string extension = support::Right(fileName, 4);
    std::string base = support::Left(fileName, length - 4);

    std::string prefixUsed = prefix;
    std::string suffixUsed = suffix;
    if (!prefix.empty() && support::Left(base, static_cast<long>(prefix.size())) == prefix)
        prefixUsed.clear();
    if (!suffix.empty() && support::Right(base, static_cast<long>(suffix.size())) == suffix)
        suffixUsed.clear();
    return paths::WithTrailingBackslash(targetDir) + prefixUsed + base + suffixUsed + extension;
}

void SaveAndReplaceOccurrence(const WalkContext& context, host::ComponentOccurrence& occurrence,
                              const std::string& prefix, const std::string& suffix,
                              const std::string& targetDir) {
    auto document = occurrence.Definition()->Document();
    std::string newName = FormCopyName(document->FullFileName(), prefix, suffix, targetDir);

    if (!paths::FileFound(context.fileSystem, newName)) {
        context.progress.ShowStatus("Saving: " + newName);
        document->SaveAs(newName, true);
    }
    if (document->FullFileName() != newName) {
        context.progress.ShowStatus("Replacing: " + newName + " In: " + occurrence.Name());
        occurrence.Replace(newName, false);
        context.platform.DoEvents();
        occurrence.Definition()->Document()->SetDisplayName("");
    }
    // The browser name goes back to the host's default, derived from the new file; a
    // host that refuses keeps the old name, which is harmless.
    try {
        occurrence.SetName("");
    } catch (const support::Error&) {
    }
}

void RecurseOccurrences(const WalkContext& context, host::Document& assemblyDocument,
                        const std::string& prefix, const std::string& suffix, const std::string& targetDir) {
    auto occurrences = assemblyDocument.ComponentDefinition()->Occurrences();
    for (std::int32_t i = 1; i <= occurrences->Count(); ++i) {
        auto occurrence = occurrences->Item(i);
        SaveAndReplaceOccurrence(context, *occurrence, prefix, suffix, targetDir);
        // The definition is the copy now: its children are replaced inside it.
        if (occurrence->Definition()->Occurrences()->Count() >= 1)
            RecurseOccurrences(context, *occurrence->Definition()->Document(), prefix, suffix, targetDir);
    }
}

}  // namespace copy
