#include "simhost/PropertyCatalog.h"

#include <array>

#include "host/Codes.h"
#include "simhost/WinPath.h"

namespace simhost::catalog {

namespace {

using K = ValueKind;

constexpr PropertyDef kSummary[] = {
    {"Title", 2, K::Text},           {"Subject", 3, K::Text},  {"Author", 4, K::Text},
    {"Keywords", 5, K::Text},        {"Comments", 6, K::Text}, {"Last Saved By", 8, K::Text},
    {"Revision Number", 9, K::Text},
};

constexpr PropertyDef kDocumentSummary[] = {
    {"Category", 2, K::Text},
    {"Manager", 14, K::Text},
    {"Company", 15, K::Text},
};

// Part Number 2, Material 10, Description 14, Vendor 15 and Cost 21 sit where the
// add-in reaches them by position; the rest fill the set out.
constexpr PropertyDef kDesignTracking[] = {
    {"Creation Time", 4, K::Date},
    {"Part Number", 5, K::Text},
    {"Project", 7, K::Text},
    {"Cost Center", 9, K::Text},
    {"Checked By", 10, K::Text},
    {"Date Checked", 11, K::Date},
    {"Engr Approved By", 12, K::Text},
    {"Engr Date Approved", 13, K::Date},
    {"User Status", 17, K::Text},
    {"Material", kMaterialId, K::Text},
    {"Part Property Revision Id", 21, K::Text},
    {"Catalog Web Link", 23, K::Text},
    {"Document SubType", 31, K::Text},
    {"Description", 29, K::Text},
    {"Vendor", 30, K::Text},
    {"Document SubType Name", 32, K::Text},
    {"Mfg Approved By", 34, K::Text},
    {"Mfg Date Approved", 35, K::Date},
    {"Standard", 37, K::Text},
    {"Design Status", 40, K::Number},
    {"Cost", 36, K::Currency},
    {"Designer", 41, K::Text},
    {"Engineer", 42, K::Text},
    {"Authority", 43, K::Text},
    {"Standard Revision", 47, K::Text},
    {"Manufacturer", 48, K::Text},
    {"Standards Organization", 49, K::Text},
    {"Stock Number", 55, K::Text},
    {"Categories", 56, K::Text},
    {"Defer Updates", 51, K::Boolean},
};

const std::array<SetDef, kStandardSetCount> kSets = {{
    {"Inventor Summary Information", "Summary Information", host::kSummaryInformationSet, kSummary},
    {"Inventor Document Summary Information", "Document Summary Information", host::kDocumentSummarySet,
     kDocumentSummary},
    {"Design Tracking Properties", "Design Tracking Properties", host::kDesignTrackingSet, kDesignTracking},
    {"Inventor User Defined Properties", "User Defined Properties", host::kUserDefinedSet, {}},
}};

}  // namespace

const char* KindName(ValueKind kind) {
    switch (kind) {
        case K::Text:
            return "text";
        case K::Number:
            return "number";
        case K::Currency:
            return "currency";
        case K::Date:
            return "date";
        case K::Boolean:
            return "boolean";
    }
    return "?";
}

std::span<const SetDef> StandardSets() {
    return kSets;
}

int FindStandardSet(std::string_view nameOrId) {
    for (int i = 0; i < kStandardSetCount; ++i) {
        const SetDef& s = kSets[i];
        if (nameOrId == s.name || nameOrId == s.displayName || winpath::EqualNoCase(nameOrId, s.formatId))
            return i;
    }
    return -1;
}

const PropertyDef* FindByName(const SetDef& set, std::string_view name) {
    for (const auto& p : set.properties)
        if (name == p.name) return &p;
    return nullptr;
}

const PropertyDef* FindById(const SetDef& set, std::int32_t id) {
    for (const auto& p : set.properties)
        if (id == p.id) return &p;
    return nullptr;
}

}  // namespace simhost::catalog
