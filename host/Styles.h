#pragma once
#include <cstdint>
#include <memory>
#include <string>

#include "host/Object.h"

namespace host {

class RenderStyle {
public:
    virtual ~RenderStyle() = default;
    virtual std::string Name() const = 0;
    virtual bool InUse() const = 0;
    virtual std::int32_t StyleLocation() const = 0;
    virtual void Delete() = 0;  // the host refuses a style in use
};

class Material {
public:
    virtual ~Material() = default;
    virtual std::string Name() const = 0;
    virtual double Density() const = 0;  // g/cm^3
    virtual std::shared_ptr<host::RenderStyle> RenderStyle() = 0;
    virtual bool InUse() const = 0;
    virtual std::int32_t StyleLocation() const = 0;
    virtual void Delete() = 0;
};

class UnitsOfMeasure {
public:
    virtual ~UnitsOfMeasure() = default;
    // Database value (kg for mass, cm for length) to display text in the given units.
    virtual std::string GetStringFromValue(double value, std::int32_t unitsType) const = 0;
    // An expression such as "2 kg" or "4.4 lbmass" to a database value; throws when invalid.
    virtual double GetValueFromExpression(const std::string& expression, std::int32_t unitsType) const = 0;
    virtual std::string GetStringFromType(std::int32_t unitsType) const = 0;
    virtual std::int32_t MassUnits() const = 0;
    virtual void SetMassUnits(std::int32_t unitsType) = 0;
    virtual std::int32_t LengthUnits() const = 0;
};

}  // namespace host
