#pragma once
#include <cstdint>
#include <string>

#include "host/Styles.h"
#include "simhost/DocData.h"

namespace simhost {

// Mass and length units of a document. Database values are kg and cm. Values are shown
// with three decimals and the unit's abbreviation: "1.234 kg", "12.700 mm". Expressions
// are a number with an optional unit ("2 kg", "4.4 lbmass", "500 g"); without a unit the
// number is in the units asked for.
class SimUnitsOfMeasure : public host::UnitsOfMeasure {
public:
    explicit SimUnitsOfMeasure(SimDocumentPtr doc) : doc_(std::move(doc)) {}
    std::string GetStringFromValue(double value, std::int32_t unitsType) const override;
    std::string GetStringFromValue(double value, const std::string& unitText) const override;
    double GetValueFromExpression(const std::string& expression, std::int32_t unitsType) const override;
    std::string GetStringFromType(std::int32_t unitsType) const override;
    std::int32_t MassUnits() const override;
    void SetMassUnits(std::int32_t unitsType) override;
    std::int32_t LengthUnits() const override;

private:
    struct Unit {
        const char* name;
        bool mass;
        double perUnit;  // database units (kg or cm) in one of this unit
    };
    Unit Resolve(std::int32_t unitsType) const;
    SimDocumentPtr doc_;
};

}  // namespace simhost
