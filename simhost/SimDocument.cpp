#include "simhost/SimDocument.h"

#include <algorithm>
#include <unordered_set>

#include "simhost/HostCalls.h"
#include "simhost/HostNames.h"
#include "simhost/SimComponent.h"
#include "simhost/SimDrawing.h"
#include "simhost/SimProperties.h"
#include "simhost/SimState.h"
#include "simhost/SimStyles.h"
#include "simhost/SimUnitsOfMeasure.h"
#include "simhost/WinPath.h"
#include "support/Error.h"
#include "support/Text.h"

using support::Error;
namespace errors = support::errors;

namespace simhost {

namespace {

// Moves out every document this data holds.
void TakeReferences(DocData& data, std::vector<SimDocumentPtr>& out) {
    for (auto& occ : data.occurrences)
        if (occ.ref.doc) out.push_back(std::move(occ.ref.doc));
    for (auto& model : data.models)
        if (model.doc) out.push_back(std::move(model.doc));
}

}  // namespace

// The documents only this one held go with it, each emptied of its own references before
// it goes: releasing an assembly nested thousands of levels deep would otherwise run one
// destructor inside the other, level by level.
SimDocument::~SimDocument() {
    std::vector<SimDocumentPtr> orphans;
    TakeReferences(data_, orphans);
    while (!orphans.empty()) {
        SimDocumentPtr doc = std::move(orphans.back());
        orphans.pop_back();
        if (doc.use_count() == 1) TakeReferences(doc->data_, orphans);
    }
}

SimDocument::SimDocument(SimState& state, std::string fullFileName, DocData data)
    : state_(state), fullFileName_(std::move(fullFileName)), data_(std::move(data)) {}

DocData& SimDocument::Edit() {
    CheckLoaded();
    state_.transactions.Record(*this);
    dirty_ = true;
    return data_;
}

void SimDocument::Restore(DocData data, bool dirty) {
    std::vector<SimDocumentPtr> before;
    for (const auto& occ : data_.occurrences) before.push_back(occ.ref.doc);
    for (const auto& model : data_.models) before.push_back(model.doc);
    data_ = std::move(data);
    dirty_ = dirty;
    indexStale_ = true;
    takenBelow_.clear();
    PropertiesMoved();
    if (!session.loaded) return;
    auto adopt = [&](FileRef& ref) {
        ref.doc = state_.documents.Adopt(ref.doc);
        state_.documents.AddReferrer(ref.doc);
    };
    for (auto& occ : data_.occurrences) adopt(occ.ref);
    for (auto& model : data_.models) adopt(model);
    for (const auto& doc : before) state_.documents.DropReferrer(doc);
}

void SimDocument::MarkSaved(std::int32_t savedBy, std::int32_t thumbnail) {
    data_.savedBy = savedBy;
    data_.thumbnail = thumbnail;
    dirty_ = false;
}

std::string SimDocument::BaseNameForOccurrences() const {
    return fullFileName_.empty() ? session.untitledName : winpath::BaseName(fullFileName_);
}

void SimDocument::CheckLoaded() const {
    if (!session.loaded) throw Error(errors::kFail, DisplayName() + " is closed");
}

void SimDocument::RequirePart(const char* member) const {
    if (data_.kind != DocKind::Part)
        throw Error(errors::kFail, std::string(member) + " is only available on a part; " + DisplayName() +
                                       " is a " + KindName(data_.kind));
}

void SimDocument::RequireAssembly(const char* member) const {
    if (data_.kind != DocKind::Assembly)
        throw Error(errors::kFail, std::string(member) + " is only available on an assembly; " +
                                       DisplayName() + " is a " + KindName(data_.kind));
}

PropertyIndex& SimDocument::PropertiesOf(std::size_t set) const {
    if (propertyIndex_.size() != data_.propertySets.size())
        propertyIndex_.assign(data_.propertySets.size(), {});
    return propertyIndex_.at(set);
}

// --- occurrences

void SimDocument::Reindex() const {
    byUid_.clear();
    byName_.clear();
    for (std::size_t i = 0; i < data_.occurrences.size(); ++i) {
        byUid_[data_.occurrences[i].uid] = i;
        byName_[data_.occurrences[i].name] = data_.occurrences[i].uid;
    }
    indexStale_ = false;
}

const OccurrenceData* SimDocument::FindOccurrence(std::int64_t uid) const {
    if (indexStale_) Reindex();
    auto it = byUid_.find(uid);
    return it == byUid_.end() ? nullptr : &data_.occurrences[it->second];
}

const OccurrenceData* SimDocument::FindOccurrenceByName(const std::string& name) const {
    if (indexStale_) Reindex();
    auto it = byName_.find(name);
    return it == byName_.end() ? nullptr : FindOccurrence(it->second);
}

const OccurrenceData& SimDocument::Occurrence(std::int64_t uid) const {
    const OccurrenceData* occ = FindOccurrence(uid);
    if (!occ) throw Error(errors::kFail, "The occurrence no longer exists in " + DisplayName());
    return *occ;
}

OccurrenceData& SimDocument::MutableOccurrence(std::int64_t uid) {
    Occurrence(uid);
    Edit();
    return data_.occurrences[byUid_.at(uid)];
}

namespace {
// n for a name "base:n", else 0.
long DefaultNumber(const std::string& name, std::string_view base) {
    if (name.size() <= base.size() + 1 || name.size() > base.size() + 10 ||
        name.compare(0, base.size(), base) != 0 || name[base.size()] != ':')
        return 0;
    long n = 0;
    for (std::size_t i = base.size() + 1; i < name.size(); ++i) {
        if (name[i] < '0' || name[i] > '9') return 0;
        n = n * 10 + (name[i] - '0');
    }
    return n;
}
}  // namespace

// The smallest "base:n" that no occurrence but `exceptUid` holds.
std::string SimDocument::FreeDefaultName(const std::string& base, std::int64_t exceptUid) const {
    long& n = takenBelow_.try_emplace(base, 1).first->second;
    if (const OccurrenceData* own = exceptUid ? FindOccurrence(exceptUid) : nullptr)
        if (long m = DefaultNumber(own->name, base); m > 0 && m < n) return own->name;
    for (;; ++n) {
        std::string candidate = base + ":" + std::to_string(n);
        const OccurrenceData* holder = FindOccurrenceByName(candidate);
        if (!holder || holder->uid == exceptUid) return candidate;
    }
}

// The name is free again; a default name lowers its base's mark.
void SimDocument::ReleaseName(const std::string& name) {
    byName_.erase(name);
    auto colon = name.rfind(':');
    if (colon == std::string::npos) return;
    auto mark = takenBelow_.find(name.substr(0, colon));
    if (mark == takenBelow_.end()) return;
    if (long n = DefaultNumber(name, mark->first); n > 0 && n < mark->second) mark->second = n;
}

bool SimDocument::IsDefaultName(const OccurrenceData& occ) const {
    std::string base = occ.ref.doc->BaseNameForOccurrences() + ":";
    if (occ.name.size() <= base.size() || occ.name.compare(0, base.size(), base) != 0) return false;
    return std::all_of(occ.name.begin() + static_cast<long>(base.size()), occ.name.end(),
                       [](char c) { return c >= '0' && c <= '9'; });
}

void SimDocument::NameUnnamedOccurrences() {
    Reindex();
    for (auto& occ : data_.occurrences) {
        if (!occ.name.empty()) continue;
        occ.name = FreeDefaultName(occ.ref.doc->BaseNameForOccurrences(), occ.uid);
        byName_[occ.name] = occ.uid;
    }
    indexStale_ = true;  // the unnamed ones were indexed under ""
}

bool SimDocument::IsReferencedBy(const SimDocument& target) const {
    std::unordered_set<const SimDocument*> seen;
    std::vector<const SimDocument*> todo{&target};
    while (!todo.empty()) {
        const SimDocument* d = todo.back();
        todo.pop_back();
        if (d == this) return true;
        if (!seen.insert(d).second) continue;
        for (const auto& occ : d->data_.occurrences) todo.push_back(occ.ref.doc.get());
    }
    return false;
}

std::int64_t SimDocument::AddOccurrence(const SimDocumentPtr& target, const host::Matrix& position) {
    RequireAssembly("Occurrences.Add");
    if (target->data_.kind != DocKind::Part && target->data_.kind != DocKind::Assembly)
        throw Error(errors::kInvalidArg,
                    "Only parts and assemblies can be placed: " + target->FullFileName());
    if (IsReferencedBy(*target))
        throw Error(errors::kInvalidArg, target->FullFileName() + " cannot be placed in itself");
    OccurrenceData occ;
    occ.name = FreeDefaultName(target->BaseNameForOccurrences(), 0);
    occ.ref = FileRef{target->FullFileName(), target};
    occ.transform = position;
    DocData& data = Edit();
    occ.uid = data.nextUid++;
    data.occurrences.push_back(occ);
    if (!indexStale_) {
        byUid_[occ.uid] = data.occurrences.size() - 1;
        byName_[occ.name] = occ.uid;
    }
    state_.documents.AddReferrer(target);
    return occ.uid;
}

void SimDocument::RemoveOccurrence(std::int64_t uid) {
    Occurrence(uid);
    std::size_t index = byUid_.at(uid);
    DocData& data = Edit();
    SimDocumentPtr target = data.occurrences[index].ref.doc;
    ReleaseName(data.occurrences[index].name);
    data.occurrences.erase(data.occurrences.begin() + static_cast<long>(index));
    indexStale_ = true;
    state_.documents.DropReferrer(target);
}

void SimDocument::RenameOccurrence(std::int64_t uid, const std::string& name) {
    RequireStorable(name);
    const OccurrenceData& occ = Occurrence(uid);
    std::string wanted = name.empty() ? FreeDefaultName(occ.ref.doc->BaseNameForOccurrences(), uid) : name;
    if (wanted == occ.name) return;
    if (FindOccurrenceByName(wanted))
        throw Error(errors::kInvalidArg, "The name \"" + wanted + "\" is already used in " + DisplayName());
    OccurrenceData& target = MutableOccurrence(uid);
    ReleaseName(target.name);
    byName_[wanted] = uid;
    target.name = wanted;
}

// Occurrences that carried their file's default name take the new file's default name;
// names someone gave keep.
void SimDocument::ReplaceOccurrence(std::int64_t uid, const SimDocumentPtr& target, bool replaceAll) {
    RequireAssembly("Replace");
    SimDocumentPtr old = Occurrence(uid).ref.doc;
    if (target == old) return;
    if (target->data_.kind != DocKind::Part && target->data_.kind != DocKind::Assembly)
        throw Error(errors::kInvalidArg,
                    "Only parts and assemblies can be placed: " + target->FullFileName());
    if (IsReferencedBy(*target))
        throw Error(errors::kInvalidArg, target->FullFileName() + " cannot be placed in itself");
    std::vector<std::int64_t> uids;
    if (replaceAll) {
        for (const auto& occ : data_.occurrences)
            if (occ.ref.doc == old) uids.push_back(occ.uid);
    } else {
        uids.push_back(uid);
    }
    Edit();
    for (std::int64_t u : uids) {
        OccurrenceData& occ = data_.occurrences[byUid_.at(u)];
        bool defaultNamed = IsDefaultName(occ);
        occ.ref = FileRef{target->FullFileName(), target};
        state_.documents.AddReferrer(target);
        if (defaultNamed) {
            ReleaseName(occ.name);
            std::string name = FreeDefaultName(target->BaseNameForOccurrences(), u);
            byName_[name] = u;
            occ.name = name;
        }
    }
    for (std::size_t i = 0; i < uids.size(); ++i) state_.documents.DropReferrer(old);
}

void SimDocument::SetOccurrenceVisible(std::int64_t uid, bool visible) {
    if (Occurrence(uid).visible != visible) MutableOccurrence(uid).visible = visible;
}

void SimDocument::SetOccurrenceGrounded(std::int64_t uid, bool grounded) {
    if (Occurrence(uid).grounded != grounded) MutableOccurrence(uid).grounded = grounded;
}

std::shared_ptr<SimOccurrence> SimDocument::OccurrenceHandle(const std::vector<std::int64_t>& path) {
    std::string key(reinterpret_cast<const char*>(path.data()), path.size() * sizeof(std::int64_t));
    if (auto alive = handles_[key].lock()) return alive;
    auto handle = std::make_shared<SimOccurrence>(shared_from_this(), path);
    handles_[key] = handle;
    if (handles_.size() > handlesPruneAt_) {
        std::erase_if(handles_, [](const auto& entry) { return entry.second.expired(); });
        handlesPruneAt_ = std::max<std::size_t>(256, handles_.size() * 2);
    }
    return handle;
}

std::shared_ptr<SimComponentDefinition> SimDocument::Definition() {
    if (auto alive = definition_.lock()) return alive;
    auto def = std::make_shared<SimComponentDefinition>(shared_from_this());
    definition_ = def;
    return def;
}

// --- host::Document

std::int32_t SimDocument::Type() const {
    SIM_HOST_CALL("Document.Type");
    switch (data_.kind) {
        case DocKind::Part:
            return host::kPartDocumentObjectType;
        case DocKind::Assembly:
            return host::kAssemblyDocumentObjectType;
        case DocKind::Drawing:
            return host::kDrawingDocumentObjectType;
        case DocKind::Presentation:
            return host::kPresentationDocumentObjectType;
    }
    return 0;
}

std::string SimDocument::DisplayName() const {
    SIM_HOST_CALL("Document.DisplayName");
    if (!data_.displayName.empty()) return data_.displayName;
    return fullFileName_.empty() ? session.untitledName : winpath::FileNamePart(fullFileName_);
}

void SimDocument::SetDisplayName(const std::string& name) {
    SIM_HOST_CALL("Document.SetDisplayName");
    RequireStorable(name);
    if (name != data_.displayName) Edit().displayName = name;
}

void SimDocument::SaveAs(const std::string& fullFileName, bool saveCopyAs) {
    SIM_HOST_CALL("Document.SaveAs");
    state_.documents.SaveAs(*this, fullFileName, saveCopyAs);
}

void SimDocument::Save() {
    SIM_HOST_CALL("Document.Save");
    state_.documents.Save(*this);
}

void SimDocument::Close(bool skipSave) {
    SIM_HOST_CALL("Document.Close");
    state_.documents.Close(*this, skipSave);
}

bool SimDocument::IsModifiable() const {
    SIM_HOST_CALL("Document.IsModifiable");
    return data_.modifiable && !NeedsMigrating();
}

bool SimDocument::NeedsMigrating() const {
    SIM_HOST_CALL("Document.NeedsMigrating");
    return data_.savedBy < state_.softwareVersion;
}

bool SimDocument::ReservedForWrite() const {
    SIM_HOST_CALL("Document.ReservedForWrite");
    return !data_.reservedBy.empty() && data_.reservedBy != state_.userName;
}

std::string SimDocument::ReservedForWriteName() const {
    SIM_HOST_CALL("Document.ReservedForWriteName");
    return ReservedForWrite() ? data_.reservedBy : "";
}

void SimDocument::SetDisabledCommandTypes(std::int32_t types) {
    SIM_HOST_CALL("Document.SetDisabledCommandTypes");
    if (types != data_.disabledCommandTypes) Edit().disabledCommandTypes = types;
}

std::shared_ptr<host::PropertySets> SimDocument::PropertySets() {
    SIM_HOST_CALL("Document.PropertySets");
    return std::make_shared<SimPropertySets>(shared_from_this());
}

std::shared_ptr<host::UnitsOfMeasure> SimDocument::UnitsOfMeasure() {
    SIM_HOST_CALL("Document.UnitsOfMeasure");
    return std::make_shared<SimUnitsOfMeasure>(shared_from_this());
}

std::shared_ptr<host::ComponentDefinition> SimDocument::ComponentDefinition() {
    SIM_HOST_CALL("Document.ComponentDefinition");
    if (data_.kind != DocKind::Part && data_.kind != DocKind::Assembly)
        throw Error(errors::kFail, "A " + std::string(KindName(data_.kind)) +
                                       " has no component definition: " + DisplayName());
    return Definition();
}

std::vector<host::DocumentPtr> SimDocument::ReferencedDocuments() {
    SIM_HOST_CALL("Document.ReferencedDocuments");
    std::vector<host::DocumentPtr> out;
    std::unordered_set<const SimDocument*> seen;
    auto add = [&](const FileRef& ref) {
        if (seen.insert(ref.doc.get()).second) out.push_back(ref.doc);
    };
    for (const auto& occ : data_.occurrences) add(occ.ref);
    for (const auto& model : data_.models) add(model);
    return out;
}

std::string SimDocument::Thumbnail() const {
    SIM_HOST_CALL("Document.Thumbnail");
    const char* name = data_.thumbnail ? names::Orientation(data_.thumbnail) : nullptr;
    return name ? name : "";
}

std::shared_ptr<host::Materials> SimDocument::Materials() {
    SIM_HOST_CALL("Document.Materials");
    RequirePart("Materials");
    return std::make_shared<SimMaterials>(shared_from_this());
}

// Parts and assemblies keep render styles; an assembly's are never in use here.
std::shared_ptr<host::RenderStyles> SimDocument::RenderStyles() {
    SIM_HOST_CALL("Document.RenderStyles");
    if (data_.kind != DocKind::Part && data_.kind != DocKind::Assembly)
        throw Error(errors::kFail, std::string("RenderStyles is only available on a part or an assembly; ") +
                                       DisplayName() + " is a " + KindName(data_.kind));
    return std::make_shared<SimRenderStyles>(shared_from_this());
}

void SimDocument::SetActiveRenderStyle(const std::shared_ptr<host::RenderStyle>& style) {
    SIM_HOST_CALL("Document.SetActiveRenderStyle");
    RequirePart("ActiveRenderStyle");
    std::string name = support::Required(style, "render style")->Name();
    if (!styles::FindRenderStyle(data_, name))
        throw Error(errors::kInvalidArg, "The render style \"" + name + "\" is not in " + DisplayName());
    if (data_.renderStyle != name) Edit().renderStyle = name;
}

std::shared_ptr<host::Material> SimDocument::ActiveMaterial() {
    SIM_HOST_CALL("Document.ActiveMaterial");
    RequirePart("ActiveMaterial");
    if (data_.material.empty()) throw Error(errors::kFail, DisplayName() + " has no material");
    if (!styles::FindMaterial(data_, data_.material))
        throw Error(errors::kFail,
                    DisplayName() + ": the material \"" + data_.material + "\" is not defined in it");
    return std::make_shared<SimMaterial>(shared_from_this(), data_.material);
}

std::shared_ptr<host::RenderStyle> SimDocument::ActiveRenderStyle() {
    SIM_HOST_CALL("Document.ActiveRenderStyle");
    RequirePart("ActiveRenderStyle");
    std::string name = styles::ActiveRenderStyleName(data_);
    if (name.empty()) throw Error(errors::kFail, DisplayName() + " has no render style");
    if (!styles::FindRenderStyle(data_, name))
        throw Error(errors::kFail,
                    DisplayName() + ": the render style \"" + name + "\" is not defined in it");
    return std::make_shared<SimRenderStyle>(shared_from_this(), name);
}

std::shared_ptr<host::DrawingSettings> SimDocument::DrawingSettings() {
    SIM_HOST_CALL("Document.DrawingSettings");
    RequireDrawing("DrawingSettings");
    return std::make_shared<SimDrawingSettings>(shared_from_this());
}

std::shared_ptr<host::Collection<host::TitleBlockDefinition>> SimDocument::TitleBlockDefinitions() {
    SIM_HOST_CALL("Document.TitleBlockDefinitions");
    RequireDrawing("TitleBlockDefinitions");
    return std::make_shared<SimTitleBlockDefinitions>(shared_from_this());
}

void SimDocument::RequireDrawing(const char* member) const {
    if (data_.kind != DocKind::Drawing)
        throw Error(errors::kFail, std::string(member) + " is only available on a drawing; " + DisplayName() +
                                       " is a " + KindName(data_.kind));
}

void SimDocument::RequireStorable(std::string_view text) const {
    if (support::IsUtf8(text)) return;
    std::string name = fullFileName_.empty() ? DisplayName() : fullFileName_;
    throw Error(errors::kInvalidArg, name + ": the text is not UTF-8, so the file cannot hold it");
}

void SimDocument::RequireStorableValue(const support::Variant& value) const {
    if (const auto* text = value.As<std::string>()) RequireStorable(*text);
}

std::string SimDocument::FullFileName() const {
    SIM_HOST_CALL("Document.FullFileName");
    return fullFileName_;
}

std::int32_t SimDocument::DocumentType() const {
    SIM_HOST_CALL("Document.DocumentType");
    return DocumentTypeOf(data_.kind);
}

bool SimDocument::Dirty() const {
    SIM_HOST_CALL("Document.Dirty");
    return dirty_;
}

void SimDocument::SetDirty(bool dirty) {
    SIM_HOST_CALL("Document.SetDirty");
    dirty_ = dirty;
}

std::int32_t SimDocument::DisabledCommandTypes() const {
    SIM_HOST_CALL("Document.DisabledCommandTypes");
    return data_.disabledCommandTypes;
}

std::int32_t SimDocument::SoftwareVersionSaved() const {
    SIM_HOST_CALL("Document.SoftwareVersionSaved");
    return data_.savedBy;
}

}  // namespace simhost
