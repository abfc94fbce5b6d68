#include "app/session/Session.h"

#include <optional>

#include "addin/clsAppCmd.h"
#include "app/session/Verb.h"
#include "host/Application.h"
#include "host/Document.h"
#include "simhost/HostCalls.h"
#include "support/Error.h"
#include "support/Suggest.h"
#include "support/Text.h"
#include "ui/Form.h"

namespace session {

using ui::headless::HexNumber;
using ui::headless::ScriptError;

Session::Session(std::ostream& out, const std::filesystem::path& settingsFile)
    : transcript_(out), platform_(transcript_), observer_(transcript_), settings_(settingsFile) {
    host_.SetObserver(&observer_);
    platform_.SetUserInput(this);
    simhost::HostCalls::Start();
    auto app = host_.Application();
    platform_.SetHostWindow(app->MainFrameHWND(), app->Caption());
    addin_ = std::make_unique<addin::clsAppCmd>(addin::Environment{platform_, settings_, host_.FileSystem()});
}

Session::~Session() {
    addin_.reset();
    host_.SetObserver(nullptr);
}

int Session::Run(LineSource& source) {
    source_ = &source;
    int status = 0;
    try {
        while (PlayNext("")) {
        }
        if (source.StopsOnError()) {
            // A script that left answers or scheduled actions unused did not do what it says.
            for (const auto& leftover : platform_.Leftovers()) {
                ReportScriptError(leftover);
                status = 1;
            }
        }
    } catch (const ScriptError& e) {
        ReportScriptError(e);
        status = strictStop_ ? 3 : 1;
    }
    source_ = nullptr;
    return status;
}

bool Session::PlayNext(const std::string& waitingFor) {
    if (!source_) return false;
    try {
        auto line = source_->Next(waitingFor);
        if (!line) return false;
        Play(*line);
    } catch (const ScriptError& e) {
        if (source_->StopsOnError() || source_->Ended()) throw;
        ReportScriptError(e);
    }
    return true;
}

void Session::Play(const ScriptLine& line, const std::string& note) {
    try {
        auto call = FindVerb(line);
        if (call.verb->echoed) transcript_.Write("> " + line.text + note);
        Args args(line, call.firstArg, call.verb->usage);
        std::optional<simhost::HostCalls::Uncounted> notTheAddin;
        if (!call.verb->reachesAddin) notTheAddin.emplace();
        const int reportedBefore = platform_.ErrorsReported();
        bool failed = false;
        try {
            call.verb->run(*this, args);
        } catch (const support::Error& e) {
            transcript_.Write("failed: error " + HexNumber(e.Number()) + ": " +
                              ui::headless::Escape(e.Description()));
            failed = true;
        } catch (const std::exception& e) {
            // Not the host's refusal but a fault of the driver or the stand-in: stop here.
            throw ScriptError(std::string("unexpected failure: ") + e.what());
        }
        if (strict_ && !strictStop_ && (failed || platform_.ErrorsReported() > reportedBefore)) {
            strictStop_ = true;
            throw ScriptError(failed ? "the line failed, and --strict ends the script there"
                                     : "the add-in reported an error, and --strict ends the script there");
        }
    } catch (ScriptError& e) {
        e.PlaceAt(line.number);
        throw;
    }
}

host::AddInSite& Session::AddInSite() {
    if (!site_) site_ = siteView_ ? siteView_(host_.Site()) : host_.Site();
    return *site_;
}

std::optional<ui::headless::Answer> Session::AskPerson(const std::string& description,
                                                       const std::vector<std::string>& buttons) {
    if (!source_ || !source_->CanAsk()) return std::nullopt;
    std::string choices;
    for (const auto& button : buttons) choices += (choices.empty() ? "" : ", ") + button;
    if (choices.empty()) choices = "text or a path, \"\" for none, or cancel";
    bool shown = false;
    for (;;) {
        if (!shown) transcript_.Write("? " + description);
        auto typed = source_->Ask("answer (" + choices + ")> ");
        if (!typed) return std::nullopt;  // a script, or the keyboard has ended
        shown = true;
        std::string text = support::Trim(*typed);
        if (text.empty()) continue;
        if (buttons.empty()) {
            if (text == "cancel") return ui::headless::Answer{std::nullopt, 0};
            if (text.size() >= 2 && text.front() == '"' && text.back() == '"')
                text = text.substr(1, text.size() - 2);
            return ui::headless::Answer{text, 0};
        }
        for (const auto& button : buttons)
            if (support::LCase(button) == support::LCase(text)) return ui::headless::Answer{button, 0};
        transcript_.Write("? " + text + " is not a button; answer " + choices);
    }
}

ui::Form& Session::LoadedForm(const std::string& name) {
    if (auto* form = platform_.FindForm(name)) return *form;
    std::string loaded;
    std::vector<std::string> names;
    for (auto* form : platform_.LoadedForms()) {
        loaded += (loaded.empty() ? "" : ", ") + form->Name();
        names.push_back(form->Name());
    }
    std::string hint = support::DidYouMean(name, names);
    throw ScriptError("no form " + name + " is loaded" +
                      (!hint.empty() ? hint : " (loaded: " + (loaded.empty() ? "none" : loaded) + ")"));
}

void Session::ReportScriptError(const ScriptError& error) {
    errors_.push_back(error.Describe());
    transcript_.Write("script error: " + error.Describe());
}

host::DocumentPtr Session::LoadedDocument(const std::string& fullFileName) {
    auto documents = host_.Application()->Documents();
    for (std::int32_t i = 1; i <= documents->Count(); ++i) {
        auto document = documents->Item(i);
        // A document never saved goes by its display name ("Part1").
        const std::string name =
            document->FullFileName().empty() ? document->DisplayName() : document->FullFileName();
        if (support::LCase(name) == support::LCase(fullFileName)) return document;
    }
    throw ui::headless::ScriptError("no open document " + fullFileName);
}

}  // namespace session
