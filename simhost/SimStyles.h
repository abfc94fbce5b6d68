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

// A document's render style, by name. In use: the part's colour, or any material's style.
class SimRenderStyle : public host::RenderStyle {
public:
    SimRenderStyle(SimDocumentPtr doc, std::string name) : doc_(std::move(doc)), name_(std::move(name)) {}
    std::string Name() const override { return name_; }
    bool InUse() const override;
    std::int32_t StyleLocation() const override;
    void Delete() override;

    double Opacity() const override { return Style().opacity; }
    void SetOpacity(double value) override { Edit().opacity = value; }
    double Shininess() const override { return Style().shininess; }
    void SetShininess(double value) override { Edit().shininess = value; }
    std::string TextureFilename() const override { return Style().texture; }
    void SetTextureFilename(const std::string& fileName) override;
    double TextureScale() const override { return Style().textureScale; }
    void SetTextureScale(double value) override { Edit().textureScale = value; }
    double TextureRotation() const override { return Style().textureRotation; }
    void SetTextureRotation(double value) override { Edit().textureRotation = value; }
    host::Rgb GetAmbientColor() const override { return Style().ambient; }
    void SetAmbientColor(host::Rgb color) override { Edit().ambient = color; }
    host::Rgb GetDiffuseColor() const override { return Style().diffuse; }
    void SetDiffuseColor(host::Rgb color) override { Edit().diffuse = color; }
    host::Rgb GetSpecularColor() const override { return Style().specular; }
    void SetSpecularColor(host::Rgb color) override { Edit().specular = color; }
    host::Rgb GetEmissiveColor() const override { return Style().emissive; }
    void SetEmissiveColor(host::Rgb color) override { Edit().emissive = color; }

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
    std::string Name() const override { return name_; }
    bool InUse() const override;
    std::int32_t StyleLocation() const override;
    void Delete() override;

    double Density() const override;
    void SetDensity(double value) override;
    double LinearExpansion() const override { return Data().values.linearExpansion; }
    void SetLinearExpansion(double value) override { Edit().values.linearExpansion = value; }
    double PoissonsRatio() const override { return Data().values.poissonsRatio; }
    void SetPoissonsRatio(double value) override { Edit().values.poissonsRatio = value; }
    double SpecificHeat() const override { return Data().values.specificHeat; }
    void SetSpecificHeat(double value) override { Edit().values.specificHeat = value; }
    double ThermalConductivity() const override { return Data().values.thermalConductivity; }
    void SetThermalConductivity(double value) override { Edit().values.thermalConductivity = value; }
    double UltimateTensileStrength() const override { return Data().values.ultimateTensileStrength; }
    void SetUltimateTensileStrength(double value) override { Edit().values.ultimateTensileStrength = value; }
    double YieldStrength() const override { return Data().values.yieldStrength; }
    void SetYieldStrength(double value) override { Edit().values.yieldStrength = value; }
    double YoungsModulus() const override { return Data().values.youngsModulus; }
    void SetYoungsModulus(double value) override { Edit().values.youngsModulus = value; }
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
