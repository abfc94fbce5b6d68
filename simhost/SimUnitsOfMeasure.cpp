#include "simhost/SimUnitsOfMeasure.h"

#include <charconv>
#include <cmath>
#include <cstdio>

#include "host/Codes.h"
#include "simhost/HostCalls.h"
#include "simhost/HostNames.h"
#include "simhost/SimDocument.h"
#include "support/Error.h"

using support::Error;
namespace errors = support::errors;

namespace simhost {

namespace {

// The host's length unit codes; documents here always show millimetres.
constexpr std::int32_t kCentimeterLengthUnits = 11268;
constexpr std::int32_t kMillimeterLengthUnits = 11269;
constexpr std::int32_t kMeterLengthUnits = 11270;
constexpr std::int32_t kInchLengthUnits = 11272;

struct LengthUnit {
    std::int32_t code;
    const char* name;
    double centimetres;
};
constexpr LengthUnit kLengthUnits[] = {
    {kCentimeterLengthUnits, "cm", 1.0},
    {kMillimeterLengthUnits, "mm", 0.1},
    {kMeterLengthUnits, "m", 100.0},
    {kInchLengthUnits, "in", 2.54},
};

std::string_view TrimBlanks(std::string_view s) {
    while (!s.empty() && (s.front() == ' ' || s.front() == '\t')) s.remove_prefix(1);
    while (!s.empty() && (s.back() == ' ' || s.back() == '\t')) s.remove_suffix(1);
    return s;
}

}  // namespace

SimUnitsOfMeasure::Unit SimUnitsOfMeasure::Resolve(std::int32_t unitsType) const {
    if (unitsType == host::kDefaultDisplayMassUnits) unitsType = doc_->Data().massUnits;
    if (unitsType == host::kDefaultDisplayLengthUnits) unitsType = kMillimeterLengthUnits;
    if (const char* mass = names::MassUnit(unitsType)) return {mass, true, names::KilogramsPer(unitsType)};
    for (const auto& u : kLengthUnits)
        if (u.code == unitsType) return {u.name, false, u.centimetres};
    throw Error(errors::kInvalidArg, "Units type " + std::to_string(unitsType) + " is not supported");
}

std::string SimUnitsOfMeasure::GetStringFromValue(double value, std::int32_t unitsType) const {
    SIM_HOST_CALL("UnitsOfMeasure.GetStringFromValue");
    Unit unit = Resolve(unitsType);
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.3f %s", value / unit.perUnit, unit.name);
    return buf;
}

// A unit named in text: a mass unit, or a length unit with an optional power ("mm^3").
std::string SimUnitsOfMeasure::GetStringFromValue(double value, const std::string& unitText) const {
    SIM_HOST_CALL("UnitsOfMeasure.GetStringFromValue");
    std::string_view text = TrimBlanks(unitText);
    char buf[96];
    if (auto mass = names::MassUnitCode(text)) {
        std::snprintf(buf, sizeof buf, "%.3f %s", value / names::KilogramsPer(*mass), names::MassUnit(*mass));
        return buf;
    }
    int power = 1;
    std::string_view base = text;
    if (auto caret = text.find('^'); caret != std::string_view::npos) {
        std::string_view exponent = text.substr(caret + 1);
        power = exponent == "2" ? 2 : exponent == "3" ? 3 : 0;
        base = text.substr(0, caret);
    }
    for (const auto& u : kLengthUnits)
        if (power && base == u.name) {
            std::snprintf(buf, sizeof buf, "%.3f %s", value / std::pow(u.centimetres, power),
                          std::string(text).c_str());
            return buf;
        }
    throw Error(errors::kInvalidArg, "Unit \"" + unitText + "\" is not supported");
}

double SimUnitsOfMeasure::GetValueFromExpression(const std::string& expression,
                                                 std::int32_t unitsType) const {
    SIM_HOST_CALL("UnitsOfMeasure.GetValueFromExpression");
    Unit wanted = Resolve(unitsType);
    auto invalid = [&]() { return Error(errors::kInvalidArg, "Invalid expression: \"" + expression + "\""); };
    std::string_view text = TrimBlanks(expression);
    if (!text.empty() && text.front() == '+') text.remove_prefix(1);
    double number = 0;
    auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (ec != std::errc() || end == text.data()) throw invalid();
    std::string_view unitName =
        TrimBlanks(std::string_view(end, static_cast<std::size_t>(text.data() + text.size() - end)));
    if (unitName.empty()) return number * wanted.perUnit;
    if (auto mass = names::MassUnitCode(unitName)) {
        if (!wanted.mass) throw invalid();
        return number * names::KilogramsPer(*mass);
    }
    for (const auto& u : kLengthUnits)
        if (unitName == u.name) {
            if (wanted.mass) throw invalid();
            return number * u.centimetres;
        }
    throw invalid();
}

std::string SimUnitsOfMeasure::GetStringFromType(std::int32_t unitsType) const {
    SIM_HOST_CALL("UnitsOfMeasure.GetStringFromType");
    return Resolve(unitsType).name;
}

std::int32_t SimUnitsOfMeasure::MassUnits() const {
    SIM_HOST_CALL("UnitsOfMeasure.MassUnits");
    return doc_->Data().massUnits;
}

void SimUnitsOfMeasure::SetMassUnits(std::int32_t unitsType) {
    SIM_HOST_CALL("UnitsOfMeasure.SetMassUnits");
    if (!names::MassUnit(unitsType))
        throw Error(errors::kInvalidArg, "Units type " + std::to_string(unitsType) + " is not a mass unit");
    if (unitsType != doc_->Data().massUnits) doc_->Edit().massUnits = unitsType;
}

std::int32_t SimUnitsOfMeasure::LengthUnits() const {
    SIM_HOST_CALL("UnitsOfMeasure.LengthUnits");
    return kMillimeterLengthUnits;
}

}  // namespace simhost
