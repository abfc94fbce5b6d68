#pragma once
#include <memory>
#include <string>

namespace host {
class Application;
class Document;
}  // namespace host

namespace materials {

// A template part file opened invisibly for the material and colour dialogs. A file the
// user already has open is used as it is and left open afterwards: closing it would
// throw away the user's own unsaved work.
class TemplateFile {
public:
    // Throws what the host throws when the file cannot be opened.
    TemplateFile(host::Application& app, const std::string& fullFileName);
    host::Document& Document() { return *document_; }
    // Closes the file without saving, unless the user had it open before.
    void CloseWithoutSaving();
    void SaveAndClose();

private:
    std::shared_ptr<host::Document> document_;
    bool openedHere_ = true;
};

}  // namespace materials
