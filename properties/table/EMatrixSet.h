#pragma once

namespace host {
class Document;
}

namespace properties {

// Writes the document's "eMatrix" property set back under the internal identifier the
// eMatrix attributes expect, with every property's name, value and identifier unchanged
// and in their order. A document without the set is left as it is: a set made up from
// nothing would be a set the user never had. A property the host refuses is skipped;
// the others are written.
void RebuildEMatrixSet(host::Document& document);

}  // namespace properties
