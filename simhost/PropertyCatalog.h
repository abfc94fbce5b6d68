#pragma once
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

// The standard property sets every document carries, in the host's order, with the
// properties each holds. Positions in a set follow the order of its table.
namespace simhost::catalog {

enum class ValueKind { Text, Number, Currency, Date, Boolean };
const char* KindName(ValueKind kind);

struct PropertyDef {
    const char* name;
    std::int32_t id;
    ValueKind kind;
};

struct SetDef {
    const char* name;         // the host's internal set name
    const char* displayName;  // also the key of the set in the file format
    const char* formatId;
    std::span<const PropertyDef> properties;  // empty for the user-defined set
};

inline constexpr int kSummarySet = 0;
inline constexpr int kDocumentSummarySet = 1;
inline constexpr int kDesignTrackingSet = 2;
inline constexpr int kUserDefinedSet = 3;
inline constexpr int kStandardSetCount = 4;

inline constexpr std::int32_t kMaterialId = 20;  // Design Tracking: a part's material
inline constexpr std::int32_t kFirstCustomId = 2;

std::span<const SetDef> StandardSets();
// Index of the standard set with this display name, name or format identifier, or -1.
int FindStandardSet(std::string_view nameOrId);
const PropertyDef* FindByName(const SetDef& set, std::string_view name);
const PropertyDef* FindById(const SetDef& set, std::int32_t id);

}  // namespace simhost::catalog
