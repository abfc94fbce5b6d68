#pragma once
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "support/Variant.h"

namespace host {
class Material;
}

namespace materials {

// A material as the dialogs move it: ten fields in a fixed order. Field 0 is the name and
// field 4 the name of its render style; the others are numbers, held as the host gave them
// or, for a material typed in, as the text of its field, converted when written.
enum MaterialField : std::size_t {
    kName = 0,
    kDensity,
    kLinearExpansion,
    kPoissonsRatio,
    kRenderStyle,
    kSpecificHeat,
    kThermalConductivity,
    kUltimateTensileStrength,
    kYieldStrength,
    kYoungsModulus,
    kMaterialFieldCount,
};
using MaterialRow = std::array<support::Variant, kMaterialFieldCount>;

// The fields' names as the user reads them, for messages.
const char* MaterialFieldName(MaterialField field);

MaterialRow ReadMaterialRow(host::Material& material);

// The numbers of a row, converted all at once so that a material is never left half
// written: nullopt names the first field that is no number.
struct MaterialNumbers {
    double density = 0;
    std::array<double, 7> values{};  // the fields written after the density, in their order
};
struct ConvertedRow {
    std::optional<MaterialNumbers> numbers;
    MaterialField badField = kName;
};
ConvertedRow ConvertNumbers(const MaterialRow& row);

// Writes the seven values after the density, in this order: linear expansion, Poisson's
// ratio, specific heat, thermal conductivity, ultimate tensile strength, yield strength,
// Young's modulus.
void WriteMaterialValues(host::Material& material, const MaterialNumbers& numbers);

// The first row whose name equals `name` exactly; null when none does.
const MaterialRow* FindMaterialRow(const std::vector<MaterialRow>& table, const std::string& name);

}  // namespace materials
