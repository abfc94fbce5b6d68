#include "materials/TemplateFile.h"

#include "host/Application.h"
#include "host/Document.h"
#include "support/Text.h"

namespace materials {

TemplateFile::TemplateFile(host::Application& app, const std::string& fullFileName) {
    auto documents = app.Documents();
    for (std::int32_t i = 1; i <= documents->Count(); ++i) {
        auto open = documents->Item(i);
        if (!open->FullFileName().empty() &&
            support::LCase(open->FullFileName()) == support::LCase(fullFileName)) {
            document_ = open;
            openedHere_ = false;
            return;
        }
    }
    document_ = documents->Open(fullFileName, false);
}

void TemplateFile::CloseWithoutSaving() {
    if (openedHere_) document_->Close(true);
}

void TemplateFile::SaveAndClose() {
    document_->Save();
    if (openedHere_) document_->Close(false);
}

}  // namespace materials
