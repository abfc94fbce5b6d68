// Dates as OLE serials (days since 1899-12-30, the fraction is the time of day), en-US
// parsing and the "General Date" format.
//
// Serials before day 0 follow the OLE rule: the whole part counts days back and the
// fraction is still the time forward from midnight, so -1.25 is 12/29/1899 6:00:00 AM.
// The range is the platform's, 1/1/100 to 12/31/9999; beyond it is an overflow.
#include <cctype>
#include <cmath>
#include <cstdio>
#include <string>
#include <string_view>

#include "support/Decimal.h"
#include "support/Text.h"

namespace support {

namespace {

constexpr long long kDaysFrom1970 = 25569;  // 1899-12-30 to 1970-01-01
constexpr long long kFirstDay = -657434;    // 1/1/100
constexpr long long kLastDay = 2958465;     // 12/31/9999
constexpr long long kSecondsPerDay = 86400;

long long FloorDiv(long long a, long long b) {
    return a / b - ((a % b != 0) && ((a < 0) != (b < 0)));
}
long long FloorMod(long long a, long long b) {
    return a - FloorDiv(a, b) * b;
}

// Days since 1970-01-01 of a proleptic Gregorian date (month 1..12).
long long DaysFromCivil(long long y, int m, int d) {
    y -= m <= 2;
    long long era = FloorDiv(y, 400);
    long long yoe = y - era * 400;
    long long doy = (153 * (m > 2 ? m - 3 : m + 9) + 2) / 5 + d - 1;
    long long doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return era * 146097 + doe - 719468;
}

struct Civil {
    long long year;
    int month;
    int day;
};

Civil CivilFromDays(long long z) {
    z += 719468;
    long long era = FloorDiv(z, 146097);
    long long doe = z - era * 146097;
    long long yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
    long long doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
    long long mp = (5 * doy + 2) / 153;
    int day = static_cast<int>(doy - (153 * mp + 2) / 5 + 1);
    int month = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
    return {yoe + era * 400 + (month <= 2), month, day};
}

int DaysInMonth(long long year, int month) {
    static constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return month == 2 && leap ? 29 : kDays[month - 1];
}

// Splits a serial into whole days and seconds of the day, rounded to the second.
void Decode(double serial, long long& days, long long& seconds) {
    if (!std::isfinite(serial) || serial < kFirstDay - 1 || serial > kLastDay + 1) detail::ThrowOverflow();
    double whole = std::trunc(serial);
    days = static_cast<long long>(whole);
    seconds = std::llround(std::fabs(serial - whole) * kSecondsPerDay);
    if (seconds == kSecondsPerDay) {  // 23:59:59.6 rounds into the next day
        seconds = 0;
        ++days;
    }
    if (days < kFirstDay || days > kLastDay) detail::ThrowOverflow();
}

Date FromParts(long long days, long long seconds) {
    if (days < kFirstDay || days > kLastDay) detail::ThrowOverflow();
    double time = static_cast<double>(seconds) / kSecondsPerDay;
    return Date{days >= 0 ? static_cast<double>(days) + time : static_cast<double>(days) - time};
}

// A cursor over the text being parsed; every reader leaves pos alone when it fails.
struct Cursor {
    std::string_view s;
    std::size_t pos = 0;

