#include "materials/records/MaterialRow.h"

#include "host/Styles.h"
#include "support/Error.h"

namespace materials {

namespace {

// The fields written after the density, in the order they are written.
constexpr MaterialField kValueFields[] = {kLinearExpansion,     kPoissonsRatio,           kSpecificHeat,
                                          kThermalConductivity, kUltimateTensileStrength, kYieldStrength,
                                          kYoungsModulus};

}  // namespace

const char* MaterialFieldName(MaterialField field) {
    static constexpr const char* kNames[] = {
        "Material Name",  "Density",        "Linear Expansion",     "Poisson's Ratio",
        "Render Style",   "Specific Heat",  "Thermal Conductivity", "Ultimate Tensile Strength",
        "Yield Strength", "Young's Modulus"};
    return field < kMaterialFieldCount ? kNames[field] : "";
}

MaterialRow ReadMaterialRow(host::Material& material) {
    MaterialRow row;
    row[kName] = material.Name();
    row[kDensity] = material.Density();
    row[kLinearExpansion] = material.LinearExpansion();
    row[kPoissonsRatio] = material.PoissonsRatio();
    auto style = material.RenderStyle();
    row[kRenderStyle] = style ? style->Name() : std::string();
    row[kSpecificHeat] = material.SpecificHeat();
    row[kThermalConductivity] = material.ThermalConductivity();
    row[kUltimateTensileStrength] = material.UltimateTensileStrength();
    row[kYieldStrength] = material.YieldStrength();
    row[kYoungsModulus] = material.YoungsModulus();
    return row;
}

ConvertedRow ConvertNumbers(const MaterialRow& row) {
    auto number = [&](MaterialField field) -> std::optional<double> {
        try {
            return row[field].ToDouble();
        } catch (const support::Error&) {
            return std::nullopt;
        }
    };
    MaterialNumbers numbers;
    auto density = number(kDensity);
    if (!density) return {std::nullopt, kDensity};
    numbers.density = *density;
    for (std::size_t i = 0; i < std::size(kValueFields); ++i) {
        auto value = number(kValueFields[i]);
        if (!value) return {std::nullopt, kValueFields[i]};
        numbers.values[i] = *value;
    }
    return {numbers, kName};
}

void WriteMaterialValues(host::Material& material, const MaterialNumbers& numbers) {
    material.SetLinearExpansion(numbers.values[0]);
    material.SetPoissonsRatio(numbers.values[1]);
    material.SetSpecificHeat(numbers.values[2]);
    material.SetThermalConductivity(numbers.values[3]);
    material.SetUltimateTensileStrength(numbers.values[4]);
    material.SetYieldStrength(numbers.values[5]);
    material.SetYoungsModulus(numbers.values[6]);
}

const MaterialRow* FindMaterialRow(const std::vector<MaterialRow>& table, const std::string& name) {
    for (const auto& row : table)
        if (row[kName].ToText() == name) return &row;
    return nullptr;
}

}  // namespace materials
