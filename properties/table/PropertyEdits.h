#pragma once
#include "properties/table/PropertyTable.h"

namespace host {
class Document;
}
namespace ui {
class Platform;
}

// Editing one row of the property list through an input box: the part that the part
// properties dialog and the main tools dialog share.
namespace properties {

inline constexpr const char* kSaveFirst = "Please save the file before adding properties";
inline constexpr const char* kNotCurrency = "The value you entered is not a valid currency format";
inline constexpr const char* kMaterialPartsOnly = "Material can only be changed on Part Documents";
inline constexpr const char* kWeightPartsOnly = "Weight can only be changed on Part Documents";
inline constexpr const char* kSaveError = "There was an error saving the file.";

// A row edited in an input box: its property, the box's prompt and title.
struct TextEdit {
    int row;
    PropertyAddress address;
    const char* prompt;
    const char* title;
    bool currency;
};

// The input-box edit of a row, or null when the row is edited some other way.
const TextEdit* FindTextEdit(int row);

// Asks for the new value with the current one as default and writes it. An empty
// answer leaves the property as it is (an input box cannot tell a cancel from a cleared
// field). A cost that is not a currency amount is refused with a message. True when a
// value was written.
bool EditInInputBox(ui::Platform& platform, host::Document& document, const TextEdit& edit);

}  // namespace properties
