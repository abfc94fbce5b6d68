#pragma once
#include <memory>
#include <string>

#include "copy/engine/WalkContext.h"

namespace host {
class Document;
class ComponentOccurrence;
class ComponentDefinition;
}  // namespace host

// The renaming half of the save-and-replace engine (modRecurseSaveNReplace), driven by
// the clone dialog: walks an assembly's occurrences depth-first, saves a copy of each
// referenced file under a new name made of target folder, prefix, base name and
// suffix, and points the occurrence at the copy.
namespace copy {

// targetDir & prefix & base & suffix & extension, where the extension is the last four
// characters of the file name, taken blindly, and targetDir gets a "\" when it has
// none. A prefix the base already starts with, or a suffix it already ends with, is not
// added again. A file name shorter than four characters fails with an invalid-call error.
std::string FormCopyName(const std::string& fullFileName, const std::string& prefix,
                         const std::string& suffix, const std::string& targetDir);

// Saves a copy of the occurrence's file under its new name unless a file of that name
// exists already (so a part placed many times is copied once), then points this one
// occurrence at the copy and gives it back its default browser name. Host failures of
// the save and the replace go to the caller. Returns the occurrence's definition as the
// step leaves it (the copy's once replaced), so that the walk need not ask the host again.
std::shared_ptr<host::ComponentDefinition> SaveAndReplaceOccurrence(const WalkContext& context,
                                                                    host::ComponentOccurrence& occurrence,
                                                                    const std::string& prefix,
                                                                    const std::string& suffix,
                                                                    const std::string& targetDir);

// SaveAndReplaceOccurrence on every occurrence in collection order, descending into each
// sub-assembly (once per occurrence) after it has been replaced, so that its children are
// replaced inside the copy. Nothing is saved here: the caller saves the top document.
void RecurseOccurrences(const WalkContext& context, host::Document& assemblyDocument,
                        const std::string& prefix, const std::string& suffix, const std::string& targetDir);

}  // namespace copy
