#include "properties/table/AttributeHelpers.h"

#include <memory>

#include "host/Application.h"
#include "host/Codes.h"
#include "host/Component.h"
#include "host/Document.h"
#include "host/Properties.h"
#include "support/Error.h"

namespace properties {

void SetAttribute(host::Application& app, const std::string& setName, host::Document& document,
                  const std::string& attributeName, const std::string& value) {
    if (document.DocumentType() == host::kPresentationDocumentObject) {
        app.SetStatusBarText("Presentation Files are not linked");
        return;
    }
    std::shared_ptr<host::AttributeSets> sets;
    try {
        sets = document.ComponentDefinition()->AttributeSets();
    } catch (const support::Error&) {
        return;  // a document without a definition carries no attributes
    }
    std::shared_ptr<host::AttributeSet> set;
    try {
        set = sets->Add(setName);
    } catch (const support::Error&) {
        try {
            set = sets->Item(setName);  // the set was there already
        } catch (const support::Error&) {
            return;
        }
    }
    try {
        set->Add(attributeName, host::kStringType, value);
    } catch (const support::Error&) {
        try {
            set->Item(attributeName)->SetValue(value);  // the attribute was there already
        } catch (const support::Error&) {
        }
    }
}

std::string GetAttribute(const std::string& setName, host::Document& document,
                         const std::string& attributeName) {
    auto sets = document.ComponentDefinition()->AttributeSets();
    if (!sets->NameIsUsed(setName)) return "";
    auto set = sets->Item(setName);
    if (!set->NameIsUsed(attributeName)) return "";
    return set->Item(attributeName)->Value().ToText();
}

}  // namespace properties