    bool AtEnd() const { return pos == s.size(); }
    bool Blanks() {
        std::size_t start = pos;
        while (pos < s.size() && (s[pos] == ' ' || s[pos] == '\t')) ++pos;
        return pos != start;
    }
    bool Char(char c) {
        if (pos < s.size() && s[pos] == c) {
            ++pos;
            return true;
        }
        return false;
    }
    // A run of digits; width is how many there were.
    bool Number(int& value, int& width) {
        std::size_t start = pos;
        value = 0;
        while (pos < s.size() && std::isdigit(static_cast<unsigned char>(s[pos])) && pos - start < 6)
            value = value * 10 + (s[pos++] - '0');
        width = static_cast<int>(pos - start);
        if (pos < s.size() && std::isdigit(static_cast<unsigned char>(s[pos]))) width = 99;  // far too long
        return width > 0;
    }
    bool Word(std::string& word) {
        std::size_t start = pos;
        while (pos < s.size() && std::isalpha(static_cast<unsigned char>(s[pos]))) ++pos;
        word = LCase(s.substr(start, pos - start));
        return pos != start;
    }
};

int MonthFromName(const std::string& lower) {
    static constexpr const char* kNames[] = {"january",   "february", "march",    "april",
                                             "may",       "june",     "july",     "august",
                                             "september", "october",  "november", "december"};
    for (int i = 0; i < 12; ++i) {
        std::string_view name = kNames[i];
        if (lower == name || lower == name.substr(0, 3)) return i + 1;
    }
    return 0;
}

// One or two digits go through the window 00-29 -> 2000s, 30-99 -> 1900s; three or four
// digits stand as they are (years before 1000 print with three) from year 100 on.
bool YearFrom(int value, int width, long long& year) {
    if (width <= 2) {
        year = value < 30 ? 2000 + value : 1900 + value;
        return true;
    }
    year = value;
    return width <= 4 && value >= 100;
}

struct Ymd {
    long long year = 0;
    int month = 0;
    int day = 0;
};

// "M/D/Y", "M-D-Y", "YYYY-MM-DD", "YYYY/MM/DD", "Month D[,] Y", "D Month[,] Y".
// No day/month swap for "13/5/2024": a silent swap would hide a typing error.
bool ReadDate(Cursor& c, Ymd& out) {
    std::size_t start = c.pos;
    int a, aw, b, bw, y, yw;
    std::string word;
    bool ok = false;
    if (c.Number(a, aw)) {
        char sep = c.pos < c.s.size() ? c.s[c.pos] : '\0';
        if (sep == '/' || sep == '-') {
            if (!(c.Char(sep) && c.Number(b, bw) && c.Char(sep) && c.Number(y, yw))) {
                ok = false;
            } else if (aw == 4) {
                ok = bw <= 2 && yw <= 2 && YearFrom(a, aw, out.year);
                out.month = b;
                out.day = y;
            } else {
                ok = aw <= 2 && bw <= 2 && YearFrom(y, yw, out.year);
                out.month = a;
                out.day = b;
            }
        } else if (c.Blanks() && c.Word(word)) {
            out.day = a;
            out.month = MonthFromName(word);
            bool separated = c.Char(',');
            separated = c.Blanks() || separated;
            ok = aw <= 2 && separated && c.Number(y, yw) && YearFrom(y, yw, out.year);
        }
    } else if (c.Word(word) && c.Blanks() && c.Number(b, bw)) {
        out.month = MonthFromName(word);
        out.day = b;
        bool separated = c.Char(',');
        separated = c.Blanks() || separated;
        ok = bw <= 2 && separated && c.Number(y, yw) && YearFrom(y, yw, out.year);
    }
    ok = ok && out.year <= 9999 && out.month >= 1 && out.month <= 12 && out.day >= 1 &&
         out.day <= DaysInMonth(out.year, out.month);
    if (!ok) c.pos = start;
    return ok;
}

// "h:mm" or "h:mm:ss", 24-hour, or 1..12 with "AM"/"PM" (with or without a blank before).
bool ReadTime(Cursor& c, long long& seconds) {
    std::size_t start = c.pos;
    int h, hw, m, mw, s = 0, sw = 1;
    bool ok = c.Number(h, hw) && c.Char(':') && c.Number(m, mw);
    if (ok && c.Char(':')) ok = c.Number(s, sw);
    ok = ok && hw <= 2 && mw <= 2 && sw <= 2 && m <= 59 && s <= 59;
    if (ok) {
        std::size_t beforeMarker = c.pos;
        c.Blanks();
        std::string marker;
        if (c.Word(marker)) {
            ok = (marker == "am" || marker == "pm") && h >= 1 && h <= 12;
            h = h % 12 + (marker == "pm" ? 12 : 0);
        } else {
            c.pos = beforeMarker;
            ok = h <= 23;
        }
    }
    if (!ok) {
        c.pos = start;
        return false;
    }
    seconds = h * 3600LL + m * 60LL + s;
    return true;
}

}  // namespace

Date MakeDate(int year, int month, int day, int hour, int minute, int second) {
    // Out-of-range parts carry over as the platform's DateSerial and TimeSerial do:
    // month 13 is January of the next year, day 0 the last day of the month before.
    long long months = static_cast<long long>(month) - 1;
    long long y = year + FloorDiv(months, 12);
    int m = static_cast<int>(FloorMod(months, 12)) + 1;
    long long days = DaysFromCivil(y, m, 1) + kDaysFrom1970 + (static_cast<long long>(day) - 1);
    long long seconds = hour * 3600LL + minute * 60LL + second;
    days += FloorDiv(seconds, kSecondsPerDay);
    return FromParts(days, FloorMod(seconds, kSecondsPerDay));
}

std::optional<Date> ParseDate(std::string_view s) {
    std::size_t first = s.find_first_not_of(" \t");
    if (first == std::string_view::npos) return std::nullopt;
    s = s.substr(first, s.find_last_not_of(" \t") - first + 1);

    // A month and day without a year would need today's date; they are not dates here.
    Cursor c{s};
    Ymd ymd;
    long long seconds = 0;
    bool haveDate = ReadDate(c, ymd);
    if (haveDate && !c.AtEnd() && !(c.Blanks() && ReadTime(c, seconds))) return std::nullopt;
    if (!haveDate && !ReadTime(c, seconds)) return std::nullopt;
    if (!c.AtEnd()) return std::nullopt;
    if (!haveDate) return FromParts(0, seconds);
    return FromParts(DaysFromCivil(ymd.year, ymd.month, ymd.day) + kDaysFrom1970, seconds);
}

bool IsDate(std::string_view s) {
    return ParseDate(s).has_value();
}

// The date is left out on day 0 and the time at midnight; day 0 at midnight still
// shows its time, "12:00:00 AM", so that no date prints as nothing.
std::string FormatGeneralDate(Date d) {
    long long days = 0, seconds = 0;
    Decode(d.serial, days, seconds);
    std::string out;
    if (days != 0) {
        Civil civil = CivilFromDays(days - kDaysFrom1970);
        out =
            std::to_string(civil.month) + "/" + std::to_string(civil.day) + "/" + std::to_string(civil.year);
    }
    if (seconds != 0 || days == 0) {
        long long h = seconds / 3600, m = seconds / 60 % 60, s = seconds % 60;
        char buf[32];
        std::snprintf(buf, sizeof buf, "%lld:%02lld:%02lld %s", h % 12 == 0 ? 12 : h % 12, m, s,
                      h < 12 ? "AM" : "PM");
        if (!out.empty()) out += ' ';
        out += buf;
    }
    return out;
}

}  // namespace support
