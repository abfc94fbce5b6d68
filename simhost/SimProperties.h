#pragma once
#include <cstdint>
#include <memory>
#include <string>

#include "host/Properties.h"
#include "simhost/DocData.h"
#include "simhost/HostCalls.h"

namespace simhost {

// A property, named by its set's format identifier and its property identifier. A
// standard property with no value reads as empty text (Cost as currency 0) and takes
// only values of its kind; a custom property takes any plain value.
class SimProperty : public host::Property {
public:
    SimProperty(SimDocumentPtr doc, std::string formatId, std::int32_t propId)
        : doc_(std::move(doc)), formatId_(std::move(formatId)), propId_(propId) {}
    std::string Name() const override;
    std::string DisplayName() const override;
    std::int32_t PropId() const override;
    support::Variant Value() const override;
    void SetValue(const support::Variant& value) override;
    void Delete() override;

private:
    SimDocumentPtr doc_;
    std::string formatId_;
    std::int32_t propId_;
};

class SimPropertySet : public host::PropertySet {
public:
    SimPropertySet(SimDocumentPtr doc, std::string formatId)
        : doc_(std::move(doc)), formatId_(std::move(formatId)) {}
    std::string Name() const override;
    std::string DisplayName() const override;
    std::string InternalName() const override;
    std::int32_t Count() const override;
    std::shared_ptr<host::Property> Item(std::int32_t position) override;
    std::shared_ptr<host::Property> Item(const std::string& name) override;
    std::shared_ptr<host::Property> ItemByPropId(std::int32_t propId) override;
    std::shared_ptr<host::Property> Add(const support::Variant& value, const std::string& name,
                                        std::int32_t propId = 0) override;
    void Delete() override;

private:
    std::shared_ptr<host::Property> Handle(std::int32_t propId);
    SimDocumentPtr doc_;
    std::string formatId_;
};

// The four standard sets in the host's order, then the custom sets.
class SimPropertySets : public host::PropertySets {
public:
    explicit SimPropertySets(SimDocumentPtr doc) : doc_(std::move(doc)) {}
    std::int32_t Count() const override;
    std::shared_ptr<host::PropertySet> Item(std::int32_t position) override;
    std::shared_ptr<host::PropertySet> Item(const std::string& nameOrId) override;
    std::shared_ptr<host::PropertySet> Add(const std::string& name, const std::string& formatId) override;
    bool PropertySetExists(const std::string& nameOrId) const override;

private:
    SimDocumentPtr doc_;
};

}  // namespace simhost
