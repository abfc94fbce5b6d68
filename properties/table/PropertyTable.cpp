#include "properties/table/PropertyTable.h"

#include <functional>

#include "copy/paths/Paths.h"
#include "host/Codes.h"
#include "host/Component.h"
#include "host/Document.h"
#include "host/Properties.h"
#include "host/Styles.h"
#include "support/Error.h"

namespace properties {

std::shared_ptr<host::Property> FindProperty(host::Document& document, const PropertyAddress& address) {
    auto sets = document.PropertySets();
    auto set =
        address.setPosition != 0 ? sets->Item(address.setPosition) : sets->Item(std::string(address.setId));
    support::Required(set, "property set");
    auto property = address.by == PropertyAddress::By::Identifier ? set->ItemByPropId(address.number)
                                                                  : set->Item(address.number);
    return support::Required(property, "property");
}

support::Variant ReadProperty(host::Document& document, const PropertyAddress& address) {
    return FindProperty(document, address)->Value();
}

void WriteProperty(host::Document& document, const PropertyAddress& address, const support::Variant& value) {
    FindProperty(document, address)->SetValue(value);
}

namespace {

std::string MassText(host::Document& document) {
    double mass = document.ComponentDefinition()->MassProperties()->Mass();
    return document.UnitsOfMeasure()->GetStringFromValue(mass, host::kDefaultDisplayMassUnits);
}

std::string ColorText(host::Document& document) {
    if (document.DocumentType() != host::kPartDocumentObject) return "";
    auto style = document.ActiveRenderStyle();
    return support::Required(style, "render style")->Name();
}

// Reads one value; a value the host refuses to give shows as the fallback.
std::string ReadOrFallback(const std::function<std::string()>& read, const std::string& fallback = "") {
    try {
        return read();
    } catch (const support::Error&) {
        return fallback;
    }
}

}  // namespace

PropertyRows ReadPropertyRows(host::Document& document) {
    auto property = [&](const PropertyAddress& address) {
        return ReadOrFallback([&] { return ReadProperty(document, address).ToText(); });
    };
    auto path = paths::SplitPath(document.FullFileName());
    return PropertyRows{{
        {"FileName", path.fileName},
        {"Path", path.directory},
        {"Title", property(kTitle)},
        {"Description", property(kDescription)},
        {"PartNumber", property(kPartNumber)},
        {"Revision", property(kRevisionNumber)},
        {"Color", ReadOrFallback([&] { return ColorText(document); })},
        {"Material", property(kMaterial)},
        {"Mass", ReadOrFallback([&] { return MassText(document); }, kMassNotAvailable)},
        {"Vendor", property(kVendor)},
        {"Cost", property(kCost)},
        {"Keywords", property(kKeywords)},
    }};
}

}  // namespace properties
