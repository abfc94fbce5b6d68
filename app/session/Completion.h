#pragma once
#include <string>
#include <vector>

namespace session {

class Session;

// What Tab offers at the shell for `word`, given the line's text before it: verbs (and
// the second word of a verb such as "answer msgbox"), form names, FORM.CONTROL and
// FORM.MENU of the loaded forms, and occurrence paths of the active assembly, one level
// of the path at a time. A name with a space comes quoted, as a line must give it.
std::vector<std::string> Completions(Session& session, const std::string& before, const std::string& word);

}  // namespace session
