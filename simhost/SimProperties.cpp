#include "simhost/SimProperties.h"

#include <algorithm>
#include <cstdio>
#include <optional>

#include "simhost/HostCalls.h"
#include "simhost/PropertyCatalog.h"
#include "simhost/SimDocument.h"
#include "simhost/SimStyles.h"
#include "simhost/WinPath.h"
#include "support/Error.h"
#include "support/Text.h"

using support::Error;
using support::Variant;
using support::VariantType;
namespace errors = support::errors;

namespace simhost {

namespace {

// Position of a set in the document's list by format identifier, or -1.
int SetIndex(const DocData& data, std::string_view formatId) {
    for (std::size_t i = 0; i < data.propertySets.size(); ++i)
        if (winpath::EqualNoCase(data.propertySets[i].formatId, formatId)) return static_cast<int>(i);
    return -1;
}

// Position of a set by name, display name or format identifier, or -1.
int FindSet(const DocData& data, const std::string& nameOrId) {
    if (int standard = catalog::FindStandardSet(nameOrId); standard >= 0) return standard;
    for (std::size_t i = catalog::kStandardSetCount; i < data.propertySets.size(); ++i)
        if (data.propertySets[i].name == nameOrId ||
            winpath::EqualNoCase(data.propertySets[i].formatId, nameOrId))
            return static_cast<int>(i);
    return -1;
}

int ExistingSet(const SimDocument& doc, const std::string& formatId) {
    int index = SetIndex(doc.Data(), formatId);
    if (index < 0)
        throw Error(errors::kFail,
                    "The property set " + formatId + " no longer exists in " + doc.DisplayName());
    return index;
}

bool HasDefinitions(int setIndex) {
    return setIndex < catalog::kUserDefinedSet;
}

const StoredProperty* FindStored(const SimDocument& doc, int set, std::int32_t id) {
    return doc.PropertiesOf(set).ById(doc.Data().propertySets[set].properties, id);
}

StoredProperty* EditStored(SimDocument& doc, int set, std::int32_t id) {
    auto& list = doc.Edit().propertySets[set].properties;
    return const_cast<StoredProperty*>(doc.PropertiesOf(set).ById(list, id));
}

bool PlainValue(const Variant& v) {
    return v.Type() != VariantType::Empty && v.Type() != VariantType::Object;
}

// The value as the property's kind stores it, or nothing when it is of another kind.
std::optional<Variant> AsKind(const Variant& v, catalog::ValueKind kind) {
    using T = VariantType;
    T t = v.Type();
    bool number = t == T::Integer || t == T::Long || t == T::Double;
    switch (kind) {
        case catalog::ValueKind::Text:
            if (t == T::String) return v;
            break;
        case catalog::ValueKind::Number:
            if (number) return v;
            break;
        case catalog::ValueKind::Currency:
            if (t == T::Currency) return v;
            if (number) return Variant(support::Currency::FromDouble(v.ToDouble()));
            break;
        case catalog::ValueKind::Date:
            // Text that reads as a date is taken as that date, as the host's own
            // conversion does; other text is a type mismatch.
            if (t == T::Date) return v;
            if (t == T::String)
                if (auto date = support::ParseDate(*v.As<std::string>())) return Variant(*date);
            break;
        case catalog::ValueKind::Boolean:
            if (t == T::Boolean) return v;
            break;
    }
    return std::nullopt;
}

std::string GeneratedFormatId(const std::string& name, std::size_t salt) {
    std::uint64_t h = 1469598103934665603ull ^ salt;
    for (char c : name) h = (h ^ static_cast<unsigned char>(c)) * 1099511628211ull;
    std::uint64_t g = h * 6364136223846793005ull + 1442695040888963407ull;
    char buf[40];
    std::snprintf(buf, sizeof buf, "{%08X-%04X-%04X-%04X-%012llX}", static_cast<unsigned>(h >> 32),
                  static_cast<unsigned>(h >> 16 & 0xFFFF), static_cast<unsigned>(h & 0xFFFF),
                  static_cast<unsigned>(g >> 48), static_cast<unsigned long long>(g & 0xFFFFFFFFFFFFull));
    return buf;
}

}  // namespace

// --- property

std::string SimProperty::Name() const {
    SIM_HOST_CALL("Property.Name");
    int set = ExistingSet(*doc_, formatId_);
    if (HasDefinitions(set)) return catalog::FindById(catalog::StandardSets()[set], propId_)->name;
    if (const StoredProperty* p = FindStored(*doc_, set, propId_)) return p->name;
    throw Error(errors::kFail, "The property no longer exists in " + doc_->DisplayName());
}

Variant SimProperty::Value() const {
    SIM_HOST_CALL("Property.Value");
    int set = ExistingSet(*doc_, formatId_);
    const DocData& data = doc_->Data();
    if (set == catalog::kDesignTrackingSet && propId_ == catalog::kMaterialId && data.kind == DocKind::Part)
        return data.material;
    if (const StoredProperty* p = FindStored(*doc_, set, propId_)) return p->value;
    if (!HasDefinitions(set))
        throw Error(errors::kFail, "The property no longer exists in " + doc_->DisplayName());
    if (catalog::FindById(catalog::StandardSets()[set], propId_)->kind == catalog::ValueKind::Currency)
        return support::Currency{};
    return std::string();
}

void SimProperty::SetValue(const Variant& value) {
    SIM_HOST_CALL("Property.SetValue");
    int set = ExistingSet(*doc_, formatId_);
    std::string name = Name();
    if (!PlainValue(value))
        throw Error(errors::kTypeMismatch, "Type mismatch: \"" + name + "\" takes no value of this kind");
    doc_->RequireStorableValue(value);
    if (!HasDefinitions(set)) {  // a custom property takes any plain value
        if (Value() != value) EditStored(*doc_, set, propId_)->value = value;
        return;
    }
    const catalog::PropertyDef& def = *catalog::FindById(catalog::StandardSets()[set], propId_);
    std::optional<Variant> stored = AsKind(value, def.kind);
    if (!stored)
        throw Error(errors::kTypeMismatch,
                    "Type mismatch: \"" + name + "\" takes a " + catalog::KindName(def.kind) + " value");
    if (stored == Value()) return;
    if (set == catalog::kDesignTrackingSet && propId_ == catalog::kMaterialId &&
        doc_->Data().kind == DocKind::Part) {
        const std::string& material = *stored->As<std::string>();
        if (!styles::FindMaterial(doc_->Data(), material))
            throw Error(errors::kInvalidArg,
                        doc_->DisplayName() + " has no material named \"" + material + "\"");
        doc_->Edit().material = material;
        return;
    }
    bool empty = stored->Type() == VariantType::String && stored->As<std::string>()->empty();
    if (StoredProperty* p = EditStored(*doc_, set, propId_)) {
        if (!empty) {
            p->value = *stored;
            return;
        }
        std::erase_if(doc_->Edit().propertySets[set].properties,
                      [&](const StoredProperty& q) { return q.id == propId_; });
        doc_->PropertiesMoved();
    } else if (!empty) {
        auto& list = doc_->Edit().propertySets[set].properties;
        list.push_back({def.name, def.id, *stored});
        doc_->PropertiesOf(set).NoteAppended(list);
    }
}

void SimProperty::Delete() {
    SIM_HOST_CALL("Property.Delete");
    int set = ExistingSet(*doc_, formatId_);
    if (HasDefinitions(set))
        throw Error(errors::kFail, "The standard property \"" + Name() + "\" cannot be deleted");
    Name();
    std::erase_if(doc_->Edit().propertySets[set].properties,
                  [&](const StoredProperty& p) { return p.id == propId_; });
    doc_->PropertiesMoved();
}

// --- property set

std::string SimPropertySet::Name() const {
    SIM_HOST_CALL("PropertySet.Name");
    int set = ExistingSet(*doc_, formatId_);
    return set < catalog::kStandardSetCount ? catalog::StandardSets()[set].name
                                            : doc_->Data().propertySets[set].name;
}

std::string SimPropertySet::DisplayName() const {
    SIM_HOST_CALL("PropertySet.DisplayName");
    int set = ExistingSet(*doc_, formatId_);
    return set < catalog::kStandardSetCount ? catalog::StandardSets()[set].displayName
                                            : doc_->Data().propertySets[set].name;
}

std::int32_t SimPropertySet::Count() const {
    SIM_HOST_CALL("PropertySet.Count");
    int set = ExistingSet(*doc_, formatId_);
    if (HasDefinitions(set)) return static_cast<std::int32_t>(catalog::StandardSets()[set].properties.size());
    return static_cast<std::int32_t>(doc_->Data().propertySets[set].properties.size());
}

std::shared_ptr<host::Property> SimPropertySet::Handle(std::int32_t propId) {
    return std::make_shared<SimProperty>(doc_, formatId_, propId);
}

std::shared_ptr<host::Property> SimPropertySet::Item(std::int32_t position) {
    SIM_HOST_CALL("PropertySet.Item");
    int set = ExistingSet(*doc_, formatId_);
    if (position < 1 || position > Count())
        throw Error(errors::kInvalidArg,
                    "PropertySet.Item: no property at " + std::to_string(position) + " in " + DisplayName());
    if (HasDefinitions(set)) return Handle(catalog::StandardSets()[set].properties[position - 1].id);
    return Handle(doc_->Data().propertySets[set].properties[position - 1].id);
}

std::shared_ptr<host::Property> SimPropertySet::Item(const std::string& name) {
    SIM_HOST_CALL("PropertySet.Item");
    int set = ExistingSet(*doc_, formatId_);
    if (HasDefinitions(set)) {
        if (const auto* def = catalog::FindByName(catalog::StandardSets()[set], name)) return Handle(def->id);
    } else if (const StoredProperty* p =
                   doc_->PropertiesOf(set).ByName(doc_->Data().propertySets[set].properties, name)) {
        return Handle(p->id);
    }
    throw Error(errors::kInvalidArg,
                "PropertySet.Item: no property named \"" + name + "\" in " + DisplayName());
}

std::shared_ptr<host::Property> SimPropertySet::ItemByPropId(std::int32_t propId) {
    SIM_HOST_CALL("PropertySet.ItemByPropId");
    int set = ExistingSet(*doc_, formatId_);
    if (HasDefinitions(set)) {
        if (catalog::FindById(catalog::StandardSets()[set], propId)) return Handle(propId);
    } else if (FindStored(*doc_, set, propId)) {
        return Handle(propId);
    }
    throw Error(errors::kInvalidArg,
                "PropertySet.ItemByPropId: no property " + std::to_string(propId) + " in " + DisplayName());
}

std::shared_ptr<host::Property> SimPropertySet::Add(const Variant& value, const std::string& name,
                                                    std::int32_t propId) {
    SIM_HOST_CALL("PropertySet.Add");
    int set = ExistingSet(*doc_, formatId_);
    if (HasDefinitions(set)) throw Error(errors::kFail, "Properties cannot be added to " + DisplayName());
    if (!PlainValue(value))
        throw Error(errors::kTypeMismatch, "Type mismatch: a property takes a plain value");
    doc_->RequireStorableValue(value);
    doc_->RequireStorable(name);
    if (name.empty()) throw Error(errors::kInvalidArg, "A property needs a name");
    PropertyIndex& index = doc_->PropertiesOf(set);
    const auto& stored = doc_->Data().propertySets[set].properties;
    if (index.ByName(stored, name))
        throw Error(errors::kInvalidArg, "The property \"" + name + "\" already exists in " + DisplayName());
    if (propId && index.ById(stored, propId))
        throw Error(errors::kInvalidArg, "The property identifier " + std::to_string(propId) + " is taken");
    std::int32_t id = propId ? propId : index.MaxId(stored, catalog::kFirstCustomId - 1) + 1;
    auto& list = doc_->Edit().propertySets[set].properties;
    list.push_back({name, id, value});
    doc_->PropertiesOf(set).NoteAppended(list);
    return Handle(id);
}

void SimPropertySet::Delete() {
    SIM_HOST_CALL("PropertySet.Delete");
    int set = ExistingSet(*doc_, formatId_);
    if (set < catalog::kStandardSetCount)
        throw Error(errors::kFail, "The standard set " + DisplayName() + " cannot be deleted");
    auto& sets = doc_->Edit().propertySets;
    sets.erase(sets.begin() + set);
    doc_->PropertiesMoved();
}

// --- property sets

std::int32_t SimPropertySets::Count() const {
    SIM_HOST_CALL("PropertySets.Count");
    return static_cast<std::int32_t>(doc_->Data().propertySets.size());
}

std::shared_ptr<host::PropertySet> SimPropertySets::Item(std::int32_t position) {
    SIM_HOST_CALL("PropertySets.Item");
    if (position < 1 || position > Count())
        throw Error(errors::kInvalidArg, "PropertySets.Item: no property set at " + std::to_string(position));
    return std::make_shared<SimPropertySet>(doc_, doc_->Data().propertySets[position - 1].formatId);
}

std::shared_ptr<host::PropertySet> SimPropertySets::Item(const std::string& nameOrId) {
    SIM_HOST_CALL("PropertySets.Item");
    int set = FindSet(doc_->Data(), nameOrId);
    if (set < 0) throw Error(errors::kInvalidArg, "PropertySets.Item: no property set \"" + nameOrId + "\"");
    return std::make_shared<SimPropertySet>(doc_, doc_->Data().propertySets[set].formatId);
}

std::shared_ptr<host::PropertySet> SimPropertySets::Add(const std::string& name,
                                                        const std::string& formatId) {
    SIM_HOST_CALL("PropertySets.Add");
    if (name.empty()) throw Error(errors::kInvalidArg, "A property set needs a name");
    doc_->RequireStorable(name);
    if (FindSet(doc_->Data(), name) >= 0 || (!formatId.empty() && FindSet(doc_->Data(), formatId) >= 0))
        throw Error(errors::kInvalidArg, "The property set \"" + name + "\" already exists");
    std::string id = formatId;
    for (std::size_t salt = 0; id.empty() || FindSet(doc_->Data(), id) >= 0; ++salt)
        id = GeneratedFormatId(name, salt);
    doc_->Edit().propertySets.push_back({name, id, {}});
    doc_->PropertiesMoved();
    return std::make_shared<SimPropertySet>(doc_, id);
}

bool SimPropertySets::PropertySetExists(const std::string& nameOrId) const {
    SIM_HOST_CALL("PropertySets.PropertySetExists");
    return FindSet(doc_->Data(), nameOrId) >= 0;
}

std::string SimProperty::DisplayName() const {
    SIM_HOST_CALL("Property.DisplayName");
    return Name();
}

std::int32_t SimProperty::PropId() const {
    SIM_HOST_CALL("Property.PropId");
    return propId_;
}

std::string SimPropertySet::InternalName() const {
    SIM_HOST_CALL("PropertySet.InternalName");
    return formatId_;
}

}  // namespace simhost
