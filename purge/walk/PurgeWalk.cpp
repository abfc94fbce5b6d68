#include "purge/walk/PurgeWalk.h"

#include <vector>

#include "host/Application.h"
#include "host/Document.h"
#include "host/FileSystem.h"
#include "properties/table/EMatrixSet.h"
#include "purge/walk/StylePurge.h"
#include "support/Error.h"

namespace purge {

void PurgeWalk::PurgeTree(const std::shared_ptr<host::Document>& top) {
    std::vector<std::shared_ptr<host::Document>> pending{top};
    while (!pending.empty() && !context_.sink.StopRequested()) {
        auto document = std::move(pending.back());
        pending.pop_back();
        if (!document || !PurgeDocument(*document)) continue;
        // A document whose references cannot be read is still listed; the walk goes on
        // with the others.
        try {
            auto references = document->ReferencedDocuments();
            pending.insert(pending.end(), references.rbegin(), references.rend());
        } catch (const support::Error&) {
        }
    }
}

// A failing step ends this document's handling and the walk goes on: its line may then
// be missing, and the rest of the tree is still listed.
bool PurgeWalk::PurgeDocument(host::Document& document) {
    std::string name;
    try {
        name = document.FullFileName();
    } catch (const support::Error&) {
        return false;
    }
    if (!visited_.insert(name).second) return false;
    try {
        if (!document.IsModifiable()) {
            AddLine(kNotModifiable, name);
        } else if (document.NeedsMigrating()) {
            AddLine(kNeedsMigrate, name);
        } else if (!context_.fileSystem.IsReadOnly(name)) {
            // Listed as purged and left as it is: only files whose attribute the walk resets
            // are purged, so that a writable file the user is working on is never changed.
            AddLine(kPurged, name);
        } else if (context_.resetReadOnly) {
            PurgeReadOnly(document, name);
        } else {
            AddLine(kReadOnly, name);
        }
    } catch (const support::Error&) {
    }
    return true;
}

void PurgeWalk::PurgeReadOnly(host::Document& document, const std::string& name) {
    context_.fileSystem.SetReadOnly(name, false);
    context_.sink.AddLine(std::string(kWasReadOnlyPurged) + "\t" + name);
    properties::RebuildEMatrixSet(document);
    PurgeStyles(document, context_.app.SoftwareVersionMajor());
    context_.sink.Yield();
}

void PurgeWalk::AddLine(const char* label, const std::string& name) {
    context_.sink.AddLine(std::string(label) + "\t" + name);
    context_.sink.Yield();
}

}  // namespace purge
