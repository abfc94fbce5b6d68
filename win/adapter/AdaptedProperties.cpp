// Property sets and properties; attribute sets and attributes.
#include "win/adapter/Adapted.h"

namespace win::adapter {

namespace {

class AdaptedPropertySets : public ::host::PropertySets, public Adapted {
public:
    AdaptedPropertySets(com::ComPtr<IDispatch> o, Context c)
        : Adapted("PropertySets", std::move(o), std::move(c)) {}
    std::int32_t Count() const override { return remote_.Long("Count"); }
    std::shared_ptr<::host::PropertySet> Item(std::int32_t position) override {
        return AdaptPropertySet(remote_.Shared(), remote_.Get("Item", {position}));
    }
    std::shared_ptr<::host::PropertySet> Item(const std::string& nameOrId) override {
        return AdaptPropertySet(remote_.Shared(), remote_.Get("Item", {nameOrId}));
    }
    std::shared_ptr<::host::PropertySet> Add(const std::string& name, const std::string& formatId) override {
        return AdaptPropertySet(remote_.Shared(), remote_.Call("Add", {name, formatId}));
    }
    bool PropertySetExists(const std::string& nameOrId) const override {
        return remote_.Call("PropertySetExists", {nameOrId}).ToBool();
    }
};

class AdaptedPropertySet : public ::host::PropertySet, public Adapted {
public:
    AdaptedPropertySet(com::ComPtr<IDispatch> o, Context c)
        : Adapted("PropertySet", std::move(o), std::move(c)) {}
    std::string Name() const override { return remote_.Text("Name"); }
    std::string DisplayName() const override { return remote_.Text("DisplayName"); }
    std::string InternalName() const override { return remote_.Text("InternalName"); }
    std::int32_t Count() const override { return remote_.Long("Count"); }
    std::shared_ptr<::host::Property> Item(std::int32_t position) override {
        return AdaptProperty(remote_.Shared(), remote_.Get("Item", {position}));
    }
    std::shared_ptr<::host::Property> Item(const std::string& name) override {
        return AdaptProperty(remote_.Shared(), remote_.Get("Item", {name}));
    }
    std::shared_ptr<::host::Property> ItemByPropId(std::int32_t propId) override {
        return AdaptProperty(remote_.Shared(), remote_.Get("ItemByPropId", {propId}));
    }
    std::shared_ptr<::host::Property> Add(const support::Variant& value, const std::string& name,
                                          std::int32_t propId) override {
        Arguments args{value, name};
        if (propId != 0) args.push_back(propId);  // none: the host numbers a custom property
        return AdaptProperty(remote_.Shared(), remote_.Call("Add", args));
    }
    void Delete() override { remote_.Call("Delete"); }
};

class AdaptedProperty : public ::host::Property, public Adapted {
public:
    AdaptedProperty(com::ComPtr<IDispatch> o, Context c) : Adapted("Property", std::move(o), std::move(c)) {}
    std::string Name() const override { return remote_.Text("Name"); }
    std::string DisplayName() const override { return remote_.Text("DisplayName"); }
    std::int32_t PropId() const override { return remote_.Long("PropId"); }
    support::Variant Value() const override { return remote_.Get("Value"); }
    void SetValue(const support::Variant& value) override { remote_.Put("Value", value); }
    void Delete() override { remote_.Call("Delete"); }
};

class AdaptedAttributeSets : public ::host::AttributeSets, public Adapted {
public:
    AdaptedAttributeSets(com::ComPtr<IDispatch> o, Context c)
        : Adapted("AttributeSets", std::move(o), std::move(c)) {}
    bool NameIsUsed(const std::string& setName) const override {
        return remote_.Get("NameIsUsed", {setName}).ToBool();
    }
    std::shared_ptr<::host::AttributeSet> Item(const std::string& setName) override {
        return AdaptAttributeSet(remote_.Shared(), remote_.Get("Item", {setName}));
    }
    std::shared_ptr<::host::AttributeSet> Add(const std::string& setName) override {
        return AdaptAttributeSet(remote_.Shared(), remote_.Call("Add", {setName}));
    }
};

class AdaptedAttributeSet : public ::host::AttributeSet, public Adapted {
public:
    AdaptedAttributeSet(com::ComPtr<IDispatch> o, Context c)
        : Adapted("AttributeSet", std::move(o), std::move(c)) {}
    std::string Name() const override { return remote_.Text("Name"); }
    bool NameIsUsed(const std::string& attributeName) const override {
        return remote_.Get("NameIsUsed", {attributeName}).ToBool();
    }
    std::shared_ptr<::host::Attribute> Item(const std::string& attributeName) override {
        return AdaptAttribute(remote_.Shared(), remote_.Get("Item", {attributeName}));
    }
    std::shared_ptr<::host::Attribute> Add(const std::string& attributeName, std::int32_t valueType,
                                           const support::Variant& value) override {
        return AdaptAttribute(remote_.Shared(), remote_.Call("Add", {attributeName, valueType, value}));
    }
};

class AdaptedAttribute : public ::host::Attribute, public Adapted {
public:
    AdaptedAttribute(com::ComPtr<IDispatch> o, Context c)
        : Adapted("Attribute", std::move(o), std::move(c)) {}
    std::string Name() const override { return remote_.Text("Name"); }
    support::Variant Value() const override { return remote_.Get("Value"); }
    void SetValue(const support::Variant& value) override { remote_.Put("Value", value); }
};

}  // namespace

TW_DEFINE_ADAPT(PropertySets)
TW_DEFINE_ADAPT(PropertySet)
TW_DEFINE_ADAPT(Property)
TW_DEFINE_ADAPT(AttributeSets)
TW_DEFINE_ADAPT(AttributeSet)
TW_DEFINE_ADAPT(Attribute)

}  // namespace win::adapter
