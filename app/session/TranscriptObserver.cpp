#include "app/session/TranscriptObserver.h"

namespace session {

using ui::headless::Quote;

void TranscriptObserver::FileWritten(const std::string& path) {
    transcript_.Write("file written " + Quote(path));
}

void TranscriptObserver::FileCopied(const std::string& from, const std::string& to) {
    transcript_.Write("file copied " + Quote(from) + " -> " + Quote(to));
}

void TranscriptObserver::FileDeleted(const std::string& path) {
    transcript_.Write("file deleted " + Quote(path));
}

void TranscriptObserver::StatusBarText(const std::string& text) {
    transcript_.Write("status-bar " + Quote(text));
}

void TranscriptObserver::DocumentOpened(const std::string& path, bool visible) {
    transcript_.Write("document opened " + Quote(path) + (visible ? " visible" : " invisible"));
}

void TranscriptObserver::DocumentClosed(const std::string& path) {
    transcript_.Write("document closed " + Quote(path));
}

void TranscriptObserver::EditsDiscarded(const std::string& path) {
    transcript_.Write("edits discarded " + ui::headless::Quote(path));
}

}  // namespace session
