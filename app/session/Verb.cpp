#include "app/session/Verb.h"

#include <charconv>

#include "support/Suggest.h"
#include "ui/headless/ScriptError.h"
#include "ui/headless/Transcript.h"

namespace session {

using ui::headless::ScriptError;

int Args::Int(std::size_t i) const {
    if (i >= Count()) Fail("a number is missing");
    const std::string& text = Text(i);
    int value = 0;
    auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (ec != std::errc() || end != text.data() + text.size())
        Fail(ui::headless::Quote(text) + " is not a number");
    return value;
}

void Args::Fail(const std::string& why) const {
    throw ScriptError(why + "; usage: " + usage_);
}

const std::vector<Verb>& AllVerbs() {
    static const std::vector<Verb> verbs = [] {
        std::vector<Verb> all;
        AddHostVerbs(all);
        AddFormVerbs(all);
        AddScriptVerbs(all);
        AddPrintVerbs(all);
        return all;
    }();
    return verbs;
}

namespace {

const Verb* Named(const std::string& name) {
    for (const auto& verb : AllVerbs())
        if (verb.name == name) return &verb;
    return nullptr;
}

// The words that begin a group of verbs ("answer" of "answer msgbox"), for messages.
std::string WordsAfter(const std::string& group) {
    std::string words;
    for (const auto& verb : AllVerbs())
        if (verb.name.rfind(group + " ", 0) == 0)
            words += (words.empty() ? "" : ", ") + verb.name.substr(group.size() + 1);
    return words;
}

}  // namespace

VerbCall FindVerb(const ScriptLine& line) {
    const auto& tokens = line.tokens;
    if (tokens.empty() || tokens[0].quoted) throw ScriptError("a line must begin with a verb");
    VerbCall call{nullptr, 1};
    if (tokens.size() > 1 && !tokens[1].quoted) call.verb = Named(tokens[0].text + " " + tokens[1].text);
    if (call.verb) {
        call.firstArg = 2;
    } else if (!(call.verb = Named(tokens[0].text))) {
        auto words = WordsAfter(tokens[0].text);
        if (!words.empty()) {
            std::string given = tokens.size() > 1 ? " " + ui::headless::Quote(tokens[1].text) : "";
            throw ScriptError(tokens[0].text + given + " is not a verb; " + tokens[0].text + " takes " +
                              words);
        }
        std::vector<std::string> names;
        for (const auto& verb : AllVerbs()) names.push_back(verb.name.substr(0, verb.name.find(' ')));
        std::string hint = support::DidYouMean(tokens[0].text, names);
        throw ScriptError("unknown verb " + ui::headless::Quote(tokens[0].text) +
                          (hint.empty() ? " (help lists them)" : hint));
    }
    Args args(line, call.firstArg, call.verb->usage);
    int count = static_cast<int>(args.Count());
    if (count < call.verb->minArgs) args.Fail("too few words");
    if (call.verb->maxArgs >= 0 && count > call.verb->maxArgs) args.Fail("too many words");
    if (call.verb->check) call.verb->check(args);
    return call;
}

void CheckScript(const std::vector<ScriptLine>& lines) {
    for (const auto& line : lines) {
        try {
            FindVerb(line);
        } catch (ScriptError& e) {
            e.PlaceAt(line.number);
            throw;
        }
    }
}

}  // namespace session
