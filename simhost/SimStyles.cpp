#include "simhost/SimStyles.h"

#include <algorithm>

#include "simhost/HostCalls.h"
#include "simhost/SimDocument.h"
#include "support/Error.h"

using support::Error;
namespace errors = support::errors;

namespace simhost {

namespace styles {

const MaterialData* FindMaterial(const DocData& data, const std::string& name) {
    for (const auto& m : data.materials)
        if (m.name == name) return &m;
    return nullptr;
}

const RenderStyleData* FindRenderStyle(const DocData& data, const std::string& name) {
    for (const auto& r : data.renderStyles)
        if (r.name == name) return &r;
    return nullptr;
}

std::string ActiveRenderStyleName(const DocData& data) {
    if (!data.renderStyle.empty()) return data.renderStyle;
    const MaterialData* m = FindMaterial(data, data.material);
    return m ? m->renderStyle : std::string();
}

}  // namespace styles

namespace {
[[noreturn]] void Gone(const SimDocument& doc, const char* what, const std::string& name) {
    throw Error(errors::kFail,
                std::string("The ") + what + " \"" + name + "\" no longer exists in " + doc.DisplayName());
}
}  // namespace

// --- render styles

const RenderStyleData& SimRenderStyle::Style() const {
    const RenderStyleData* r = styles::FindRenderStyle(doc_->Data(), name_);
    if (!r) Gone(*doc_, "render style", name_);
    return *r;
}

// An edit goes through the document, so that it marks it changed and can be undone.
RenderStyleData& SimRenderStyle::Edit() {
    Style();
    for (auto& r : doc_->Edit().renderStyles)
        if (r.name == name_) return r;
    Gone(*doc_, "render style", name_);
}

// A style the part wears, or that any of its materials refers to, is in use: deleting it
// would leave a material pointing at nothing.
void SimRenderStyle::SetTextureFilename(const std::string& fileName) {
    SIM_HOST_CALL("RenderStyle.SetTextureFilename");
    doc_->RequireStorable(fileName);
    Edit().texture = fileName;
}

bool SimRenderStyle::InUse() const {
    SIM_HOST_CALL("RenderStyle.InUse");
    Style();
    const DocData& data = doc_->Data();
    if (data.renderStyle == name_) return true;
    for (const auto& m : data.materials)
        if (m.renderStyle == name_) return true;
    return false;
}

std::int32_t SimRenderStyle::StyleLocation() const {
    SIM_HOST_CALL("RenderStyle.StyleLocation");
    return Style().location;
}

void SimRenderStyle::Delete() {
    SIM_HOST_CALL("RenderStyle.Delete");
    if (InUse())
        throw Error(errors::kFail, "The render style \"" + name_ + "\" is in use and cannot be deleted");
    auto& list = doc_->Edit().renderStyles;
    std::erase_if(list, [&](const RenderStyleData& r) { return r.name == name_; });
}

// --- materials

const MaterialData& SimMaterial::Data() const {
    const MaterialData* m = styles::FindMaterial(doc_->Data(), name_);
    if (!m) Gone(*doc_, "material", name_);
    return *m;
}

MaterialData& SimMaterial::Edit() {
    Data();
    for (auto& m : doc_->Edit().materials)
        if (m.name == name_) return m;
    Gone(*doc_, "material", name_);
}

// The file keeps g/cm^3; the host speaks kg/cm^3.
double SimMaterial::Density() const {
    SIM_HOST_CALL("Material.Density");
    return Data().density / 1000.0;
}

void SimMaterial::SetDensity(double value) {
    SIM_HOST_CALL("Material.SetDensity");
    if (!(value >= 0)) throw Error(errors::kInvalidArg, "A density must not be negative");
    Edit().density = value * 1000.0;
}

void SimMaterial::SetRenderStyle(const std::shared_ptr<host::RenderStyle>& style) {
    SIM_HOST_CALL("Material.SetRenderStyle");
    std::string name = style ? style->Name() : std::string();
    if (!name.empty() && !styles::FindRenderStyle(doc_->Data(), name))
        throw Error(errors::kInvalidArg,
                    "The render style \"" + name + "\" is not in " + doc_->DisplayName());
    Edit().renderStyle = name;
}

std::shared_ptr<host::RenderStyle> SimMaterial::RenderStyle() {
    SIM_HOST_CALL("Material.RenderStyle");
    const std::string& style = Data().renderStyle;
    return style.empty() ? nullptr : std::make_shared<SimRenderStyle>(doc_, style);
}

bool SimMaterial::InUse() const {
    SIM_HOST_CALL("Material.InUse");
    Data();
    return doc_->Data().material == name_;
}

std::int32_t SimMaterial::StyleLocation() const {
    SIM_HOST_CALL("Material.StyleLocation");
    return Data().location;
}

void SimMaterial::Delete() {
    SIM_HOST_CALL("Material.Delete");
    if (InUse()) throw Error(errors::kFail, "The material \"" + name_ + "\" is in use and cannot be deleted");
    auto& list = doc_->Edit().materials;
    std::erase_if(list, [&](const MaterialData& m) { return m.name == name_; });
}

std::int32_t SimMaterials::Count() const {
    SIM_HOST_CALL("Materials.Count");
    return static_cast<std::int32_t>(doc_->Data().materials.size());
}

std::shared_ptr<host::Material> SimMaterials::Item(std::int32_t index) {
    SIM_HOST_CALL("Materials.Item");
    if (index < 1 || index > Count())
        throw Error(errors::kInvalidArg, "Materials.Item: no material at " + std::to_string(index));
    return std::make_shared<SimMaterial>(doc_, doc_->Data().materials[index - 1].name);
}

std::shared_ptr<host::Material> SimMaterials::Item(const std::string& name) {
    SIM_HOST_CALL("Materials.Item");
    if (!styles::FindMaterial(doc_->Data(), name))
        throw Error(errors::kInvalidArg, "Materials.Item: no material named \"" + name + "\"");
    return std::make_shared<SimMaterial>(doc_, name);
}

std::shared_ptr<host::Material> SimMaterials::Add(const std::string& name, double density) {
    SIM_HOST_CALL("Materials.Add");
    if (name.empty()) throw Error(errors::kInvalidArg, "A material needs a name");
    doc_->RequireStorable(name);
    if (styles::FindMaterial(doc_->Data(), name))
        throw Error(errors::kInvalidArg, "The material \"" + name + "\" already exists");
    if (!(density >= 0)) throw Error(errors::kInvalidArg, "A density must not be negative");
    MaterialData m;
    m.name = name;
    m.density = density * 1000.0;
    doc_->Edit().materials.push_back(std::move(m));
    return std::make_shared<SimMaterial>(doc_, name);
}

std::int32_t SimRenderStyles::Count() const {
    SIM_HOST_CALL("RenderStyles.Count");
    return static_cast<std::int32_t>(doc_->Data().renderStyles.size());
}

std::shared_ptr<host::RenderStyle> SimRenderStyles::Item(std::int32_t index) {
    SIM_HOST_CALL("RenderStyles.Item");
    if (index < 1 || index > Count())
        throw Error(errors::kInvalidArg, "RenderStyles.Item: no render style at " + std::to_string(index));
    return std::make_shared<SimRenderStyle>(doc_, doc_->Data().renderStyles[index - 1].name);
}

std::shared_ptr<host::RenderStyle> SimRenderStyles::Item(const std::string& name) {
    SIM_HOST_CALL("RenderStyles.Item");
    if (!styles::FindRenderStyle(doc_->Data(), name))
        throw Error(errors::kInvalidArg, "RenderStyles.Item: no render style named \"" + name + "\"");
    return std::make_shared<SimRenderStyle>(doc_, name);
}

std::shared_ptr<host::RenderStyle> SimRenderStyles::Add(const std::string& name) {
    SIM_HOST_CALL("RenderStyles.Add");
    if (name.empty()) throw Error(errors::kInvalidArg, "A render style needs a name");
    doc_->RequireStorable(name);
    if (styles::FindRenderStyle(doc_->Data(), name))
        throw Error(errors::kInvalidArg, "The render style \"" + name + "\" already exists");
    RenderStyleData r;
    r.name = name;
    doc_->Edit().renderStyles.push_back(std::move(r));
    return std::make_shared<SimRenderStyle>(doc_, name);
}

std::string SimRenderStyle::Name() const {
    SIM_HOST_CALL("RenderStyle.Name");
    return name_;
}

double SimRenderStyle::Opacity() const {
    SIM_HOST_CALL("RenderStyle.Opacity");
    return Style().opacity;
}

void SimRenderStyle::SetOpacity(double value) {
    SIM_HOST_CALL("RenderStyle.SetOpacity");
    Edit().opacity = value;
}

double SimRenderStyle::Shininess() const {
    SIM_HOST_CALL("RenderStyle.Shininess");
    return Style().shininess;
}

void SimRenderStyle::SetShininess(double value) {
    SIM_HOST_CALL("RenderStyle.SetShininess");
    Edit().shininess = value;
}

std::string SimRenderStyle::TextureFilename() const {
    SIM_HOST_CALL("RenderStyle.TextureFilename");
    return Style().texture;
}

double SimRenderStyle::TextureScale() const {
    SIM_HOST_CALL("RenderStyle.TextureScale");
    return Style().textureScale;
}

void SimRenderStyle::SetTextureScale(double value) {
    SIM_HOST_CALL("RenderStyle.SetTextureScale");
    Edit().textureScale = value;
}

double SimRenderStyle::TextureRotation() const {
    SIM_HOST_CALL("RenderStyle.TextureRotation");
    return Style().textureRotation;
}

void SimRenderStyle::SetTextureRotation(double value) {
    SIM_HOST_CALL("RenderStyle.SetTextureRotation");
    Edit().textureRotation = value;
}

host::Rgb SimRenderStyle::GetAmbientColor() const {
    SIM_HOST_CALL("RenderStyle.GetAmbientColor");
    return Style().ambient;
}

void SimRenderStyle::SetAmbientColor(host::Rgb color) {
    SIM_HOST_CALL("RenderStyle.SetAmbientColor");
    Edit().ambient = color;
}

host::Rgb SimRenderStyle::GetDiffuseColor() const {
    SIM_HOST_CALL("RenderStyle.GetDiffuseColor");
    return Style().diffuse;
}

void SimRenderStyle::SetDiffuseColor(host::Rgb color) {
    SIM_HOST_CALL("RenderStyle.SetDiffuseColor");
    Edit().diffuse = color;
}

host::Rgb SimRenderStyle::GetSpecularColor() const {
    SIM_HOST_CALL("RenderStyle.GetSpecularColor");
    return Style().specular;
}

void SimRenderStyle::SetSpecularColor(host::Rgb color) {
    SIM_HOST_CALL("RenderStyle.SetSpecularColor");
    Edit().specular = color;
}

host::Rgb SimRenderStyle::GetEmissiveColor() const {
    SIM_HOST_CALL("RenderStyle.GetEmissiveColor");
    return Style().emissive;
}

void SimRenderStyle::SetEmissiveColor(host::Rgb color) {
    SIM_HOST_CALL("RenderStyle.SetEmissiveColor");
    Edit().emissive = color;
}

std::string SimMaterial::Name() const {
    SIM_HOST_CALL("Material.Name");
    return name_;
}

double SimMaterial::LinearExpansion() const {
    SIM_HOST_CALL("Material.LinearExpansion");
    return Data().values.linearExpansion;
}

void SimMaterial::SetLinearExpansion(double value) {
    SIM_HOST_CALL("Material.SetLinearExpansion");
    Edit().values.linearExpansion = value;
}

double SimMaterial::PoissonsRatio() const {
    SIM_HOST_CALL("Material.PoissonsRatio");
    return Data().values.poissonsRatio;
}

void SimMaterial::SetPoissonsRatio(double value) {
    SIM_HOST_CALL("Material.SetPoissonsRatio");
    Edit().values.poissonsRatio = value;
}

double SimMaterial::SpecificHeat() const {
    SIM_HOST_CALL("Material.SpecificHeat");
    return Data().values.specificHeat;
}

void SimMaterial::SetSpecificHeat(double value) {
    SIM_HOST_CALL("Material.SetSpecificHeat");
    Edit().values.specificHeat = value;
}

double SimMaterial::ThermalConductivity() const {
    SIM_HOST_CALL("Material.ThermalConductivity");
    return Data().values.thermalConductivity;
}

void SimMaterial::SetThermalConductivity(double value) {
    SIM_HOST_CALL("Material.SetThermalConductivity");
    Edit().values.thermalConductivity = value;
}

double SimMaterial::UltimateTensileStrength() const {
    SIM_HOST_CALL("Material.UltimateTensileStrength");
    return Data().values.ultimateTensileStrength;
}

void SimMaterial::SetUltimateTensileStrength(double value) {
    SIM_HOST_CALL("Material.SetUltimateTensileStrength");
    Edit().values.ultimateTensileStrength = value;
}

double SimMaterial::YieldStrength() const {
    SIM_HOST_CALL("Material.YieldStrength");
    return Data().values.yieldStrength;
}

void SimMaterial::SetYieldStrength(double value) {
    SIM_HOST_CALL("Material.SetYieldStrength");
    Edit().values.yieldStrength = value;
}

double SimMaterial::YoungsModulus() const {
    SIM_HOST_CALL("Material.YoungsModulus");
    return Data().values.youngsModulus;
}

void SimMaterial::SetYoungsModulus(double value) {
    SIM_HOST_CALL("Material.SetYoungsModulus");
    Edit().values.youngsModulus = value;
}

}  // namespace simhost
