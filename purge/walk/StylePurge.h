#pragma once
#include <cstdint>

namespace host {
class Document;
}

namespace purge {

// Deletes the materials, then the render styles, that sit in the document itself
// (locally or both locally and in the library) and are not in use. Materials are looked
// at in parts, and in other documents from release 9 on, where the host keeps them there.
void PurgeStyles(host::Document& document, std::int32_t hostVersion);

}  // namespace purge
