#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Names the stand-in uses for some of the host's codes, in files and descriptions.
namespace simhost::names {

// View orientations: "Iso Top Right" for 10759...; nullptr for a code that is none.
const char* Orientation(std::int32_t code);

// Mass units: "kg" 11283, "g" 11284, "slug" 11285, "lbmass" 11286.
const char* MassUnit(std::int32_t code);  // nullptr for another code
std::optional<std::int32_t> MassUnitCode(std::string_view name);
double KilogramsPer(std::int32_t massCode);

// Style locations: "local" 51202, "library" 51203, "both" 51201.
const char* StyleLocation(std::int32_t code);
std::optional<std::int32_t> StyleLocationCode(std::string_view name);

// Dates as "YYYY-MM-DD" or "YYYY-MM-DD HH:MM:SS", the host's day serial (days since
// 1899-12-30, the fraction the time of day).
std::optional<double> ParseIsoDate(std::string_view text);
std::string IsoDate(double serial);

}  // namespace simhost::names
