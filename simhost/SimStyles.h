#pragma once
#include <memory>
#include <string>

#include "host/Document.h"
#include "host/Styles.h"
#include "simhost/DocData.h"

namespace simhost {

namespace styles {
const MaterialData* FindMaterial(const DocData& data, const std::string& name);
const RenderStyleData* FindRenderStyle(const DocData& data, const std::string& name);
// The part's colour: its override, else its material's render style; "" when neither.
std::string ActiveRenderStyleName(const DocData& data);
}  // namespace styles

// A part's render style, by name. In use: the part's colour or its material's style.
class SimRenderStyle : public host::RenderStyle {
public:
    SimRenderStyle(SimDocumentPtr doc, std::string name) : doc_(std::move(doc)), name_(std::move(name)) {}
    std::string Name() const override { return name_; }
    bool InUse() const override;
    std::int32_t StyleLocation() const override;
    void Delete() override;

private:
    const RenderStyleData& Style() const;
    SimDocumentPtr doc_;
    std::string name_;
};

// A part's material, by name. In use: the part's active material.
class SimMaterial : public host::Material {
public:
    SimMaterial(SimDocumentPtr doc, std::string name) : doc_(std::move(doc)), name_(std::move(name)) {}
    std::string Name() const override { return name_; }
    double Density() const override;
    std::shared_ptr<host::RenderStyle> RenderStyle() override;  // null when it names none
    bool InUse() const override;
    std::int32_t StyleLocation() const override;
    void Delete() override;

private:
    const MaterialData& Data() const;
    SimDocumentPtr doc_;
    std::string name_;
};

class SimMaterials : public host::Materials {
public:
    explicit SimMaterials(SimDocumentPtr doc) : doc_(std::move(doc)) {}
    std::int32_t Count() const override;
    std::shared_ptr<host::Material> Item(std::int32_t index) override;
    std::shared_ptr<host::Material> Item(const std::string& name) override;

private:
    SimDocumentPtr doc_;
};

class SimRenderStyles : public host::RenderStyles {
public:
    explicit SimRenderStyles(SimDocumentPtr doc) : doc_(std::move(doc)) {}
    std::int32_t Count() const override;
    std::shared_ptr<host::RenderStyle> Item(std::int32_t index) override;
    std::shared_ptr<host::RenderStyle> Item(const std::string& name) override;

private:
    SimDocumentPtr doc_;
};

}  // namespace simhost
