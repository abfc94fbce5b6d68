#include "simhost/SimHost.h"

#include "simhost/Describe.h"
#include "simhost/SimApplication.h"
#include "simhost/SimComponent.h"
#include "simhost/SimDocument.h"
#include "simhost/SimState.h"
#include "support/Error.h"

using support::Error;
namespace errors = support::errors;

namespace simhost {

SimHost::SimHost() : state_(std::make_unique<SimState>()) {}

SimHost::~SimHost() = default;

// --- set-up

void SimHost::MapDrive(char letter, const std::filesystem::path& folder) {
    state_->fileSystem.Drive().Map(letter, folder);
}

host::FileSystem& SimHost::FileSystem() {
    return state_->fileSystem;
}

std::shared_ptr<host::Application> SimHost::Application() {
    return state_->application;
}

std::shared_ptr<host::AddInSite> SimHost::Site() {
    return state_->site;
}

void SimHost::SetObserver(Observer* observer) {
    state_->observer = observer;
    state_->fileSystem.SetObserver(observer);
}

void SimHost::SetRefuseIcons(bool refuse) {
    state_->refuseIcons = refuse;
}

void SimHost::SetSoftwareVersion(std::int32_t major) {
    state_->softwareVersion = major;
}

void SimHost::SetWorkspace(const std::string& folder) {
    state_->workspace = folder;
}

void SimHost::SetTemplatesPath(const std::string& folder) {
    state_->templatesPath = folder.empty() || folder.back() == '\\' ? folder : folder + "\\";
}

void SimHost::SetUserName(const std::string& name) {
    state_->userName = name;
}

// --- documents

host::DocumentPtr SimHost::Open(const std::string& fullFileName, bool visible) {
    return state_->documents.Open(fullFileName, visible);
}

host::DocumentPtr SimHost::NewDocument(std::int32_t documentType) {
    return state_->application->Documents()->Add(documentType, "", true);
}

void SimHost::Activate(const std::string& fullFileName) {
    auto doc = state_->documents.Find(fullFileName);
    if (!doc || !doc->session.explicitOpen) throw Error(errors::kFail, fullFileName + " is not open");
    state_->documents.Show(*doc);
}

void SimHost::CloseAll() {
    state_->documents.CloseAll();
}

void SimHost::SetEditMode(EditMode mode, const std::string& occurrencePath) {
    if (!state_->documents.Active()) throw Error(errors::kFail, "No document is active to edit");
    if (mode == EditMode::InPlace) state_->application->FindOccurrence(occurrencePath);
    state_->editMode = mode;
    state_->editPath = mode == EditMode::InPlace ? occurrencePath : "";
}

std::shared_ptr<host::ComponentOccurrence> SimHost::FindOccurrence(const std::string& path) {
    return state_->application->FindOccurrence(path);
}

// --- the user's doing

void SimHost::ClickButton(const std::string& internalName) {
    state_->commands->ClickButton(internalName);
}

void SimHost::RunCommand(const std::string& internalName) {
    state_->commands->RunCommand(internalName);
}

void SimHost::Pick(const std::vector<std::string>& occurrencePaths) {
    auto running = state_->commands->Running();
    if (!running) throw Error(errors::kFail, "Nothing can be picked: no interaction is running");
    if (!running->SelectionEnabled() || !running->Selection().SelectsOccurrences())
        throw Error(errors::kFail,
                    "Nothing can be picked: the running interaction does not select occurrences");
    if (occurrencePaths.empty()) throw Error(errors::kInvalidArg, "A pick needs at least one occurrence");
    host::ObjectList entities;
    for (const auto& path : occurrencePaths) entities.push_back(state_->application->FindOccurrence(path));
    running->Selection().Select(entities);
}

void SimHost::Escape() {
    state_->commands->Escape();
}

void SimHost::ContextMenu() {
    state_->commands->RaiseContextMenu();
}

void SimHost::Undo() {
    state_->transactions.Undo();
}

// --- faults

void SimHost::FailSaveOf(const std::string& fullFileName) {
    state_->fileSystem.FailSaveOf(fullFileName);
}

void SimHost::FailWriteAfter(int writesLeft, bool refused) {
    state_->fileSystem.FailWriteAfter(writesLeft, refused);
}

bool SimHost::WriteFaultFired() const {
    return state_->fileSystem.WriteFaultFired();
}

void SimHost::RefuseWritesIn(const std::string& folder) {
    state_->fileSystem.RefuseWritesIn(folder);
}

void SimHost::RefuseWrites(bool refuse) {
    state_->fileSystem.RefuseWrites(refuse);
}

// --- what tests and the transcript read

bool SimHost::InteractionRunning() const {
    return state_->commands->Running() != nullptr;
}

std::int32_t SimHost::InteractionsCreated() const {
    return state_->commands->InteractionsCreated();
}

std::string SimHost::DescribeBars() const {
    return state_->commands->DescribeBars();
}

std::string SimHost::DescribeDocument(const std::string& fullFileName) {
    return describe::Document(*state_, fullFileName);
}

std::string SimHost::DescribeTree(const std::string& fullFileName) {
    return describe::Tree(*state_, fullFileName);
}

std::string SimHost::StatusBar() const {
    return state_->statusBar;
}

}  // namespace simhost
