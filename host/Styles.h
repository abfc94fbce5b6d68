#pragma once
#include <cstdint>
#include <memory>
#include <string>

#include "host/Object.h"

namespace host {

// A colour as the host gives and takes it: three bytes.
struct Rgb {
    std::uint8_t red = 0, green = 0, blue = 0;
    friend bool operator==(Rgb, Rgb) = default;
};

// A render style (colour). The host's automation interface knows its values only by
// dispatch identifier; the names here are ours, and host/RenderStyleMembers.h keeps each
// identifier beside its name for the adapter over the real host.
class RenderStyle {
public:
    virtual ~RenderStyle() = default;
    virtual std::string Name() const = 0;
    virtual bool InUse() const = 0;
    virtual std::int32_t StyleLocation() const = 0;
    virtual void Delete() = 0;  // the host refuses a style in use

    virtual double Opacity() const = 0;
    virtual void SetOpacity(double value) = 0;
    virtual double Shininess() const = 0;
    virtual void SetShininess(double value) = 0;
    virtual std::string TextureFilename() const = 0;
    virtual void SetTextureFilename(const std::string& fileName) = 0;
    virtual double TextureScale() const = 0;
    virtual void SetTextureScale(double value) = 0;
    virtual double TextureRotation() const = 0;
    virtual void SetTextureRotation(double value) = 0;
    virtual Rgb GetAmbientColor() const = 0;
    virtual void SetAmbientColor(Rgb color) = 0;
    virtual Rgb GetDiffuseColor() const = 0;
    virtual void SetDiffuseColor(Rgb color) = 0;
    virtual Rgb GetSpecularColor() const = 0;
    virtual void SetSpecularColor(Rgb color) = 0;
    virtual Rgb GetEmissiveColor() const = 0;
    virtual void SetEmissiveColor(Rgb color) = 0;
};

// A material, its physical values in the host's internal units: density in kilograms
// per cubic centimetre, the others as the host keeps them, never converted.
class Material {
public:
    virtual ~Material() = default;
    virtual std::string Name() const = 0;
    virtual bool InUse() const = 0;
    virtual std::int32_t StyleLocation() const = 0;
    virtual void Delete() = 0;  // the host refuses a material in use

    virtual double Density() const = 0;  // kg/cm^3
    virtual void SetDensity(double value) = 0;
    virtual double LinearExpansion() const = 0;
    virtual void SetLinearExpansion(double value) = 0;
    virtual double PoissonsRatio() const = 0;
    virtual void SetPoissonsRatio(double value) = 0;
    virtual double SpecificHeat() const = 0;
    virtual void SetSpecificHeat(double value) = 0;
    virtual double ThermalConductivity() const = 0;
    virtual void SetThermalConductivity(double value) = 0;
    virtual double UltimateTensileStrength() const = 0;
    virtual void SetUltimateTensileStrength(double value) = 0;
    virtual double YieldStrength() const = 0;
    virtual void SetYieldStrength(double value) = 0;
    virtual double YoungsModulus() const = 0;
    virtual void SetYoungsModulus(double value) = 0;
    virtual std::shared_ptr<host::RenderStyle> RenderStyle() = 0;  // null when it names none
    virtual void SetRenderStyle(const std::shared_ptr<host::RenderStyle>& style) = 0;
};

class UnitsOfMeasure {
public:
    virtual ~UnitsOfMeasure() = default;
    // Database value (kg for mass, cm for length) to display text in the given units.
    virtual std::string GetStringFromValue(double value, std::int32_t unitsType) const = 0;
    // The same with the unit given as text, such as "mm^3".
    virtual std::string GetStringFromValue(double value, const std::string& unitText) const = 0;
    // An expression such as "2 kg" or "4.4 lbmass" to a database value; throws when invalid.
    virtual double GetValueFromExpression(const std::string& expression, std::int32_t unitsType) const = 0;
    virtual std::string GetStringFromType(std::int32_t unitsType) const = 0;
    virtual std::int32_t MassUnits() const = 0;
    virtual void SetMassUnits(std::int32_t unitsType) = 0;
    virtual std::int32_t LengthUnits() const = 0;
};

}  // namespace host
