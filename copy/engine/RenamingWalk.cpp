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

std::shared_ptr<host::ComponentDefinition> SaveAndReplaceOccurrence(const WalkContext& context,
                                                                    host::ComponentOccurrence& occurrence,
                                                                    const std::string& prefix,
                                                                    const std::string& suffix,
                                                                    const std::string& targetDir) {
    auto definition = occurrence.Definition();
    auto document = definition->Document();
    const std::string source = document->FullFileName();  // saving a copy leaves it as it is
    std::string newName = FormCopyName(source, prefix, suffix, targetDir);

    if (!paths::FileFound(context.fileSystem, newName)) {
        context.progress.ShowStatus("Saving: " + newName);
        document->SaveAs(newName, true);
    }
    if (source != newName) {
        context.progress.ShowStatus("Replacing: " + newName + " In: " + occurrence.Name());
        occurrence.Replace(newName, false);
        context.platform.DoEvents();
        definition = occurrence.Definition();
        definition->Document()->SetDisplayName("");
    }
    // The browser name goes back to the host's default, derived from the new file; a
    // host that refuses keeps the old name, which is harmless.
    try {
        occurrence.SetName("");
    } catch (const support::Error&) {
    }
    return definition;
}

void RecurseOccurrences(const WalkContext& context, host::Document& assemblyDocument,
                        const std::string& prefix, const std::string& suffix, const std::string& targetDir) {
    auto occurrences = assemblyDocument.ComponentDefinition()->Occurrences();
    const std::int32_t count = occurrences->Count();  // the walk adds and removes none
    for (std::int32_t i = 1; i <= count; ++i) {
        auto occurrence = occurrences->Item(i);
        auto definition = SaveAndReplaceOccurrence(context, *occurrence, prefix, suffix, targetDir);
        // The definition is the copy now: its children are replaced inside it.
        if (definition->Occurrences()->Count() >= 1)
            RecurseOccurrences(context, *definition->Document(), prefix, suffix, targetDir);
    }
}

}  // namespace copy
