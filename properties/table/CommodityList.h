#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace properties {

// Where the eMatrix commodity list lies: one level above the host's product folder of
// release 8, whatever release is installed, as the company's installations have it.
inline constexpr const char* kCommodityFile = "C:\\Program Files\\Autodesk\\Applied\\commodity.txt";

// The entries of the commodity file: each line (ended by CR LF, LF or CR) trimmed of
// surrounding spaces, then without its last character, the terminator the list puts
// there ("1234 Bolts;" gives "1234 Bolts"). A line left empty gives no entry. The file is
// a Windows text file: text that is not UTF-8 is read as Windows-1252, and NUL characters
// are dropped, so that any file gives entries the rest of the add-in can store.
std::vector<std::string> ReadCommodityEntries(std::string_view fileText);

// The first four characters of an entry: its commodity code (fewer when it is shorter).
std::string CommodityCode(std::string_view entry);

}  // namespace properties
