#pragma once
#include <string>

// The fixed text forms in which session transcripts show documents.
namespace simhost {

class SimState;

namespace describe {

// A few lines: the document and its state, then every property and attribute that has a
// value. A document that is not loaded is read from its file.
std::string Document(SimState& state, const std::string& fullFileName);

// The occurrence tree of a loaded document (a never-saved one named by its display name,
// "Assembly1"), two blanks of indent a level:
// "Bracket:1 -> C:\Work\Bracket.ipt", with " hidden" and " grounded" where they hold.
std::string Tree(SimState& state, const std::string& fullFileName);

}  // namespace describe
}  // namespace simhost
