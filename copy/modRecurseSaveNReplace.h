#pragma once
#include <string>

#include "copy/paths/Paths.h"

namespace addin {
class AddinState;
}
namespace host {
class Document;
class ComponentOccurrence;
}  // namespace host

// The save-and-replace engine: walks an assembly's occurrences depth-first, saves a
// copy of each referenced file and points the occurrence at it. Two traversals: the
// renaming one (new name from prefix and suffix, driven by the clone dialog) and the
// packing one (same name, new folder, driven by the Pack-N-Link dialog). Progress goes
// to the Status label of the driving dialog, followed by a yield to the message loop.
namespace copy {

// targetDir & prefix & base & suffix & extension, where the extension is the last four
// characters of the file name, taken blindly. A prefix the base already starts with, or
// a suffix it already ends with, is not added again. targetDir comes back ending in "\".
// A file name shorter than four characters fails with an invalid-call error.
std::string FormCopyName(const std::string& fullFileName, const std::string& prefix,
                         const std::string& suffix, std::string& targetDir);

// Saves a copy of the occurrence's file under its new name unless a file of that name
// exists already (so a part placed many times is copied once), then points this one
// occurrence at the copy and gives it back its default browser name. Host failures of
// the save and the replace go to the caller.
void SaveAndReplaceOccurrence(addin::AddinState& state, host::ComponentOccurrence& occurrence,
                              const std::string& prefix, const std::string& suffix, std::string& targetDir);

// SaveAndReplaceOccurrence on every occurrence in collection order, descending into each
// sub-assembly (once per occurrence) after it has been replaced, so that its children are
// replaced inside the copy. Nothing is saved here: the caller saves the top document.
void RecurseOccurrences(addin::AddinState& state, host::Document& assemblyDocument, const std::string& prefix,
                        const std::string& suffix, std::string& targetDir);

// Packs a document and everything it references into targetDir under the same names,
// from memory or disk to disk as the Pack-N-Link dialog says, then saves and closes the
// top copy. Refuses a target equal to the document's own folder (compared exactly) and
// sets the stop flag; any failure after that ends the pack with "Stopping Pack N Link",
// leaving the copies made so far.
void PackDocument(addin::AddinState& state, host::Document& document, std::string targetDir);
void PackOccurrences(addin::AddinState& state, host::Document& assemblyDocument, std::string& targetDir);
// Copies the occurrence's file into targetDir unless it lies there already, and points
// every occurrence of that file in the same parent at the copy.
void PackOccurrence(addin::AddinState& state, host::ComponentOccurrence& occurrence, std::string& targetDir);

}  // namespace copy
