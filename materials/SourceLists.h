#pragma once
#include <functional>
#include <string>

namespace addin {
class AddinState;
}
namespace ui {
class Control;
}

// What the material and colour dialogs share: choosing the source file and importing the
// rows chosen from its list.
namespace materials {

// The shared open prompt, starting at the path in `pathBox`; the box takes the answer
// (empty when cancelled) and a chosen path is kept under the section and key. Returns the
// answer.
std::string BrowseForSource(addin::AddinState& state, ui::Control& pathBox, const char* filter,
                            const char* section, const char* key);

// Runs `importRow` on each selected row of `source`, first to last, then `refresh`. With
// exactly one row selected, the rows of `target` that carry its name are selected after.
void ImportSelectedRows(ui::Control& source, ui::Control& target,
                        const std::function<void(const std::string&)>& importRow,
                        const std::function<void()>& refresh);

}  // namespace materials
