#pragma once
#include <cstdint>
#include <memory>
#include <string>

#include "host/Properties.h"
#include "simhost/DocData.h"
#include "simhost/HostCalls.h"

namespace simhost {

// Attribute sets of a part's or an assembly's component definition, kept in its file.
class SimAttribute : public host::Attribute {
public:
    SimAttribute(SimDocumentPtr doc, std::string set, std::string name)
        : doc_(std::move(doc)), set_(std::move(set)), name_(std::move(name)) {}
    std::string Name() const override;
    support::Variant Value() const override;
    void SetValue(const support::Variant& value) override;

private:
    SimDocumentPtr doc_;
    std::string set_, name_;
};

class SimAttributeSet : public host::AttributeSet {
public:
    SimAttributeSet(SimDocumentPtr doc, std::string name) : doc_(std::move(doc)), name_(std::move(name)) {}
    std::string Name() const override;
    bool NameIsUsed(const std::string& attributeName) const override;
    std::shared_ptr<host::Attribute> Item(const std::string& attributeName) override;
    // Value types: 14595 text, 14593 integer, 14594 double; the value must be of that kind.
    std::shared_ptr<host::Attribute> Add(const std::string& attributeName, std::int32_t valueType,
                                         const support::Variant& value) override;

private:
    SimDocumentPtr doc_;
    std::string name_;
};

class SimAttributeSets : public host::AttributeSets {
public:
    explicit SimAttributeSets(SimDocumentPtr doc) : doc_(std::move(doc)) {}
    bool NameIsUsed(const std::string& setName) const override;
    std::shared_ptr<host::AttributeSet> Item(const std::string& setName) override;
    std::shared_ptr<host::AttributeSet> Add(const std::string& setName) override;

private:
    SimDocumentPtr doc_;
};

}  // namespace simhost
