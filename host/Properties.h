#pragma once
#include <cstdint>
#include <memory>
#include <string>

#include "host/Object.h"
#include "support/Variant.h"

namespace host {

class Property {
public:
    virtual ~Property() = default;
    virtual std::string Name() const = 0;
    virtual std::string DisplayName() const = 0;
    virtual std::int32_t PropId() const = 0;
    virtual support::Variant Value() const = 0;
    virtual void SetValue(const support::Variant& value) = 0;  // throws on a refused value
    virtual void Delete() = 0;                                 // custom properties only
};

class PropertySet {
public:
    virtual ~PropertySet() = default;
    virtual std::string Name() const = 0;
    virtual std::string DisplayName() const = 0;
    virtual std::string InternalName() const = 0;  // the format identifier
    virtual std::int32_t Count() const = 0;
    virtual std::shared_ptr<Property> Item(std::int32_t position) = 0;  // from 1
    virtual std::shared_ptr<Property> Item(const std::string& name) = 0;
    virtual std::shared_ptr<Property> ItemByPropId(std::int32_t propId) = 0;
    virtual std::shared_ptr<Property> Add(const support::Variant& value, const std::string& name,
                                          std::int32_t propId = 0) = 0;
    virtual void Delete() = 0;  // custom sets only
};

class PropertySets {
public:
    virtual ~PropertySets() = default;
    virtual std::int32_t Count() const = 0;
    virtual std::shared_ptr<PropertySet> Item(std::int32_t position) = 0;        // from 1
    virtual std::shared_ptr<PropertySet> Item(const std::string& nameOrId) = 0;  // name or format id
    virtual std::shared_ptr<PropertySet> Add(const std::string& name, const std::string& formatId) = 0;
    virtual bool PropertySetExists(const std::string& nameOrId) const = 0;
};

class Attribute {
public:
    virtual ~Attribute() = default;
    virtual std::string Name() const = 0;
    virtual support::Variant Value() const = 0;
    virtual void SetValue(const support::Variant& value) = 0;
};

class AttributeSet {
public:
    virtual ~AttributeSet() = default;
    virtual std::string Name() const = 0;
    virtual bool NameIsUsed(const std::string& attributeName) const = 0;
    virtual std::shared_ptr<Attribute> Item(const std::string& attributeName) = 0;  // throws if absent
    virtual std::shared_ptr<Attribute> Add(const std::string& attributeName, std::int32_t valueType,
                                           const support::Variant& value) = 0;
};

class AttributeSets {
public:
    virtual ~AttributeSets() = default;
    virtual bool NameIsUsed(const std::string& setName) const = 0;
    virtual std::shared_ptr<AttributeSet> Item(const std::string& setName) = 0;  // throws if absent
    virtual std::shared_ptr<AttributeSet> Add(const std::string& setName) = 0;
};

}  // namespace host
