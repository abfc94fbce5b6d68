#pragma once
#include <string>

namespace addin {
class AddinState;
}
namespace ui {
class Form;
}

namespace addin {

// A dialog that stays beside the host keeps its place in its own settings section:
// "DialogTop" and "DialogLeft", in twips. A stored value that is not a number the
// window can take (text, or beyond the 16-bit range of a window position) places the
// dialog at the default instead of failing its load.
void RestorePosition(addin::AddinState& state, ui::Form& form, const std::string& section);
void SavePosition(addin::AddinState& state, const ui::Form& form, const std::string& section);

}  // namespace addin
