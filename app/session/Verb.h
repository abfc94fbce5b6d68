#pragma once
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "app/session/Script.h"

namespace session {

class Session;

// The words after a verb, with the checks every verb needs. A word that does not fit
// is a ScriptError that quotes the verb's usage.
class Args {
public:
    Args(const ScriptLine& line, std::size_t first, const std::string& usage)
        : line_(line), first_(first), usage_(usage) {}

    std::size_t Count() const { return line_.tokens.size() - first_; }
    const Token& operator[](std::size_t i) const { return line_.tokens.at(first_ + i); }
    const std::string& Text(std::size_t i) const { return (*this)[i].text; }
    // Word i is the bare keyword `word`; false past the last word.
    bool Is(std::size_t i, std::string_view word) const { return i < Count() && (*this)[i].Is(word); }
    int Int(std::size_t i) const;                                                 // a whole number
    std::string Rest(std::size_t i) const { return line_.TextFrom(first_ + i); }  // as written
    const ScriptLine& Line() const { return line_; }
    [[noreturn]] void Fail(const std::string& why) const;

private:
    const ScriptLine& line_;
    std::size_t first_;
    const std::string& usage_;
};

// A verb of the script language: its name (one word, or a group and a word such as
// "answer msgbox"), its usage for messages, how many words it takes, and what it does.
struct Verb {
    std::string name;
    std::string usage;
    int minArgs = 0;
    int maxArgs = 0;  // -1: no limit
    std::function<void(Session&, const Args&)> run;
    // Checks that need no session, made before a script plays its first line.
    std::function<void(const Args&)> check = nullptr;
    bool echoed = true;  // the line is written to the transcript before it runs
    // The verb acts on the add-in (a click, a pick, a button): the host calls made while it
    // runs are the add-in's. Other verbs read or set up the host as the session's world.
    bool reachesAddin = false;
};

// The verbs of each group, and all of them.
void AddHostVerbs(std::vector<Verb>& verbs);
void AddFormVerbs(std::vector<Verb>& verbs);
void AddScriptVerbs(std::vector<Verb>& verbs);
void AddPrintVerbs(std::vector<Verb>& verbs);
const std::vector<Verb>& AllVerbs();

// The verb a line names and where its words begin, checked for the number of words
// and its own checks; a ScriptError when the line names no verb or does not fit it.
struct VerbCall {
    const Verb* verb;
    std::size_t firstArg;
};
VerbCall FindVerb(const ScriptLine& line);

// Checks every line of a script before the first one plays; the first misfit is a
// ScriptError placed at its line.
void CheckScript(const std::vector<ScriptLine>& lines);

}  // namespace session
