#include "simhost/SimServices.h"

#include "host/Codes.h"
#include "simhost/HostCalls.h"
#include "simhost/HostNames.h"
#include "simhost/SimApplication.h"
#include "simhost/SimDocument.h"
#include "simhost/SimState.h"
#include "simhost/WinPath.h"
#include "support/Error.h"

using support::Error;
namespace errors = support::errors;

namespace simhost {

namespace {

class SimTransaction : public host::Transaction {
public:
    SimTransaction(TransactionLog& log, std::uint64_t serial) : log_(log), serial_(serial) {}
    void End() override { log_.End(serial_); }
    void Abort() override { log_.Abort(serial_); }

private:
    TransactionLog& log_;
    std::uint64_t serial_;
};

}  // namespace

std::shared_ptr<host::Transaction> SimTransactionManager::StartTransaction(
    std::shared_ptr<host::Document> document, const std::string& displayName) {
    SIM_HOST_CALL("TransactionManager.StartTransaction");
    support::Required(document, "document");
    return std::make_shared<SimTransaction>(state_.transactions, state_.transactions.Start(displayName));
}

void SimFileManager::CopyFile(const std::string& source, const std::string& destination,
                              std::int32_t option) {
    SIM_HOST_CALL("FileManager.CopyFile");
    state_.fileSystem.CopyFile(source, destination, (option & host::kOverwriteExistingFile) != 0);
}

std::string SimFileLocations::Workspace() const {
    SIM_HOST_CALL("FileLocations.Workspace");
    return state_.workspace;
}

std::string SimFileLocations::TemplatesPath() const {
    SIM_HOST_CALL("FileLocations.TemplatesPath");
    return state_.templatesPath;
}

std::string SimFileLocations::FindDrawing(const std::string& modelFullFileName,
                                          const std::string& subject) const {
    SIM_HOST_CALL("FileLocations.FindDrawing");
    if (modelFullFileName.empty()) return "";
    std::string candidate =
        winpath::FolderPart(modelFullFileName) + winpath::BaseName(modelFullFileName) + ".idw";
    try {
        if (state_.fileSystem.FileExists(candidate)) return state_.fileSystem.Canonical(candidate);
    } catch (const Error&) {  // a model name that is no path knows no drawing
    }
    return "";
}

std::int32_t SimCamera::ViewOrientationType() const {
    SIM_HOST_CALL("Camera.ViewOrientationType");
    return pending_ ? pending_ : doc_->session.camera;
}

void SimCamera::SetViewOrientationType(std::int32_t orientation) {
    SIM_HOST_CALL("Camera.SetViewOrientationType");
    if (!names::Orientation(orientation))
        throw Error(errors::kInvalidArg, std::to_string(orientation) + " is not a view orientation");
    pending_ = orientation;
}

// The default orientation is the view the document was saved in.
void SimCamera::Apply() {
    SIM_HOST_CALL("Camera.Apply");
    if (!pending_) return;
    std::int32_t saved = doc_->Data().thumbnail;
    bool keepSaved = pending_ == host::kDefaultViewOrientation;
    doc_->session.camera = !keepSaved ? pending_ : saved ? saved : host::kIsoTopRightViewOrientation;
}

std::intptr_t SimView::HWND() const {
    SIM_HOST_CALL("View.HWND");
    return kMainFrameHWND + 0x10;
}

std::shared_ptr<host::Camera> SimView::Camera() {
    SIM_HOST_CALL("View.Camera");
    return std::make_shared<SimCamera>(doc_);
}

}  // namespace simhost
