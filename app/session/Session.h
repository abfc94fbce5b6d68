#pragma once
#include <filesystem>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "app/session/LineSource.h"
#include "app/session/ScratchFolder.h"
#include "app/session/Script.h"
#include "app/session/TranscriptObserver.h"
#include "settings/Settings.h"
#include "simhost/SimHost.h"
#include "ui/headless/HeadlessPlatform.h"

namespace addin {
class clsAppCmd;
}

namespace session {

// One run of the stand-in host with the add-in in it, played line by line from a script
// or the keyboard. It owns the host, the headless platform, the settings store and the
// add-in server, and writes the transcript to `out`.
class Session : public ui::headless::UserInput {
public:
    Session(std::ostream& out, const std::filesystem::path& settingsFile);
    ~Session() override;
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // Plays every line of `source`: 0 when all went through, 1 after a script error
    // that stopped a script (the keyboard reports its errors and reads on), 3 when a strict
    // session stopped at a failure.
    int Run(LineSource& source);
    // Strict: a line that fails, or an error of the add-in that reaches the error report,
    // ends the script, for callers that act on the exit status.
    void SetStrict(bool strict) { strict_ = strict; }
    // The script errors written so far, "line 7: ...", for the caller's own report.
    const std::vector<std::string>& Errors() const { return errors_; }

    // Plays one line: echoes it, runs its verb, and writes a failure the host raised
    // in the verb itself as a "failed:" line. `note` follows the echo.
    void Play(const ScriptLine& line, const std::string& note = "");
    bool PlayNext(const std::string& waitingFor) override;
    // At the keyboard, a prompt with no queued answer shows its text and waits for one.
    std::optional<ui::headless::Answer> AskPerson(const std::string& description,
                                                  const std::vector<std::string>& buttons) override;

    simhost::SimHost& Host() { return host_; }
    // How the add-in sees the host: the stand-in's site as it is, or as another layer shows
    // it (the Windows build puts the host's automation interface in between).
    using SiteView = std::function<std::shared_ptr<host::AddInSite>(std::shared_ptr<host::AddInSite>)>;
    void SetSiteView(SiteView view) { siteView_ = std::move(view); }
    // The site the add-in is activated with, made on first use and kept for the session.
    host::AddInSite& AddInSite();
    // The loaded document of that name, compared as the host's file system does: without
    // case; one never saved by its display name. A ScriptError when none is loaded.
    std::shared_ptr<host::Document> LoadedDocument(const std::string& fullFileName);
    ui::headless::HeadlessPlatform& Platform() { return platform_; }
    ui::headless::Transcript& Transcript() { return transcript_; }
    settings::IniFileStore& Settings() { return settings_; }
    addin::clsAppCmd& Addin() { return *addin_; }
    ScratchFolder& Scratch() { return scratch_; }

    // The form of that name the user can see; a ScriptError when none is loaded.
    ui::Form& LoadedForm(const std::string& name);
    // Activate's FirstTime: true only for the session's first activation.
    bool NextActivationIsFirst() { return activations_++ == 0; }

private:
    void ReportScriptError(const ui::headless::ScriptError& error);

    // Destroyed bottom up: the add-in first, the scratch folders last.
    ScratchFolder scratch_;
    ui::headless::Transcript transcript_;
    ui::headless::HeadlessPlatform platform_;
    TranscriptObserver observer_;
    simhost::SimHost host_;
    settings::IniFileStore settings_;
    SiteView siteView_;
    std::shared_ptr<host::AddInSite> site_;  // outlives the add-in, which holds what it gave
    std::unique_ptr<addin::clsAppCmd> addin_;

    LineSource* source_ = nullptr;
    int activations_ = 0;
    std::vector<std::string> errors_;
    bool strict_ = false;
    bool strictStop_ = false;
};

}  // namespace session
