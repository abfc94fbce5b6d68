#include "simhost/HostNames.h"

#include <cmath>
#include <cstdio>

#include "host/Codes.h"

namespace simhost::names {

const char* Orientation(std::int32_t code) {
    switch (code) {
        case host::kDefaultViewOrientation:
            return "Default";
        case host::kTopViewOrientation:
            return "Top";
        case host::kRightViewOrientation:
            return "Right";
        case host::kBackViewOrientation:
            return "Back";
        case host::kBottomViewOrientation:
            return "Bottom";
        case host::kLeftViewOrientation:
            return "Left";
        case host::kIsoTopRightViewOrientation:
            return "Iso Top Right";
        case host::kIsoTopLeftViewOrientation:
            return "Iso Top Left";
        case host::kIsoBottomRightViewOrientation:
            return "Iso Bottom Right";
        case host::kIsoBottomLeftViewOrientation:
            return "Iso Bottom Left";
        case host::kFrontViewOrientation:
            return "Front";
    }
    return nullptr;
}

namespace {
struct MassUnitRow {
    std::int32_t code;
    const char* name;
    double kilograms;
};
constexpr MassUnitRow kMassUnits[] = {
    {host::kKilogramMassUnits, "kg", 1.0},
    {host::kGramMassUnits, "g", 0.001},
    {host::kSlugMassUnits, "slug", 14.593902937206364},
    {host::kLbMassMassUnits, "lbmass", 0.45359237},
};
}  // namespace

const char* MassUnit(std::int32_t code) {
    for (const auto& u : kMassUnits)
        if (u.code == code) return u.name;
    return nullptr;
}

std::optional<std::int32_t> MassUnitCode(std::string_view name) {
    for (const auto& u : kMassUnits)
        if (name == u.name) return u.code;
    return std::nullopt;
}

double KilogramsPer(std::int32_t massCode) {
    for (const auto& u : kMassUnits)
        if (u.code == massCode) return u.kilograms;
    return 1.0;
}

const char* StyleLocation(std::int32_t code) {
    switch (code) {
        case host::kLocalStyleLocation:
            return "local";
        case host::kLibraryStyleLocation:
            return "library";
        case host::kBothStyleLocation:
            return "both";
    }
    return nullptr;
}

std::optional<std::int32_t> StyleLocationCode(std::string_view name) {
    if (name == "local") return host::kLocalStyleLocation;
    if (name == "library") return host::kLibraryStyleLocation;
    if (name == "both") return host::kBothStyleLocation;
    return std::nullopt;
}

namespace {

// Days from 1970-01-01 of a civil date (proleptic Gregorian), after H. Hinnant.
long DaysFromCivil(long y, unsigned m, unsigned d) {
    y -= m <= 2;
    const long era = (y >= 0 ? y : y - 399) / 400;
    const unsigned yoe = static_cast<unsigned>(y - era * 400);
    const unsigned doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
    const unsigned doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return era * 146097 + static_cast<long>(doe) - 719468;
}

void CivilFromDays(long z, long& y, unsigned& m, unsigned& d) {
    z += 719468;
    const long era = (z >= 0 ? z : z - 146096) / 146097;
    const unsigned doe = static_cast<unsigned>(z - era * 146097);
    const unsigned yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
    y = static_cast<long>(yoe) + era * 400;
    const unsigned doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
    const unsigned mp = (5 * doy + 2) / 153;
    d = doy - (153 * mp + 2) / 5 + 1;
    m = mp < 10 ? mp + 3 : mp - 9;
    y += m <= 2;
}

constexpr long kSerialEpoch = -25569;  // 1899-12-30 in days from 1970-01-01

bool Digits(std::string_view s, std::size_t at, std::size_t n, int& out) {
    if (at + n > s.size()) return false;
    out = 0;
    for (std::size_t i = at; i < at + n; ++i) {
        if (s[i] < '0' || s[i] > '9') return false;
        out = out * 10 + (s[i] - '0');
    }
    return true;
}

}  // namespace

std::optional<double> ParseIsoDate(std::string_view t) {
    int y, mo, d, h = 0, mi = 0, s = 0;
    if (!Digits(t, 0, 4, y) || t.size() < 10 || t[4] != '-' || !Digits(t, 5, 2, mo) || t[7] != '-' ||
        !Digits(t, 8, 2, d))
        return std::nullopt;
    if (t.size() != 10) {
        if (t.size() != 19 || t[10] != ' ' || !Digits(t, 11, 2, h) || t[13] != ':' || !Digits(t, 14, 2, mi) ||
            t[16] != ':' || !Digits(t, 17, 2, s))
            return std::nullopt;
    }
    if (mo < 1 || mo > 12 || d < 1 || h > 23 || mi > 59 || s > 59) return std::nullopt;
    long days = DaysFromCivil(y, static_cast<unsigned>(mo), static_cast<unsigned>(d));
    long back_y;
    unsigned back_m, back_d;
    CivilFromDays(days, back_y, back_m, back_d);
    if (back_m != static_cast<unsigned>(mo) || back_d != static_cast<unsigned>(d)) return std::nullopt;
    return static_cast<double>(days - kSerialEpoch) + (h * 3600 + mi * 60 + s) / 86400.0;
}

std::string IsoDate(double serial) {
    double whole = std::floor(serial);
    long seconds = std::lround((serial - whole) * 86400.0);
    long days = static_cast<long>(whole) + kSerialEpoch;
    if (seconds >= 86400) {
        seconds -= 86400;
        ++days;
    }
    long y;
    unsigned m, d;
    CivilFromDays(days, y, m, d);
    char buf[40];
    if (seconds == 0)
        std::snprintf(buf, sizeof buf, "%04ld-%02u-%02u", y, m, d);
    else
        std::snprintf(buf, sizeof buf, "%04ld-%02u-%02u %02ld:%02ld:%02ld", y, m, d, seconds / 3600,
                      seconds / 60 % 60, seconds % 60);
    return buf;
}

}  // namespace simhost::names
