#include "simhost/SimApplication.h"

#include "host/Codes.h"
#include "simhost/HostCalls.h"
#include "simhost/SimCommands.h"
#include "simhost/SimComponent.h"
#include "simhost/SimDocument.h"
#include "simhost/SimServices.h"
#include "simhost/SimState.h"
#include "support/Error.h"
#include "support/Suggest.h"

using support::Error;
namespace errors = support::errors;

namespace simhost {

namespace {

// What ActiveEditObject gives while a sketch is being edited.
class SimSketch : public host::Object {
public:
    std::int32_t Type() const override { return host::kPlanarSketchObject; }
};

DocKind KindOfType(std::int32_t documentType) {
    switch (documentType) {
        case host::kPartDocumentObject:
            return DocKind::Part;
        case host::kAssemblyDocumentObject:
            return DocKind::Assembly;
        case host::kDrawingDocumentObject:
            return DocKind::Drawing;
        case host::kPresentationDocumentObject:
            return DocKind::Presentation;
    }
    throw Error(errors::kInvalidArg,
                "Documents.Add: " + std::to_string(documentType) + " is not a document type");
}

}  // namespace

// --- documents

std::int32_t SimDocuments::Count() const {
    SIM_HOST_CALL("Documents.Count");
    return state_.documents.Count();
}

host::DocumentPtr SimDocuments::Item(std::int32_t index) {
    SIM_HOST_CALL("Documents.Item");
    return state_.documents.Item(index);
}

host::DocumentPtr SimDocuments::Open(const std::string& fullFileName, bool openVisible) {
    SIM_HOST_CALL("Documents.Open");
    return state_.documents.Open(fullFileName, openVisible);
}

host::DocumentPtr SimDocuments::Add(std::int32_t documentType, const std::string& templateFileName,
                                    bool createVisible) {
    SIM_HOST_CALL("Documents.Add");
    return state_.documents.Add(KindOfType(documentType), templateFileName, createVisible);
}

// --- application

SimApplication::SimApplication(SimState& state)
    : state_(state),
      documents_(std::make_shared<SimDocuments>(state)),
      transactions_(std::make_shared<SimTransactionManager>(state)),
      fileManager_(std::make_shared<SimFileManager>(state)),
      fileLocations_(std::make_shared<SimFileLocations>(state)),
      sketch_(std::make_shared<SimSketch>()) {}

std::shared_ptr<host::Document> SimApplication::ActiveDocument() {
    SIM_HOST_CALL("Application.ActiveDocument");
    return state_.documents.Active();
}

host::ObjectPtr SimApplication::ActiveEditObject() {
    SIM_HOST_CALL("Application.ActiveEditObject");
    auto active = state_.documents.Active();
    if (!active) return nullptr;
    switch (state_.editMode) {
        case EditMode::TopLevel:
            return active;
        case EditMode::Sketch:
            return sketch_;
        case EditMode::InPlace:
            return FindOccurrence(state_.editPath)->Definition();
    }
    return active;
}

std::shared_ptr<host::View> SimApplication::ActiveView() {
    SIM_HOST_CALL("Application.ActiveView");
    auto active = state_.documents.Active();
    return active ? std::make_shared<SimView>(active) : nullptr;
}

std::shared_ptr<host::CommandManager> SimApplication::CommandManager() {
    SIM_HOST_CALL("Application.CommandManager");
    return state_.commands;
}

std::shared_ptr<host::UserInterfaceManager> SimApplication::UserInterfaceManager() {
    SIM_HOST_CALL("Application.UserInterfaceManager");
    return state_.commands;
}

std::string SimApplication::StatusBarText() const {
    SIM_HOST_CALL("Application.StatusBarText");
    return state_.statusBar;
}

void SimApplication::SetStatusBarText(const std::string& text) {
    SIM_HOST_CALL("Application.SetStatusBarText");
    state_.statusBar = text;
    if (state_.observer) state_.observer->StatusBarText(text);
}

bool SimApplication::SilentOperation() const {
    SIM_HOST_CALL("Application.SilentOperation");
    return state_.silent;
}

void SimApplication::SetSilentOperation(bool silent) {
    SIM_HOST_CALL("Application.SetSilentOperation");
    state_.silent = silent;
}

std::int32_t SimApplication::SoftwareVersionMajor() const {
    SIM_HOST_CALL("Application.SoftwareVersionMajor");
    return state_.softwareVersion;
}

std::shared_ptr<SimOccurrence> SimApplication::FindOccurrence(const std::string& path) {
    auto top = state_.documents.Active();
    if (!top) throw Error(errors::kFail, "No occurrence \"" + path + "\": no document is active");
    if (top->Data().kind != DocKind::Assembly)
        throw Error(errors::kFail,
                    "No occurrence \"" + path + "\": " + top->DisplayName() + " is not an assembly");
    std::vector<std::int64_t> uids;
    SimDocument* doc = top.get();
    std::size_t start = 0;
    while (start <= path.size()) {
        std::size_t end = path.find('/', start);
        if (end == std::string::npos) end = path.size();
        std::string name = path.substr(start, end - start);
        const OccurrenceData* occ = doc->FindOccurrenceByName(name);
        if (!occ) {
            std::vector<std::string> names;
            for (const auto& held : doc->Data().occurrences) names.push_back(held.name);
            throw Error(errors::kFail, "No occurrence \"" + path + "\": " + doc->DisplayName() +
                                           " holds no \"" + name + "\"" + support::DidYouMean(name, names));
        }
        uids.push_back(occ->uid);
        doc = occ->ref.doc.get();
        start = end + 1;
    }
    return top->OccurrenceHandle(uids);
}

// --- site

std::shared_ptr<host::Application> SimSite::Application() {
    SIM_HOST_CALL("AddInSite.Application");
    return state_.application;
}

std::shared_ptr<host::ButtonDefinition> SimSite::CreateButtonDefinition(
    const std::string& internalName, std::int32_t classification, const std::string& displayName,
    const std::string& description, const std::string& tooltip, bool withIcon) {
    SIM_HOST_CALL("AddInSite.CreateButtonDefinition");
    if (withIcon && state_.refuseIcons)
        throw Error(errors::kUnexpected, "The host refused the icon of \"" + internalName + "\"");
    auto definition = std::make_shared<SimButtonDefinition>(internalName, displayName, withIcon);
    state_.commands->Defined(definition);
    return definition;
}

std::int32_t SimApplication::Type() const {
    SIM_HOST_CALL("Application.Type");
    return kApplicationObjectType;
}

std::shared_ptr<host::Documents> SimApplication::Documents() {
    SIM_HOST_CALL("Application.Documents");
    return documents_;
}

std::shared_ptr<host::TransactionManager> SimApplication::TransactionManager() {
    SIM_HOST_CALL("Application.TransactionManager");
    return transactions_;
}

std::shared_ptr<host::FileManager> SimApplication::FileManager() {
    SIM_HOST_CALL("Application.FileManager");
    return fileManager_;
}

std::shared_ptr<host::FileLocations> SimApplication::FileLocations() {
    SIM_HOST_CALL("Application.FileLocations");
    return fileLocations_;
}

std::intptr_t SimApplication::MainFrameHWND() const {
    SIM_HOST_CALL("Application.MainFrameHWND");
    return kMainFrameHWND;
}

std::string SimApplication::Caption() const {
    SIM_HOST_CALL("Application.Caption");
    return "Autodesk Inventor";
}

}  // namespace simhost
