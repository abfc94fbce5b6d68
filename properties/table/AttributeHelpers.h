#pragma once
#include <string>

namespace host {
class Application;
class Document;
}  // namespace host

// Named text attributes on a model document's component definition; the drawing link
// ("IDWFile", "IDWPath" in the set kLinkAttributeSet) is kept this way.
namespace properties {

inline constexpr const char* kLinkAttributeSet = "Tarnwell";
inline constexpr const char* kDrawingFileAttribute = "IDWFile";
inline constexpr const char* kDrawingPathAttribute = "IDWPath";

// Writes a text attribute, creating the set and the attribute as needed. A presentation
// cannot carry one: the host's status bar says so and nothing is written. A failure to
// write is not reported: a link that could not be kept is found again by hand.
void SetAttribute(host::Application& app, const std::string& setName, host::Document& document,
                  const std::string& attributeName, const std::string& value);

// The attribute's text; "" when the set or the attribute is missing.
std::string GetAttribute(const std::string& setName, host::Document& document,
                         const std::string& attributeName);

}  // namespace properties
