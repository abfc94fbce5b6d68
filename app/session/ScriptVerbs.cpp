// Verbs that shape the session itself: queued answers, application paths, actions at a
// yield, settings, and section headers.
#include "addin/shared/AddinState.h"
#include "app/session/Session.h"
#include "app/session/Verb.h"
#include "support/Suggest.h"
#include "ui/headless/MsgBoxNames.h"
#include "ui/headless/ScriptError.h"

namespace session {

using ui::headless::Answer;
using ui::headless::Prompt;
using ui::headless::ScriptError;

namespace {

// A typed answer, or cancel for the bare word cancel.
Verb AnswerVerb(const char* name, const char* usage, Prompt prompt) {
    return Verb{name, usage, 1, 1, [prompt](Session& s, const Args& a) {
                    Answer answer{a.Is(0, "cancel") ? std::nullopt : std::optional<std::string>(a.Text(0)),
                                  a.Line().number};
                    s.Platform().QueueAnswer(prompt, std::move(answer));
                }};
}

void CheckButtonName(const Args& args) {
    if (args[0].quoted || !ui::headless::ParseResult(args.Text(0)))
        args.Fail("expected OK, Cancel, Abort, Retry, Ignore, Yes or No");
}

// "3:" of "at yield 3: click frmPurge.cmdStop".
int YieldCount(const Args& args) {
    const std::string& text = args.Text(0);
    if (args[0].quoted || text.size() < 2 || text.back() != ':') args.Fail("expected a count and a colon");
    int count = 0;
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] < '0' || text[i] > '9') args.Fail("expected a count and a colon");
        count = count * 10 + (text[i] - '0');
        if (count > 1'000'000) args.Fail("the count is too large");
    }
    if (count < 1) args.Fail("the count starts at 1");
    return count;
}

// The action of an "at yield" line, as a line of its own.
ScriptLine Deferred(const Args& args) {
    auto line = ParseLine(args.Line().number, args.Rest(1));
    if (!line) args.Fail("the action is missing");
    return *line;
}

void CheckAtYield(const Args& args) {
    YieldCount(args);
    FindVerb(Deferred(args));
}

void AtYield(Session& s, const Args& args) {
    int count = YieldCount(args);
    ScriptLine action = Deferred(args);
    std::string note = " (at yield " + std::to_string(count) + ")";
    s.Platform().ScheduleAtYield(
        count, [&s, action, note] { s.Play(action, note); }, args.Line().number);
}

// The verbs a help line asks about: all of them, or those whose name is the word or
// begins with it ("answer" gives every answer verb).
std::vector<const Verb*> HelpFor(const Args& args) {
    std::vector<const Verb*> found;
    std::string word = args.Count() ? args.Text(0) : "";
    for (const auto& verb : AllVerbs())
        if (word.empty() || verb.name == word || verb.name.rfind(word + " ", 0) == 0) found.push_back(&verb);
    if (found.empty()) {
        std::vector<std::string> names;
        for (const auto& verb : AllVerbs()) names.push_back(verb.name);
        args.Fail("no verb " + word + support::DidYouMean(word, names));
    }
    return found;
}

void Help(Session& s, const Args& args) {
    if (!args.Count()) s.Transcript().Write("verbs (help VERB shows one; docs/session.md tells more):");
    for (const Verb* verb : HelpFor(args)) s.Transcript().Write("  " + verb->usage);
}

}  // namespace

void AddScriptVerbs(std::vector<Verb>& verbs) {
    Verb echo{"echo", "echo TEXT", 0, -1,
              [](Session& s, const Args& a) { s.Transcript().Write("# " + a.Rest(0)); }};
    echo.echoed = false;
    verbs.push_back(std::move(echo));

    verbs.push_back({"answer msgbox", "answer msgbox OK|Cancel|Abort|Retry|Ignore|Yes|No", 1, 1,
                     [](Session& s, const Args& a) {
                         s.Platform().QueueAnswer(Prompt::MsgBox, Answer{a.Text(0), a.Line().number});
                     },
                     CheckButtonName});
    verbs.push_back(AnswerVerb("answer input", "answer input TEXT|cancel", Prompt::InputBox));
    verbs.push_back(AnswerVerb("answer save", "answer save PATH|cancel", Prompt::SaveFile));
    verbs.push_back(AnswerVerb("answer open", "answer open PATH|cancel", Prompt::OpenFile));
    verbs.push_back(AnswerVerb("answer folder", "answer folder PATH|cancel", Prompt::Folder));

    verbs.push_back({"help", "help [VERB]", 0, 1, Help, [](const Args& a) { HelpFor(a); }});
    verbs.push_back({"apppath", "apppath EXE-NAME PATH", 2, 2, [](Session& s, const Args& a) {
                         s.Platform().SetApplicationPath(a.Text(0), a.Text(1));
                     }});
    verbs.push_back({"at yield", "at yield COUNT: ACTION", 2, -1, AtYield, CheckAtYield});

    verbs.push_back({"setting", "setting SECTION KEY VALUE", 3, 3, [](Session& s, const Args& a) {
                         s.Settings().SaveSetting(addin::kSettingsApp, a.Text(0), a.Text(1), a.Text(2));
                     }});
}

}  // namespace session
