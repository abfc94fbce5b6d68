#pragma once
#include <cstdint>
#include <memory>
#include <string>

#include "host/Object.h"

namespace host {

class Document;
class ComponentDefinition;
class ComponentOccurrence;
class AttributeSets;
class Material;

class ComponentOccurrences {
public:
    virtual ~ComponentOccurrences() = default;
    virtual std::int32_t Count() const = 0;
    virtual std::shared_ptr<ComponentOccurrence> Item(std::int32_t index) = 0;  // from 1
    // Places a file as a new occurrence at the given placement (assemblies only).
    virtual std::shared_ptr<ComponentOccurrence> Add(const std::string& fullFileName,
                                                     const Matrix& position) = 0;
};

class MassProperties {
public:
    virtual ~MassProperties() = default;
    virtual double Mass() const = 0;    // kg
    virtual double Volume() const = 0;  // cm^3
};

class ComponentDefinition : public Object {
public:
    virtual std::shared_ptr<host::Document> Document() = 0;
    // A part's definition has an empty collection; a sub-assembly's has its children.
    virtual std::shared_ptr<ComponentOccurrences> Occurrences() = 0;
    virtual std::shared_ptr<host::MassProperties> MassProperties() = 0;  // throws when unavailable
    // A part's material; the call fails on other definitions.
    virtual std::shared_ptr<host::Material> Material() = 0;
    virtual void SetMaterial(const std::shared_ptr<host::Material>& material) = 0;
    virtual std::shared_ptr<host::AttributeSets> AttributeSets() = 0;
    virtual bool IsiPartMember() const = 0;
    // Turns an iPart member into a normal part (no link to its factory any more).
    virtual void BreakLinkToFactory() = 0;
};

// A placed component. Occurrences reached through SubOccurrences are proxies in the
// context of the top assembly: their Transformation is in top-level coordinates.
class ComponentOccurrence : public Object {
public:
    virtual std::string Name() const = 0;
    // Names are unique in the parent: a taken name is refused; "" restores the default.
    virtual void SetName(const std::string& name) = 0;
    virtual bool Visible() const = 0;
    virtual void SetVisible(bool visible) = 0;
    virtual bool Grounded() const = 0;
    virtual void SetGrounded(bool grounded) = 0;
    virtual Matrix Transformation() const = 0;
    virtual std::shared_ptr<ComponentDefinition> Definition() = 0;
    virtual std::shared_ptr<ComponentOccurrences> SubOccurrences() = 0;
    virtual void Delete() = 0;
    // Points this occurrence (or all of the same file in the same parent) at another file.
    virtual void Replace(const std::string& fullFileName, bool replaceAll) = 0;
};

}  // namespace host
