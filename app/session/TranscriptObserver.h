#pragma once
#include "simhost/SimHost.h"
#include "ui/headless/Transcript.h"

namespace session {

// Writes what the stand-in host reports (files, status bar, documents) as transcript lines.
class TranscriptObserver : public simhost::Observer {
public:
    explicit TranscriptObserver(ui::headless::Transcript& transcript) : transcript_(transcript) {}

    void FileWritten(const std::string& path) override;
    void FileCopied(const std::string& from, const std::string& to) override;
    void FileDeleted(const std::string& path) override;
    void StatusBarText(const std::string& text) override;
    void DocumentOpened(const std::string& path, bool visible) override;
    void DocumentClosed(const std::string& path) override;
    void EditsDiscarded(const std::string& path) override;

private:
    ui::headless::Transcript& transcript_;
};

}  // namespace session
