#pragma once
#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "support/Variant.h"

namespace host {
class Document;
class Property;
}  // namespace host

// The one table of the host property sets and the properties the add-in reads and
// writes. Every dialog reaches a property through an address below, so that each is
// found exactly the same way everywhere: some by identifier, some by position.
namespace properties {

inline constexpr const char* kSummaryInformationId = "{F29F85E0-4FF9-1068-AB91-08002B27B3D9}";
inline constexpr const char* kDesignTrackingId = "{32853F0F-3444-11D1-9E93-0060B03C1CA6}";
inline constexpr const char* kUserDefinedId = "{D5CDD505-2E9C-101B-9397-08002B2CF9AE}";
inline constexpr const char* kEMatrixId = "{BA8ABDE7-F753-11D6-AA4D-0002551A5AF4}";
inline constexpr const char* kEMatrixName = "eMatrix";
// The property dialogs reach Design Tracking Properties by its place in the collection.
inline constexpr std::int32_t kDesignTrackingPosition = 3;

// Where a property lives: its set (by format identifier, or by position when setPosition
// is not 0) and the property in it (by identifier, or by position from 1).
struct PropertyAddress {
    const char* setId;
    std::int32_t setPosition;
    enum class By { Identifier, Position } by;
    std::int32_t number;
};

inline constexpr PropertyAddress kTitle{kSummaryInformationId, 0, PropertyAddress::By::Identifier, 2};
inline constexpr PropertyAddress kKeywords{kSummaryInformationId, 0, PropertyAddress::By::Identifier, 5};
inline constexpr PropertyAddress kRevisionNumber{kSummaryInformationId, 0, PropertyAddress::By::Identifier,
                                                 9};
inline constexpr PropertyAddress kPartNumber{nullptr, kDesignTrackingPosition, PropertyAddress::By::Position,
                                             2};
inline constexpr PropertyAddress kMaterial{nullptr, kDesignTrackingPosition, PropertyAddress::By::Position,
                                           10};
inline constexpr PropertyAddress kDescription{nullptr, kDesignTrackingPosition, PropertyAddress::By::Position,
                                              14};
inline constexpr PropertyAddress kVendor{nullptr, kDesignTrackingPosition, PropertyAddress::By::Position, 15};
inline constexpr PropertyAddress kCost{nullptr, kDesignTrackingPosition, PropertyAddress::By::Position, 21};
// The eMatrix dialog reaches the description by identifier in the same set.
inline constexpr PropertyAddress kDescriptionById{kDesignTrackingId, 0, PropertyAddress::By::Identifier, 29};

// Throws what the host throws when the set or the property is not there.
std::shared_ptr<host::Property> FindProperty(host::Document& document, const PropertyAddress& address);
support::Variant ReadProperty(host::Document& document, const PropertyAddress& address);
void WriteProperty(host::Document& document, const PropertyAddress& address, const support::Variant& value);

// The twelve rows both property dialogs list, in this order.
enum Row : int {
    kFileNameRow = 0,
    kPathRow,
    kTitleRow,
    kDescriptionRow,
    kPartNumberRow,
    kRevisionRow,
    kColorRow,
    kMaterialRow,
    kMassRow,
    kVendorRow,
    kCostRow,
    kKeywordsRow,
};
inline constexpr int kRowCount = 12;

inline constexpr const char* kMassNotAvailable = "Mass Not Available";

struct PropertyRow {
    std::string label;
    std::string value;
};
using PropertyRows = std::array<PropertyRow, kRowCount>;

// Reads the twelve rows of a document. A value the host cannot give is shown empty
// ("Mass Not Available" for the mass), and the other rows are still read: a list with
// one blank line says more than no list at all.
PropertyRows ReadPropertyRows(host::Document& document);

}  // namespace properties
