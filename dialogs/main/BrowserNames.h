#pragma once
#include <memory>
#include <string>

namespace addin {
class AddinState;
}
namespace host {
class ComponentOccurrence;
class Document;
}  // namespace host

// Renaming the model browser's nodes after a property of their documents.
namespace dialogs::browser_names {

// The option buttons of the "Name In Browser" frame, in their order.
enum class Mode { Default = 1, Description = 2, PartNumber = 3 };

// Suffixes tried before an occurrence keeps its old name.
inline constexpr int kMaxSuffix = 32000;

// One renaming run, undone as a whole by one undo of the host.
class BrowserRename {
public:
    BrowserRename(addin::AddinState& state, Mode mode) : state_(state), mode_(mode) {}

    // topLevel renames the top document's display name; doAll renames that and every
    // occurrence at every level; with neither, the selected occurrence alone is renamed
    // (nothing when none is selected).
    void Run(bool topLevel, bool doAll, const std::shared_ptr<host::ComponentOccurrence>& selected);

private:
    void Rename(bool topLevel, bool doAll, const std::shared_ptr<host::ComponentOccurrence>& selected);
    std::string NameSource(host::Document& document);
    void SetTopLevelName(host::Document& top);
    bool RenameOne(host::ComponentOccurrence& occurrence);
    void RenameTree(host::ComponentOccurrence& occurrence);
    void GiveUniqueName(host::ComponentOccurrence& occurrence, const std::string& name);
    void Status(const std::string& text);

    addin::AddinState& state_;
    Mode mode_;
};

}  // namespace dialogs::browser_names
