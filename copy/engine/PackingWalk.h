#pragma once
#include <memory>
#include <string>

#include "copy/engine/WalkContext.h"

namespace host {
class Document;
class ComponentOccurrence;
class ComponentDefinition;
}  // namespace host

// The packing half of the save-and-replace engine (modRecurseSaveNReplace), driven by
// the Pack-N-Link dialog: copies a document and everything it references into one
// folder under the same names and points every reference at the copies.
namespace copy {

// Where the copies come from.
enum class PackSource {
    Memory,  // saved from the open documents: unsaved edits go into the copies
    Disk,    // copied file by file as they lie on disk
};

// Packs a document and its tree into targetDir, then saves and closes the top copy.
// Does nothing while stopFlag is set. Refuses a target equal to the document's own
// folder (compared exactly) and sets stopFlag; any failure after that ends the pack
// with "Stopping Pack N Link", leaving the copies made so far.
void PackDocument(const WalkContext& context, host::Document& document, const std::string& targetDir,
                  PackSource source, bool& stopFlag);
void PackOccurrences(const WalkContext& context, host::Document& assemblyDocument,
                     const std::string& targetDir, PackSource source);
// Copies the occurrence's file into targetDir unless it lies there already, and points
// every occurrence of that file in the same parent at the copy. Returns the occurrence's
// definition as the step leaves it (the copy's once replaced).
std::shared_ptr<host::ComponentDefinition> PackOccurrence(const WalkContext& context,
                                                          host::ComponentOccurrence& occurrence,
                                                          const std::string& targetDir, PackSource source);

}  // namespace copy
