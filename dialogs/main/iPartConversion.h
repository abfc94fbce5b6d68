#pragma once
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace addin {
class AddinState;
}
namespace host {
class ComponentOccurrence;
class ComponentOccurrences;
class Document;
}  // namespace host

// "Convert iPart to Normal": every iPart member placed in the active assembly becomes
// a normal part of its own, saved in a "Converted_iParts" folder beside the assembly,
// and each of its occurrences is pointed at that part.
namespace dialogs::ipart_conversion {

inline constexpr const char* kFolderName = "Converted_iParts";

class iPartConversion {
public:
    explicit iPartConversion(addin::AddinState& state) : state_(state) {}

    // The menu entry: checks, asks, converts and reports.
    void Run();

    // Every occurrence at every depth whose definition is an iPart member, in tree order.
    static std::vector<std::shared_ptr<host::ComponentOccurrence>> FindMembers(
        host::ComponentOccurrences& top);

    // Converts the given occurrences into folder; returns how many were replaced.
    int Convert(const std::vector<std::shared_ptr<host::ComponentOccurrence>>& members,
                const std::string& folder);

private:
    std::string ConvertedFile(host::Document& member, const std::string& folder);
    std::string FreeName(const std::string& folder, const std::string& fileName);
    void WriteNormalPart(host::Document& member, const std::string& target);

    addin::AddinState& state_;
    std::map<std::string, std::string> converted_;  // member file -> its normal part
};

}  // namespace dialogs::ipart_conversion
