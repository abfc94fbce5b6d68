#pragma once
#include <memory>
#include <vector>

#include "copy/engine/clsFileTrans.h"

namespace host {
class Application;
class ComponentOccurrences;
class Document;
}  // namespace host

// "Assy From Vis": a flat, light copy of an assembly. Every visible part occurrence, at
// any depth, is placed in a new assembly made from the standard template, grounded at
// its top-level position; the sub-assembly structure is dropped.
namespace copy::modBuildAssembly {

// Appends a record for each visible part under these occurrences, descending into
// sub-assemblies through their proxies so that placements are top-level ones. An
// occurrence whose document cannot be read (an unresolved file) is left out.
void Collect(host::ComponentOccurrences& occurrences, std::vector<clsFileTrans>& records);

// Builds the new assembly (made visible, so it becomes the active document) from the
// top assembly's occurrences and returns it, unsaved and unnamed.
std::shared_ptr<host::Document> Build(host::Application& app, host::ComponentOccurrences& occurrences);

}  // namespace copy::modBuildAssembly
