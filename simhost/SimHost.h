#pragma once
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "host/Application.h"
#include "host/Component.h"
#include "host/Document.h"
#include "host/FileSystem.h"

namespace simhost {

// What the stand-in host reports as it works, for the session transcript.
class Observer {
public:
    virtual ~Observer() = default;
    virtual void FileWritten(const std::string& path) { (void)path; }
    virtual void FileCopied(const std::string& from, const std::string& to) { (void)from, (void)to; }
    virtual void FileDeleted(const std::string& path) { (void)path; }
    virtual void StatusBarText(const std::string& text) { (void)text; }
    virtual void DocumentOpened(const std::string& path, bool visible) { (void)path, (void)visible; }
    virtual void DocumentClosed(const std::string& path) { (void)path; }
    // A document with unsaved changes left memory without being saved: they are gone.
    virtual void EditsDiscarded(const std::string& path) { (void)path; }
};

// What the application is editing: the document itself at top level, a sketch, or a
// sub-assembly edited in place.
enum class EditMode { TopLevel, Sketch, InPlace };

class SimState;

// The stand-in host: one running host application over a virtual Windows drive whose
// documents are JSON files. The session driver and the tests drive it through this
// class; the add-in sees only the host/ interfaces it hands out.
class SimHost {
public:
    SimHost();
    ~SimHost();
    SimHost(const SimHost&) = delete;
    SimHost& operator=(const SimHost&) = delete;

    // --- set-up
    void MapDrive(char letter, const std::filesystem::path& folder);
    host::FileSystem& FileSystem();
    std::shared_ptr<host::Application> Application();
    std::shared_ptr<host::AddInSite> Site();
    void SetObserver(Observer* observer);
    void SetRefuseIcons(bool refuse);  // CreateButtonDefinition with an icon fails with 0x8000FFFF
    void SetSoftwareVersion(std::int32_t major);
    void SetWorkspace(const std::string& folder);
    void SetTemplatesPath(const std::string& folder);
    void SetUserName(const std::string& name);  // who "this user" is, for reservations

    // --- documents
    host::DocumentPtr Open(const std::string& fullFileName, bool visible = true);
    host::DocumentPtr NewDocument(std::int32_t documentType);  // never saved: empty FullFileName
    void Activate(const std::string& fullFileName);            // make an open document the active one
    void CloseAll();
    void SetEditMode(EditMode mode, const std::string& occurrencePath = "");
    // An occurrence of the active assembly by names from the top: "Frame:1/Bracket:2".
    std::shared_ptr<host::ComponentOccurrence> FindOccurrence(const std::string& path);

    // --- the user's doing
    void ClickButton(const std::string& internalName);           // throws when the button is on no bar
    void RunCommand(const std::string& internalName);            // a defined command, on a bar or not
    void Pick(const std::vector<std::string>& occurrencePaths);  // one selection, several entities
    void Escape();                                               // ends the running interaction
    void ContextMenu();
    void Undo();  // reverts the last transaction

    // --- faults
    void FailSaveOf(const std::string& fullFileName);  // saving this file fails
    void RefuseWrites(bool refuse);                    // the disk refuses every write
    void RefuseWritesIn(const std::string& folder);    // writes into this folder are refused
    // The write after the next `writesLeft` ones fails: a failing save, or a refusal.
    void FailWriteAfter(int writesLeft, bool refused);
    bool WriteFaultFired() const;

    // --- what tests and the transcript read
    bool InteractionRunning() const;
    std::int32_t InteractionsCreated() const;
    std::string DescribeBars() const;                               // bar: buttons in order, one line a bar
    std::string DescribeDocument(const std::string& fullFileName);  // state, one fact a line
    std::string DescribeTree(const std::string& fullFileName);      // occurrences, indented
    std::string StatusBar() const;

private:
    std::unique_ptr<SimState> state_;
};

}  // namespace simhost
