#include "dialogs/main/Thumbnails.h"

#include "addin/shared/AddinState.h"
#include "host/Application.h"
#include "host/Document.h"

namespace dialogs::thumbnails {

std::int32_t OrientationCode(int checkedIndex) {
    if (checkedIndex < 0 || checkedIndex >= kOrientationCount) return kSavedOrientation;
    return kOrientations[checkedIndex].code;
}

ThumbnailRun::ThumbnailRun(addin::AddinState& state, std::int32_t orientation)
    : state_(state), orientation_(orientation), activeAtStart_(state.App().ActiveDocument()) {}

void ThumbnailRun::MakeThumbnail(const std::shared_ptr<host::Document>& document) {
    auto& app = state_.App();
    if (document->ReservedForWrite()) {
        app.SetStatusBarText("Skipping, File reserved by " + document->ReservedForWriteName());
        return;
    }
    if (!document->IsModifiable()) {
        app.SetStatusBarText("Skipping Un-Modifiable File");
        return;
    }
    auto opened = app.Documents()->Open(document->FullFileName(), true);
    state_.platform.DoEvents();
    if (orientation_ != kSavedOrientation) {
        auto camera = app.ActiveView()->Camera();
        camera->SetViewOrientationType(orientation_);
        camera->Apply();
    }
    opened->SetDirty(true);
    opened->Save();
    if (opened != activeAtStart_) opened->Close();
}

void ThumbnailRun::ProcessReferences(const std::shared_ptr<host::Document>& document) {
    // No record of what is done: a document met twice is made twice.
    for (const auto& referenced : document->ReferencedDocuments()) {
        if (!referenced->ReferencedDocuments().empty()) ProcessReferences(referenced);
        MakeThumbnail(referenced);
    }
}

void ThumbnailRun::ProcessWithReferences(const std::shared_ptr<host::Document>& document) {
    ProcessReferences(document);
    MakeThumbnail(document);
}

}  // namespace dialogs::thumbnails
