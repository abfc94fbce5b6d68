#include "simhost/SimComponent.h"

#include <unordered_map>

#include "simhost/HostCalls.h"
#include "simhost/SimAttributes.h"
#include "simhost/SimDocument.h"
#include "simhost/SimState.h"
#include "simhost/SimStyles.h"
#include "support/Error.h"

using support::Error;
namespace errors = support::errors;

namespace simhost {

namespace {

struct Weight {
    double kg = 0;
    double volume = 0;
};

class FixedMassProperties : public host::MassProperties {
public:
    explicit FixedMassProperties(Weight w) : w_(w) {}
    double Mass() const override { return w_.kg; }
    double Volume() const override { return w_.volume; }

private:
    Weight w_;
};

// Each document is weighed once however often it is placed.
Weight Weigh(const SimDocument& doc, std::unordered_map<const SimDocument*, Weight>& memo) {
    if (auto it = memo.find(&doc); it != memo.end()) return it->second;
    const DocData& data = doc.Data();
    Weight m;
    if (data.kind == DocKind::Part) {
        const MaterialData* material = styles::FindMaterial(data, data.material);
        if (!material)
            throw Error(errors::kFail,
                        "Mass not available: " + doc.DisplayName() +
                            (data.material.empty() ? " has no material"
                                                   : " has no material named \"" + data.material + "\""));
        m.volume = data.volume;
        m.kg = material->density * data.volume / 1000.0;  // g/cm^3 x cm^3 = g
    } else {
        for (const auto& occ : data.occurrences) {
            Weight part = Weigh(*occ.ref.doc, memo);
            m.kg += part.kg;
            m.volume += part.volume;
        }
    }
    memo[&doc] = m;
    return m;
}

}  // namespace

// --- occurrences

SimDocument& SimOccurrence::Parent() const {
    SimDocument* doc = context_.get();
    for (std::size_t i = 0; i + 1 < path_.size(); ++i) doc = doc->Occurrence(path_[i]).ref.doc.get();
    return *doc;
}

const OccurrenceData& SimOccurrence::Data() const {
    return Parent().Occurrence(path_.back());
}

std::int32_t SimOccurrence::Type() const {
    SIM_HOST_CALL("ComponentOccurrence.Type");
    return path_.size() == 1 ? host::kComponentOccurrenceObject : host::kComponentOccurrenceProxyObject;
}

std::string SimOccurrence::Name() const {
    SIM_HOST_CALL("ComponentOccurrence.Name");
    return Data().name;
}

void SimOccurrence::SetName(const std::string& name) {
    SIM_HOST_CALL("ComponentOccurrence.SetName");
    Parent().RenameOccurrence(path_.back(), name);
}

bool SimOccurrence::Visible() const {
    SIM_HOST_CALL("ComponentOccurrence.Visible");
    return Data().visible;
}

void SimOccurrence::SetVisible(bool visible) {
    SIM_HOST_CALL("ComponentOccurrence.SetVisible");
    Parent().SetOccurrenceVisible(path_.back(), visible);
}

bool SimOccurrence::Grounded() const {
    SIM_HOST_CALL("ComponentOccurrence.Grounded");
    return Data().grounded;
}

void SimOccurrence::SetGrounded(bool grounded) {
    SIM_HOST_CALL("ComponentOccurrence.SetGrounded");
    Parent().SetOccurrenceGrounded(path_.back(), grounded);
}

host::Matrix SimOccurrence::Transformation() const {
    SIM_HOST_CALL("ComponentOccurrence.Transformation");
    host::Matrix placement;
    const SimDocument* doc = context_.get();
    for (std::int64_t uid : path_) {
        const OccurrenceData& occ = doc->Occurrence(uid);
        placement = placement * occ.transform;
        doc = occ.ref.doc.get();
    }
    return placement;
}

std::shared_ptr<host::ComponentDefinition> SimOccurrence::Definition() {
    SIM_HOST_CALL("ComponentOccurrence.Definition");
    return Data().ref.doc->Definition();
}

std::shared_ptr<host::ComponentOccurrences> SimOccurrence::SubOccurrences() {
    SIM_HOST_CALL("ComponentOccurrence.SubOccurrences");
    Data();
    return std::make_shared<SimOccurrences>(context_, path_);
}

void SimOccurrence::Delete() {
    SIM_HOST_CALL("ComponentOccurrence.Delete");
    Parent().RemoveOccurrence(path_.back());
}

void SimOccurrence::Replace(const std::string& fullFileName, bool replaceAll) {
    SIM_HOST_CALL("ComponentOccurrence.Replace");
    SimDocument& parent = Parent();
    Data();
    SimDocumentPtr target = parent.State().documents.Reference(fullFileName);
    try {
        parent.ReplaceOccurrence(path_.back(), target, replaceAll);
    } catch (...) {
        parent.State().documents.DropIfUnused(target);
        throw;
    }
}

SimDocument& SimOccurrences::Holder() const {
    if (prefix_.empty()) return *context_;
    SimDocument* doc = context_.get();
    for (std::int64_t uid : prefix_) doc = doc->Occurrence(uid).ref.doc.get();
    return *doc;
}

std::int32_t SimOccurrences::Count() const {
    SIM_HOST_CALL("ComponentOccurrences.Count");
    return static_cast<std::int32_t>(Holder().Data().occurrences.size());
}

std::shared_ptr<host::ComponentOccurrence> SimOccurrences::Item(std::int32_t index) {
    SIM_HOST_CALL("ComponentOccurrences.Item");
    const auto& list = Holder().Data().occurrences;
    if (index < 1 || index > static_cast<std::int32_t>(list.size()))
        throw Error(errors::kInvalidArg, "Occurrences.Item: no occurrence at " + std::to_string(index));
    std::vector<std::int64_t> path = prefix_;
    path.push_back(list[index - 1].uid);
    return context_->OccurrenceHandle(path);
}

std::shared_ptr<host::ComponentOccurrence> SimOccurrences::Add(const std::string& fullFileName,
                                                               const host::Matrix& position) {
    SIM_HOST_CALL("ComponentOccurrences.Add");
    if (!prefix_.empty())
        throw Error(errors::kFail,
                    "Occurrences cannot be added through a proxy; edit the sub-assembly itself");
    SimDocumentPtr target = context_->State().documents.Reference(fullFileName);
    std::int64_t uid;
    try {
        uid = context_->AddOccurrence(target, position);
    } catch (...) {
        context_->State().documents.DropIfUnused(target);
        throw;
    }
    return context_->OccurrenceHandle({uid});
}

// --- definition

std::int32_t SimComponentDefinition::Type() const {
    SIM_HOST_CALL("ComponentDefinition.Type");
    return doc_->Data().kind == DocKind::Part ? host::kPartComponentDefinitionObject
                                              : host::kAssemblyComponentDefinitionObject;
}

std::shared_ptr<host::Document> SimComponentDefinition::Document() {
    SIM_HOST_CALL("ComponentDefinition.Document");
    return doc_;
}

std::shared_ptr<host::ComponentOccurrences> SimComponentDefinition::Occurrences() {
    SIM_HOST_CALL("ComponentDefinition.Occurrences");
    return std::make_shared<SimOccurrences>(doc_, std::vector<std::int64_t>{});
}

std::shared_ptr<host::MassProperties> SimComponentDefinition::MassProperties() {
    SIM_HOST_CALL("ComponentDefinition.MassProperties");
    std::unordered_map<const SimDocument*, Weight> memo;
    return std::make_shared<FixedMassProperties>(Weigh(*doc_, memo));
}

std::shared_ptr<host::AttributeSets> SimComponentDefinition::AttributeSets() {
    SIM_HOST_CALL("ComponentDefinition.AttributeSets");
    return std::make_shared<SimAttributeSets>(doc_);
}

std::shared_ptr<host::Material> SimComponentDefinition::Material() {
    SIM_HOST_CALL("ComponentDefinition.Material");
    RequirePartDefinition("Material");
    return doc_->ActiveMaterial();
}

void SimComponentDefinition::SetMaterial(const std::shared_ptr<host::Material>& material) {
    SIM_HOST_CALL("ComponentDefinition.SetMaterial");
    RequirePartDefinition("Material");
    std::string name = support::Required(material, "material")->Name();
    if (!styles::FindMaterial(doc_->Data(), name))
        throw Error(errors::kInvalidArg, "The material \"" + name + "\" is not in " + doc_->DisplayName());
    if (doc_->Data().material != name) doc_->Edit().material = name;
}

void SimComponentDefinition::RequirePartDefinition(const char* member) const {
    if (doc_->Data().kind != DocKind::Part)
        throw Error(errors::kFail, std::string(member) + " is only available on a part's definition");
}

bool SimComponentDefinition::IsiPartMember() const {
    SIM_HOST_CALL("ComponentDefinition.IsiPartMember");
    return !doc_->Data().iPartFactory.empty();
}

void SimComponentDefinition::BreakLinkToFactory() {
    SIM_HOST_CALL("ComponentDefinition.BreakLinkToFactory");
    if (!IsiPartMember()) throw Error(errors::kFail, doc_->DisplayName() + " is not an iPart member");
    doc_->Edit().iPartFactory.clear();
}

}  // namespace simhost
