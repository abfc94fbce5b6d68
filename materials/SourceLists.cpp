#include "materials/SourceLists.h"

#include "addin/shared/AddinState.h"
#include "copy/paths/Paths.h"
#include "ui/Form.h"

namespace materials {

std::string BrowseForSource(addin::AddinState& state, ui::Control& pathBox, const char* filter,
                            const char* section, const char* key) {
    auto start = paths::SplitPath(pathBox.Text());
    std::string chosen = paths::OpenFilePrompt(state.platform, filter, start.directory, start.fileName);
    pathBox.SetText(chosen);
    if (!chosen.empty()) state.SaveSetting(section, key, chosen);
    return chosen;
}

void ImportSelectedRows(ui::Control& source, ui::Control& target,
                        const std::function<void(const std::string&)>& importRow,
                        const std::function<void()>& refresh) {
    bool single = source.SelectedCount() == 1;
    std::string last;
    for (int row = 0; row < static_cast<int>(source.Items.size()); ++row) {
        if (!source.Selected(row)) continue;
        last = source.Items[static_cast<std::size_t>(row)];
        importRow(last);
    }
    refresh();
    if (!single) return;
    for (int row = 0; row < static_cast<int>(target.Items.size()); ++row)
        if (target.Items[static_cast<std::size_t>(row)] == last) {
            target.SetSelected(row, true);
            target.ListIndex = row;
        }
}

}  // namespace materials
