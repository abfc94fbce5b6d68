#include "dialogs/main/iPartConversion.h"

#include "addin/shared/AddinState.h"
#include "copy/paths/Paths.h"
#include "host/Application.h"
#include "host/Codes.h"
#include "host/Component.h"
#include "host/Document.h"
#include "host/FileSystem.h"
#include "support/Error.h"
#include "support/Text.h"

namespace dialogs::ipart_conversion {

namespace {

constexpr const char* kAssemblyRequired = "An assembly document must be active.";
constexpr const char* kSaveAssemblyFirst = "Please save the assembly before converting its iParts.";
constexpr const char* kNoMembers = "There are no iPart members in this assembly.";
constexpr const char* kTitle = "Convert iPart to Normal";

void Collect(host::ComponentOccurrences& occurrences,
             std::vector<std::shared_ptr<host::ComponentOccurrence>>& members) {
    for (std::int32_t i = 1; i <= occurrences.Count(); ++i) {
        auto occurrence = occurrences.Item(i);
        if (occurrence->Definition()->IsiPartMember())
            members.push_back(occurrence);
        else
            Collect(*occurrence->SubOccurrences(), members);
    }
}

}  // namespace

std::vector<std::shared_ptr<host::ComponentOccurrence>> iPartConversion::FindMembers(
    host::ComponentOccurrences& top) {
    std::vector<std::shared_ptr<host::ComponentOccurrence>> members;
    Collect(top, members);
    return members;
}

void iPartConversion::Run() {
    auto& platform = state_.platform;
    auto assembly = state_.App().ActiveDocument();
    if (!assembly || assembly->DocumentType() != host::kAssemblyDocumentObject) {
        platform.MsgBox(kAssemblyRequired);
        return;
    }
    if (assembly->FullFileName().empty()) {
        platform.MsgBox(kSaveAssemblyFirst);
        return;
    }
    auto members = FindMembers(*assembly->ComponentDefinition()->Occurrences());
    if (members.empty()) {
        platform.MsgBox(kNoMembers);
        return;
    }
    std::string folder = paths::SplitPath(assembly->FullFileName()).directory + kFolderName + "\\";
    std::string question =
        "Convert every iPart member of this assembly to a normal part saved in\r" + folder + "?";
    if (platform.MsgBox(question, ui::vbYesNo, kTitle) != ui::vbYes) return;
    int replaced = Convert(members, folder);
    platform.MsgBox(
        std::to_string(replaced) + " iPart occurrences converted.\rSave the assembly to keep the change.",
        ui::vbOKOnly, kTitle);
}

int iPartConversion::Convert(const std::vector<std::shared_ptr<host::ComponentOccurrence>>& members,
                             const std::string& folder) {
    if (!state_.fileSystem.FolderExists(folder)) state_.fileSystem.CreateFolder(folder);
    int replaced = 0;
    for (const auto& occurrence : members) {
        // The same member reached through a second instance of its sub-assembly was
        // already replaced through the first.
        auto definition = occurrence->Definition();
        if (!definition->IsiPartMember()) continue;
        occurrence->Replace(ConvertedFile(*definition->Document(), folder), false);
        ++replaced;
    }
    return replaced;
}

// A member placed several times becomes one part, shared by all its occurrences.
std::string iPartConversion::ConvertedFile(host::Document& member, const std::string& folder) {
    auto known = converted_.find(member.FullFileName());
    if (known != converted_.end()) return known->second;
    std::string target = FreeName(folder, paths::SplitPath(member.FullFileName()).fileName);
    WriteNormalPart(member, target);
    converted_[member.FullFileName()] = target;
    return target;
}

// Files already in the folder are never overwritten: a taken name gets "-2", "-3"...
std::string iPartConversion::FreeName(const std::string& folder, const std::string& fileName) {
    auto dot = fileName.rfind('.');
    std::string base = dot == std::string::npos ? fileName : fileName.substr(0, dot);
    std::string extension = dot == std::string::npos ? "" : fileName.substr(dot);
    std::string candidate = folder + fileName;
    for (int n = 2; state_.fileSystem.FileExists(candidate); ++n)
        candidate = folder + base + "-" + std::to_string(n) + extension;
    return candidate;
}

void iPartConversion::WriteNormalPart(host::Document& member, const std::string& target) {
    member.SaveAs(target, true);
    auto copy = state_.App().Documents()->Open(target, false);
    try {
        copy->ComponentDefinition()->BreakLinkToFactory();
        copy->Save();
    } catch (const support::Error&) {
        // A copy still tied to its factory is no normal part: leave no file behind.
        copy->Close(true);
        state_.fileSystem.DeleteFile(target);
        throw;
    }
    // Closed here; the occurrences that point at it load it again.
    copy->Close(true);
}

}  // namespace dialogs::ipart_conversion
