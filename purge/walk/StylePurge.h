#pragma once
#include <cstdint>

namespace host {
class Document;
}

namespace purge {

// Writes the document's "eMatrix" property set back under the internal identifier the
// eMatrix attributes expect, with every property's name, value and identifier unchanged.
// A document without the set is left as it is: a set made up from nothing would be a
// set the user never had. A property the host refuses is skipped; the others go on.
void RebuildEMatrix(host::Document& document);

// Deletes the materials, then the render styles, that sit in the document itself
// (locally or both locally and in the library) and are not in use. Materials are looked
// at in parts, and in other documents from release 9 on, where the host keeps them there.
void PurgeStyles(host::Document& document, std::int32_t hostVersion);

}  // namespace purge
