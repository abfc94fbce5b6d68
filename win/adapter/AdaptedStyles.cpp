// Materials, render styles and units of measure.
#include <stdexcept>

#include "host/RenderStyleMembers.h"
#include "win/adapter/Adapted.h"

namespace win::adapter {

namespace {

// The render style's members are known by DISPID only.
DISPID RenderStyleId(std::string_view name) {
    for (const auto& member : ::host::kRenderStyleMembers)
        if (name == member.name) return member.dispatchId;
    throw std::logic_error("no render style member " + std::string(name));
}

class AdaptedMaterials : public ::host::Materials, public Adapted {
public:
    AdaptedMaterials(com::ComPtr<IDispatch> o, Context c)
        : Adapted("Materials", std::move(o), std::move(c)) {}
    std::int32_t Count() const override { return remote_.Long("Count"); }
    std::shared_ptr<::host::Material> Item(std::int32_t index) override {
        return AdaptMaterial(remote_.Shared(), remote_.Get("Item", {index}));
    }
    std::shared_ptr<::host::Material> Item(const std::string& name) override {
        return AdaptMaterial(remote_.Shared(), remote_.Get("Item", {name}));
    }
    std::shared_ptr<::host::Material> Add(const std::string& name, double density) override {
        return AdaptMaterial(remote_.Shared(), remote_.Call("Add", {name, density}));
    }
};

class AdaptedMaterial : public ::host::Material, public Adapted {
public:
    AdaptedMaterial(com::ComPtr<IDispatch> o, Context c) : Adapted("Material", std::move(o), std::move(c)) {}
    std::string Name() const override { return remote_.Text("Name"); }
    bool InUse() const override { return remote_.Flag("InUse"); }
    std::int32_t StyleLocation() const override { return remote_.Long("StyleLocation"); }
    void Delete() override { remote_.Call("Delete"); }
    double Density() const override { return remote_.Real("Density"); }
    void SetDensity(double v) override { remote_.Put("Density", v); }
    double LinearExpansion() const override { return remote_.Real("LinearExpansion"); }
    void SetLinearExpansion(double v) override { remote_.Put("LinearExpansion", v); }
    double PoissonsRatio() const override { return remote_.Real("PoissonsRatio"); }
    void SetPoissonsRatio(double v) override { remote_.Put("PoissonsRatio", v); }
    double SpecificHeat() const override { return remote_.Real("SpecificHeat"); }
    void SetSpecificHeat(double v) override { remote_.Put("SpecificHeat", v); }
    double ThermalConductivity() const override { return remote_.Real("ThermalConductivity"); }
    void SetThermalConductivity(double v) override { remote_.Put("ThermalConductivity", v); }
    double UltimateTensileStrength() const override { return remote_.Real("UltimateTensileStrength"); }
    void SetUltimateTensileStrength(double v) override { remote_.Put("UltimateTensileStrength", v); }
    double YieldStrength() const override { return remote_.Real("YieldStrength"); }
    void SetYieldStrength(double v) override { remote_.Put("YieldStrength", v); }
    double YoungsModulus() const override { return remote_.Real("YoungsModulus"); }
    void SetYoungsModulus(double v) override { remote_.Put("YoungsModulus", v); }
    std::shared_ptr<::host::RenderStyle> RenderStyle() override {
        return AdaptRenderStyle(remote_.Shared(), remote_.Get("RenderStyle"));
    }
    void SetRenderStyle(const std::shared_ptr<::host::RenderStyle>& style) override {
        remote_.PutRef("RenderStyle", HostObjectOf(style));
    }
};

class AdaptedRenderStyles : public ::host::RenderStyles, public Adapted {
public:
    AdaptedRenderStyles(com::ComPtr<IDispatch> o, Context c)
        : Adapted("RenderStyles", std::move(o), std::move(c)) {}
    std::int32_t Count() const override { return remote_.Long("Count"); }
    std::shared_ptr<::host::RenderStyle> Item(std::int32_t index) override {
        return AdaptRenderStyle(remote_.Shared(), remote_.Get("Item", {index}));
    }
    std::shared_ptr<::host::RenderStyle> Item(const std::string& name) override {
        return AdaptRenderStyle(remote_.Shared(), remote_.Get("Item", {name}));
    }
    std::shared_ptr<::host::RenderStyle> Add(const std::string& name) override {
        return AdaptRenderStyle(remote_.Shared(), remote_.Call("Add", {name}));
    }
};

class AdaptedRenderStyle : public ::host::RenderStyle, public Adapted {
public:
    AdaptedRenderStyle(com::ComPtr<IDispatch> o, Context c)
        : Adapted("RenderStyle", std::move(o), std::move(c)) {}
    std::string Name() const override { return Read("Name").ToText(); }
    bool InUse() const override { return remote_.Flag("InUse"); }
    std::int32_t StyleLocation() const override { return remote_.Long("StyleLocation"); }
    void Delete() override { remote_.Call("Delete"); }
    double Opacity() const override { return Read("Opacity").ToDouble(); }
    void SetOpacity(double v) override { Write("Opacity", v); }
    double Shininess() const override { return Read("Shininess").ToDouble(); }
    void SetShininess(double v) override { Write("Shininess", v); }
    std::string TextureFilename() const override { return Read("TextureFilename").ToText(); }
    void SetTextureFilename(const std::string& v) override { Write("TextureFilename", v); }
    double TextureScale() const override { return Read("TextureScale").ToDouble(); }
    void SetTextureScale(double v) override { Write("TextureScale", v); }
    double TextureRotation() const override { return Read("TextureRotation").ToDouble(); }
    void SetTextureRotation(double v) override { Write("TextureRotation", v); }
    ::host::Rgb GetAmbientColor() const override { return GetColor("GetAmbientColor"); }
    void SetAmbientColor(::host::Rgb c) override { SetColor("SetAmbientColor", c); }
    ::host::Rgb GetDiffuseColor() const override { return GetColor("GetDiffuseColor"); }
    void SetDiffuseColor(::host::Rgb c) override { SetColor("SetDiffuseColor", c); }
    ::host::Rgb GetSpecularColor() const override { return GetColor("GetSpecularColor"); }
    void SetSpecularColor(::host::Rgb c) override { SetColor("SetSpecularColor", c); }
    ::host::Rgb GetEmissiveColor() const override { return GetColor("GetEmissiveColor"); }
    void SetEmissiveColor(::host::Rgb c) override { SetColor("SetEmissiveColor", c); }

private:
    support::Variant Read(const char* member) const {
        return remote_.Invoke(RenderStyleId(member), DISPATCH_PROPERTYGET, member);
    }
    void Write(const char* member, const support::Variant& value) const {
        remote_.PutById(RenderStyleId(member), member, value);
    }
    // Red, Green, Blue: three Bytes by reference.
    ::host::Rgb GetColor(const char* member) const {
        BYTE red = 0, green = 0, blue = 0;
        remote_.Invoke(RenderStyleId(member), DISPATCH_METHOD, member,
                       {Argument::Out(&red), Argument::Out(&green), Argument::Out(&blue)});
        return {red, green, blue};
    }
    void SetColor(const char* member, ::host::Rgb c) const {
        remote_.Invoke(RenderStyleId(member), DISPATCH_METHOD, member,
                       {std::int16_t(c.red), std::int16_t(c.green), std::int16_t(c.blue)});
    }
};

class AdaptedUnitsOfMeasure : public ::host::UnitsOfMeasure, public Adapted {
public:
    AdaptedUnitsOfMeasure(com::ComPtr<IDispatch> o, Context c)
        : Adapted("UnitsOfMeasure", std::move(o), std::move(c)) {}
    std::string GetStringFromValue(double value, std::int32_t unitsType) const override {
        return remote_.Call("GetStringFromValue", {value, unitsType}).ToText();
    }
    std::string GetStringFromValue(double value, const std::string& unitText) const override {
        return remote_.Call("GetStringFromValue", {value, unitText}).ToText();
    }
    double GetValueFromExpression(const std::string& expression, std::int32_t unitsType) const override {
        return remote_.Call("GetValueFromExpression", {expression, unitsType}).ToDouble();
    }
    std::string GetStringFromType(std::int32_t unitsType) const override {
        return remote_.Call("GetStringFromType", {unitsType}).ToText();
    }
    std::int32_t MassUnits() const override { return remote_.Long("MassUnits"); }
    void SetMassUnits(std::int32_t unitsType) override { remote_.Put("MassUnits", unitsType); }
    std::int32_t LengthUnits() const override { return remote_.Long("LengthUnits"); }
};

}  // namespace

TW_DEFINE_ADAPT(Materials)
TW_DEFINE_ADAPT(Material)
TW_DEFINE_ADAPT(RenderStyles)
TW_DEFINE_ADAPT(RenderStyle)
TW_DEFINE_ADAPT(UnitsOfMeasure)

}  // namespace win::adapter
