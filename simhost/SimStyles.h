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
    std::string Name() const override {
        SIM_HOST_CALL("RenderStyle.Name");
        return name_;
    }
    bool InUse() const override;
    std::int32_t StyleLocation() const override;
    void Delete() override;

    double Opacity() const override {
        SIM_HOST_CALL("RenderStyle.Opacity");
        return Style().opacity;
    }
    void SetOpacity(double value) override {
        SIM_HOST_CALL("RenderStyle.SetOpacity");
        Edit().opacity = value;
    }
    double Shininess() const override {
        SIM_HOST_CALL("RenderStyle.Shininess");
        return Style().shininess;
    }
    void SetShininess(double value) override {
        SIM_HOST_CALL("RenderStyle.SetShininess");
        Edit().shininess = value;
    }
    std::string TextureFilename() const override {
        SIM_HOST_CALL("RenderStyle.TextureFilename");
        return Style().texture;
    }
    void SetTextureFilename(const std::string& fileName) override;
    double TextureScale() const override {
        SIM_HOST_CALL("RenderStyle.TextureScale");
        return Style().textureScale;
    }
    void SetTextureScale(double value) override {
        SIM_HOST_CALL("RenderStyle.SetTextureScale");
        Edit().textureScale = value;
    }
    double TextureRotation() const override {
        SIM_HOST_CALL("RenderStyle.TextureRotation");
        return Style().textureRotation;
    }
    void SetTextureRotation(double value) override {
        SIM_HOST_CALL("RenderStyle.SetTextureRotation");
        Edit().textureRotation = value;
    }
    host::Rgb GetAmbientColor() const override {
        SIM_HOST_CALL("RenderStyle.GetAmbientColor");
        return Style().ambient;
    }
    void SetAmbientColor(host::Rgb color) override {
        SIM_HOST_CALL("RenderStyle.SetAmbientColor");
        Edit().ambient = color;
    }
    host::Rgb GetDiffuseColor() const override {
        SIM_HOST_CALL("RenderStyle.GetDiffuseColor");
        return Style().diffuse;
    }
    void SetDiffuseColor(host::Rgb color) override {
        SIM_HOST_CALL("RenderStyle.SetDiffuseColor");
        Edit().diffuse = color;
    }
    host::Rgb GetSpecularColor() const override {
        SIM_HOST_CALL("RenderStyle.GetSpecularColor");
        return Style().specular;
    }
    void SetSpecularColor(host::Rgb color) override {
        SIM_HOST_CALL("RenderStyle.SetSpecularColor");
        Edit().specular = color;
    }
    host::Rgb GetEmissiveColor() const override {
        SIM_HOST_CALL("RenderStyle.GetEmissiveColor");
        return Style().emissive;
    }
    void SetEmissiveColor(host::Rgb color) override {
        SIM_HOST_CALL("RenderStyle.SetEmissiveColor");
        Edit().emissive = color;
    }

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
    std::string Name() const override {
        SIM_HOST_CALL("Material.Name");
        return name_;
    }
    bool InUse() const override;
    std::int32_t StyleLocation() const override;
    void Delete() override;

    double Density() const override;
    void SetDensity(double value) override;
    double LinearExpansion() const override {
        SIM_HOST_CALL("Material.LinearExpansion");
        return Data().values.linearExpansion;
    }
    void SetLinearExpansion(double value) override {
        SIM_HOST_CALL("Material.SetLinearExpansion");
        Edit().values.linearExpansion = value;
    }
    double PoissonsRatio() const override {
        SIM_HOST_CALL("Material.PoissonsRatio");
        return Data().values.poissonsRatio;
    }
    void SetPoissonsRatio(double value) override {
        SIM_HOST_CALL("Material.SetPoissonsRatio");
        Edit().values.poissonsRatio = value;
    }
    double SpecificHeat() const override {
        SIM_HOST_CALL("Material.SpecificHeat");
        return Data().values.specificHeat;
    }
    void SetSpecificHeat(double value) override {
        SIM_HOST_CALL("Material.SetSpecificHeat");
        Edit().values.specificHeat = value;
    }
    double ThermalConductivity() const override {
        SIM_HOST_CALL("Material.ThermalConductivity");
        return Data().values.thermalConductivity;
    }
    void SetThermalConductivity(double value) override {
        SIM_HOST_CALL("Material.SetThermalConductivity");
        Edit().values.thermalConductivity = value;
    }
    double UltimateTensileStrength() const override {
        SIM_HOST_CALL("Material.UltimateTensileStrength");
        return Data().values.ultimateTensileStrength;
    }
    void SetUltimateTensileStrength(double value) override {
        SIM_HOST_CALL("Material.SetUltimateTensileStrength");
        Edit().values.ultimateTensileStrength = value;
    }
    double YieldStrength() const override {
        SIM_HOST_CALL("Material.YieldStrength");
        return Data().values.yieldStrength;
    }
    void SetYieldStrength(double value) override {
        SIM_HOST_CALL("Material.SetYieldStrength");
        Edit().values.yieldStrength = value;
    }
    double YoungsModulus() const override {
        SIM_HOST_CALL("Material.YoungsModulus");
        return Data().values.youngsModulus;
    }
    void SetYoungsModulus(double value) override {
        SIM_HOST_CALL("Material.SetYoungsModulus");
        Edit().values.youngsModulus = value;
    }
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
