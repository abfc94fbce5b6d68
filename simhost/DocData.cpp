#include "simhost/DocData.h"

#include "simhost/PropertyCatalog.h"
#include "simhost/SimDocument.h"

namespace simhost {

std::string FileRef::Name() const {
    return doc ? doc->FullFileName() : file;
}

DocData EmptyDocData(DocKind kind) {
    DocData data;
    data.kind = kind;
    for (const auto& set : catalog::StandardSets()) data.propertySets.push_back({set.name, set.formatId, {}});
    return data;
}

const char* KindName(DocKind kind) {
    switch (kind) {
        case DocKind::Part:
            return "part";
        case DocKind::Assembly:
            return "assembly";
        case DocKind::Drawing:
            return "drawing";
        case DocKind::Presentation:
            return "presentation";
    }
    return "?";
}

std::int32_t DocumentTypeOf(DocKind kind) {
    switch (kind) {
        case DocKind::Part:
            return host::kPartDocumentObject;
        case DocKind::Assembly:
            return host::kAssemblyDocumentObject;
        case DocKind::Drawing:
            return host::kDrawingDocumentObject;
        case DocKind::Presentation:
            return host::kPresentationDocumentObject;
    }
    return host::kUnknownDocumentObject;
}

const char* ExtensionOf(DocKind kind) {
    switch (kind) {
        case DocKind::Part:
            return ".ipt";
        case DocKind::Assembly:
            return ".iam";
        case DocKind::Drawing:
            return ".idw";
        case DocKind::Presentation:
            return ".ipn";
    }
    return "";
}

}  // namespace simhost
