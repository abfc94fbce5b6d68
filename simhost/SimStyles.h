#pragma once
#include <memory>
#include <string>

#include "host/Document.h"
#include "host/Styles.h"
#include "simhost/DocData.h"
#include "simhost/HostCalls.h"

namespace simhost {

namespace styles {
const MaterialData* FindMaterial(const DocData& data, const std::string& name);
const RenderStyleData* FindRenderStyle(const DocData& data, const std::string& name);
// The part's colour: its override, else its material's render style; "" when neither.
std::string ActiveRenderStyleName(const DocData& data);
}  // namespace styles

// A document's render style, by name. In use: the part's colour, or any material's style.
class SimRenderStyle : public host::RenderStyle {
public:
    SimRenderStyle(SimDocumentPtr doc, std::string name) : doc_(std::move(doc)), name_(std::move(name)) {}
    std::string Name() const override;
    bool InUse() const override;
    std::int32_t StyleLocation() const override;
    void Delete() override;

    double Opacity() const override;
    void SetOpacity(double value) override;
    double Shininess() const override;
    void SetShininess(double value) override;
    std::string TextureFilename() const override;
    void SetTextureFilename(const std::string& fileName) override;
    double TextureScale() const override;
    void SetTextureScale(double value) override;
    double TextureRotation() const override;
    void SetTextureRotation(double value) override;
    host::Rgb GetAmbientColor() const override;
    void SetAmbientColor(host::Rgb color) override;
    host::Rgb GetDiffuseColor() const override;
    void SetDiffuseColor(host::Rgb color) override;
    host::Rgb GetSpecularColor() const override;
    void SetSpecularColor(host::Rgb color) override;
    host::Rgb GetEmissiveColor() const override;
    void SetEmissiveColor(host::Rgb color) override;

private:
    const RenderStyleData& Style() const;
    RenderStyleData& Edit();
    SimDocumentPtr doc_;
    std::string name_;
};

// A part's material, by name. In use: the part's active material.
class SimMaterial : public host::Material {
public:
    SimMaterial(SimDocumentPtr doc, std::string name) : doc_(std::move(doc)), name_(std::move(name)) {}
    std::string Name() const override;
    bool InUse() const override;
    std::int32_t StyleLocation() const override;
    void Delete() override;

    double Density() const override;
    void SetDensity(double value) override;
    double LinearExpansion() const override;
    void SetLinearExpansion(double value) override;
    double PoissonsRatio() const override;
    void SetPoissonsRatio(double value) override;
    double SpecificHeat() const override;
    void SetSpecificHeat(double value) override;
    double ThermalConductivity() const override;
    void SetThermalConductivity(double value) override;
    double UltimateTensileStrength() const override;
    void SetUltimateTensileStrength(double value) override;
    double YieldStrength() const override;
    void SetYieldStrength(double value) override;
    double YoungsModulus() const override;
    void SetYoungsModulus(double value) override;
    std::shared_ptr<host::RenderStyle> RenderStyle() override;  // null when it names none
    void SetRenderStyle(const std::shared_ptr<host::RenderStyle>& style) override;

private:
    const MaterialData& Data() const;
    MaterialData& Edit();
    SimDocumentPtr doc_;
    std::string name_;
};

class SimMaterials : public host::Materials {
public:
    explicit SimMaterials(SimDocumentPtr doc) : doc_(std::move(doc)) {}
    std::int32_t Count() const override;
    std::shared_ptr<host::Material> Item(std::int32_t index) override;
    std::shared_ptr<host::Material> Item(const std::string& name) override;
    std::shared_ptr<host::Material> Add(const std::string& name, double density) override;

private:
    SimDocumentPtr doc_;
};

class SimRenderStyles : public host::RenderStyles {
public:
    explicit SimRenderStyles(SimDocumentPtr doc) : doc_(std::move(doc)) {}
    std::int32_t Count() const override;
    std::shared_ptr<host::RenderStyle> Item(std::int32_t index) override;
    std::shared_ptr<host::RenderStyle> Item(const std::string& name) override;
    std::shared_ptr<host::RenderStyle> Add(const std::string& name) override;

private:
    SimDocumentPtr doc_;
};

}  // namespace simhost
