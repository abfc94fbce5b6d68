#include "simhost/SimAttributes.h"

#include "host/Codes.h"
#include "simhost/HostCalls.h"
#include "simhost/SimDocument.h"
#include "support/Error.h"

using support::Error;
using support::Variant;
using support::VariantType;
namespace errors = support::errors;

namespace simhost {

namespace {

constexpr std::int32_t kIntegerType = 14593;
constexpr std::int32_t kDoubleType = 14594;

// The first item of a list with this name, const or not as the list is.
template <class List>
auto FindNamed(List& list, const std::string& name) -> decltype(&list.front()) {
    for (auto& item : list)
        if (item.name == name) return &item;
    return nullptr;
}

const StoredAttribute& Existing(const SimDocument& doc, const std::string& set, const std::string& name) {
    const auto* s = FindNamed(doc.Data().attributeSets, set);
    const auto* a = s ? FindNamed(s->attributes, name) : nullptr;
    if (!a)
        throw Error(errors::kInvalidArg,
                    "No attribute \"" + name + "\" in the set \"" + set + "\" of " + doc.DisplayName());
    return *a;
}

bool OfValueType(const Variant& v, std::int32_t valueType) {
    VariantType t = v.Type();
    switch (valueType) {
        case host::kStringType:
            return t == VariantType::String;
        case kIntegerType:
            return t == VariantType::Integer || t == VariantType::Long;
        case kDoubleType:
            return t == VariantType::Double || t == VariantType::Integer || t == VariantType::Long;
    }
    return false;
}

}  // namespace

Variant SimAttribute::Value() const {
    SIM_HOST_CALL("Attribute.Value");
    return Existing(*doc_, set_, name_).value;
}

void SimAttribute::SetValue(const Variant& value) {
    SIM_HOST_CALL("Attribute.SetValue");
    const StoredAttribute& current = Existing(*doc_, set_, name_);
    if (value.Type() == VariantType::Empty || value.Type() == VariantType::Object)
        throw Error(errors::kTypeMismatch, "Type mismatch: an attribute takes a plain value");
    doc_->RequireStorableValue(value);
    if (current.value == value) return;
    FindNamed(FindNamed(doc_->Edit().attributeSets, set_)->attributes, name_)->value = value;
}

bool SimAttributeSet::NameIsUsed(const std::string& attributeName) const {
    SIM_HOST_CALL("AttributeSet.NameIsUsed");
    const auto* set = FindNamed(doc_->Data().attributeSets, name_);
    return set && FindNamed(set->attributes, attributeName);
}

std::shared_ptr<host::Attribute> SimAttributeSet::Item(const std::string& attributeName) {
    SIM_HOST_CALL("AttributeSet.Item");
    Existing(*doc_, name_, attributeName);
    return std::make_shared<SimAttribute>(doc_, name_, attributeName);
}

std::shared_ptr<host::Attribute> SimAttributeSet::Add(const std::string& attributeName,
                                                      std::int32_t valueType, const Variant& value) {
    SIM_HOST_CALL("AttributeSet.Add");
    if (!FindNamed(doc_->Data().attributeSets, name_))
        throw Error(errors::kFail,
                    "The attribute set \"" + name_ + "\" no longer exists in " + doc_->DisplayName());
    if (NameIsUsed(attributeName))
        throw Error(errors::kInvalidArg,
                    "The attribute \"" + attributeName + "\" already exists in \"" + name_ + "\"");
    doc_->RequireStorable(attributeName);
    doc_->RequireStorableValue(value);
    if (attributeName.empty()) throw Error(errors::kInvalidArg, "An attribute needs a name");
    if (!OfValueType(value, valueType))
        throw Error(errors::kTypeMismatch,
                    "Type mismatch: the value is not of value type " + std::to_string(valueType));
    FindNamed(doc_->Edit().attributeSets, name_)->attributes.push_back({attributeName, value});
    return std::make_shared<SimAttribute>(doc_, name_, attributeName);
}

bool SimAttributeSets::NameIsUsed(const std::string& setName) const {
    SIM_HOST_CALL("AttributeSets.NameIsUsed");
    return FindNamed(doc_->Data().attributeSets, setName);
}

std::shared_ptr<host::AttributeSet> SimAttributeSets::Item(const std::string& setName) {
    SIM_HOST_CALL("AttributeSets.Item");
    if (!NameIsUsed(setName))
        throw Error(errors::kInvalidArg, "No attribute set \"" + setName + "\" in " + doc_->DisplayName());
    return std::make_shared<SimAttributeSet>(doc_, setName);
}

std::shared_ptr<host::AttributeSet> SimAttributeSets::Add(const std::string& setName) {
    SIM_HOST_CALL("AttributeSets.Add");
    if (setName.empty()) throw Error(errors::kInvalidArg, "An attribute set needs a name");
    doc_->RequireStorable(setName);
    if (NameIsUsed(setName))
        throw Error(errors::kInvalidArg,
                    "The attribute set \"" + setName + "\" already exists in " + doc_->DisplayName());
    doc_->Edit().attributeSets.push_back({setName, {}});
    return std::make_shared<SimAttributeSet>(doc_, setName);
}

std::string SimAttribute::Name() const {
    SIM_HOST_CALL("Attribute.Name");
    return name_;
}

std::string SimAttributeSet::Name() const {
    SIM_HOST_CALL("AttributeSet.Name");
    return name_;
}

}  // namespace simhost
