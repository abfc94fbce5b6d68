#include "simhost/Describe.h"

#include "simhost/HostNames.h"
#include "simhost/PropertyCatalog.h"
#include "simhost/SimDocument.h"
#include "simhost/SimFormat.h"
#include "simhost/SimState.h"
#include "simhost/WinPath.h"
#include "support/Error.h"
#include "support/Text.h"

namespace simhost::describe {

namespace {

std::string Number(double d) {
    return support::NumberToText(d);
}

void Properties(const DocData& data, std::string& out) {
    if (data.kind == DocKind::Part && !data.material.empty())
        out += "Design Tracking Properties/Material: " + support::Variant(data.material).Describe() + "\n";
    for (std::size_t i = 0; i < data.propertySets.size(); ++i) {
        const StoredSet& set = data.propertySets[i];
        std::string setName =
            i < catalog::kStandardSetCount ? catalog::StandardSets()[i].displayName : set.name;
        for (const auto& p : set.properties) out += setName + "/" + p.name + ": " + p.value.Describe() + "\n";
    }
    for (const auto& set : data.attributeSets)
        for (const auto& a : set.attributes)
            out += "attribute " + set.name + "/" + a.name + ": " + a.value.Describe() + "\n";
}

std::string DocumentLines(const std::string& name, const DocData& data, const std::string& state,
                          const std::string& displayName) {
    std::string out = name + ": " + KindName(data.kind) + ", " + state + "\n";
    out += "display name: " + displayName + "\n";
    out += "saved by: " + std::to_string(data.savedBy);
    if (const char* view = data.thumbnail ? names::Orientation(data.thumbnail) : nullptr)
        out += ", thumbnail: " + std::string(view);
    out += "\n";
    if (data.disabledCommandTypes) out += "lock: " + std::to_string(data.disabledCommandTypes) + "\n";
    if (!data.reservedBy.empty()) out += "reserved by: " + data.reservedBy + "\n";
    if (!data.modifiable) out += "not modifiable\n";
    if (data.kind == DocKind::Part) {
        out += "material: " + (data.material.empty() ? std::string("(none)") : data.material) +
               ", volume: " + Number(data.volume) + " cm^3";
        if (!data.renderStyle.empty()) out += ", render style: " + data.renderStyle;
        out += "\n";
        if (!data.iPartFactory.empty()) out += "iPart factory: " + data.iPartFactory + "\n";
    }
    if (data.kind == DocKind::Assembly)
        out += "occurrences: " + std::to_string(data.occurrences.size()) + "\n";
    for (const auto& model : data.models) out += "model: " + model.Name() + "\n";
    Properties(data, out);
    return out;
}

void TreeLines(const SimDocument& doc, int depth, std::string& out) {
    for (const auto& occ : doc.Data().occurrences) {
        out += std::string(static_cast<std::size_t>(depth) * 2, ' ') + occ.name + " -> " + occ.ref.Name();
        if (!occ.visible) out += " hidden";
        if (occ.grounded) out += " grounded";
        out += "\n";
        TreeLines(*occ.ref.doc, depth + 1, out);
    }
}

}  // namespace

std::string Document(SimState& state, const std::string& fullFileName) {
    if (auto doc = state.documents.Find(fullFileName)) {
        std::string shown = doc->session.explicitOpen ? "open" : "referenced";
        if (state.documents.Active() == doc) shown = "active";
        if (doc->Dirty()) shown += ", dirty";
        return DocumentLines(doc->FullFileName(), doc->Data(), shown, doc->DisplayName());
    }
    std::string name = state.fileSystem.Canonical(fullFileName);
    DocData data = format::Read(state.fileSystem.ReadText(name), name);
    std::string display = data.displayName.empty() ? winpath::FileNamePart(name) : data.displayName;
    return DocumentLines(name, data, "on disk", display);
}

namespace {
// A document never saved has no file name; it is known by its display name ("Assembly1").
SimDocumentPtr NeverSaved(SimState& state, const std::string& displayName) {
    for (std::int32_t i = 1; i <= state.documents.Count(); ++i) {
        auto doc = state.documents.Item(i);
        if (doc->FullFileName().empty() && doc->DisplayName() == displayName) return doc;
    }
    return nullptr;
}
}  // namespace

std::string Tree(SimState& state, const std::string& fullFileName) {
    auto doc = NeverSaved(state, fullFileName);
    if (!doc) doc = state.documents.Find(fullFileName);
    if (!doc)
        throw support::Error(support::errors::kFail,
                             "Cannot describe the tree of " + fullFileName + ": it is not open");
    std::string out = (doc->FullFileName().empty() ? doc->DisplayName() : doc->FullFileName()) + "\n";
    TreeLines(*doc, 1, out);
    return out;
}

}  // namespace simhost::describe
