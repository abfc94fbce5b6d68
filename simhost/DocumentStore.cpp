#include "simhost/DocumentStore.h"

#include <algorithm>

#include "simhost/SimDocument.h"
#include "simhost/SimFormat.h"
#include "simhost/SimState.h"
#include "simhost/WinPath.h"
#include "support/Error.h"
#include "support/Text.h"

using support::Error;
namespace errors = support::errors;

namespace simhost {

namespace {

const char* UntitledStem(DocKind kind) {
    switch (kind) {
        case DocKind::Part:
            return "Part";
        case DocKind::Assembly:
            return "Assembly";
        case DocKind::Drawing:
            return "Drawing";
        case DocKind::Presentation:
            return "Presentation";
    }
    return "Document";
}

// Every file reference a document holds.
template <class Data, class F>
void ForEachRef(Data& data, F f) {
    for (auto& occ : data.occurrences) f(occ.ref);
    for (auto& model : data.models) f(model);
}

}  // namespace

std::string DocumentStore::Key(const std::string& fullFileName) const {
    winpath::Parsed p = winpath::Parse(fullFileName);
    return support::LCase(winpath::Join(p.drive, p.components));
}

SimDocumentPtr DocumentStore::Find(const std::string& fullFileName) const {
    if (fullFileName.empty()) return nullptr;
    auto it = byName_.find(Key(fullFileName));
    return it == byName_.end() ? nullptr : it->second->shared_from_this();
}

SimDocumentPtr DocumentStore::FindLoaded(const std::string& fullFileName) const {
    try {
        return Find(fullFileName);
    } catch (const Error&) {  // not a path: the load that follows says so
        return nullptr;
    }
}

void DocumentStore::Register(const SimDocumentPtr& doc) {
    doc->session.loaded = true;
    documents_.push_back(doc);
    if (!doc->FullFileName().empty()) byName_[Key(doc->FullFileName())] = doc.get();
}

// A document being read while its references load, children first.
struct DocumentStore::PendingLoad {
    std::string name;
    std::string key;
    DocData data;
    std::vector<FileRef*> refs;  // into data, which stays put: the frame is never moved
    std::size_t next = 0;
};

// The tree is loaded depth-first with a stack of its own, not on the call stack, so that
// an assembly nested thousands of levels deep loads like any other.
SimDocumentPtr DocumentStore::LoadTree(const std::string& fullFileName, std::vector<SimDocumentPtr>& added,
                                       std::unordered_set<std::string>& loading) {
    std::vector<std::unique_ptr<PendingLoad>> stack;
    SimDocumentPtr loaded = Begin(fullFileName, stack, loading);
    while (!stack.empty()) {
        PendingLoad& top = *stack.back();
        if (top.next < top.refs.size()) {
            FileRef& ref = *top.refs[top.next];
            // A file already loaded is taken as it is, without asking the disk again: an
            // assembly places the same few parts thousands of times.
            if (auto loaded = FindLoaded(ref.file)) {
                Attach(top, loaded);
                continue;
            }
            bool found = false;
            try {
                found = state_.fileSystem.FileExists(ref.file);
            } catch (const Error&) {  // not a path, or a drive that is not mapped
            }
            if (!found)
                throw Error(errors::kFileNotFound,
                            top.name + ": cannot find the referenced file " + ref.file);
            if (auto doc = Begin(ref.file, stack, loading)) Attach(top, doc);
            continue;
        }
        loading.erase(top.key);
        auto doc = std::make_shared<SimDocument>(state_, top.name, std::move(top.data));
        ForEachRef(doc->Data(), [&](const FileRef& ref) { ++ref.doc->session.referrers; });
        doc->NameUnnamedOccurrences();
        Register(doc);
        added.push_back(doc);
        stack.pop_back();
        if (stack.empty()) return doc;
        Attach(*stack.back(), doc);
    }
    return loaded;
}

// The document already loaded, or null after reading the file and pushing it to load.
SimDocumentPtr DocumentStore::Begin(const std::string& fullFileName,
                                    std::vector<std::unique_ptr<PendingLoad>>& stack,
                                    std::unordered_set<std::string>& loading) {
    auto resolved = state_.fileSystem.Drive().Resolve(fullFileName);
    const std::string& name = resolved.windowsPath;
    if (!resolved.exists || resolved.isFolder) throw Error(errors::kFileNotFound, "File not found: " + name);
    if (auto loaded = Find(name)) return loaded;
    std::string key = Key(name);
    if (!loading.insert(key).second) {
        // A file met again while it loads is a reference cycle: every file of it is named.
        std::string cycle;
        bool inCycle = false;
        for (const auto& pending : stack) {
            inCycle = inCycle || pending->key == key;
            if (inCycle) cycle += pending->name + " -> ";
        }
        throw Error(errors::kFail, "The files reference each other in a cycle: " + cycle + name);
    }

    auto pending = std::make_unique<PendingLoad>();
    pending->name = name;
    pending->key = key;
    pending->data = format::Read(state_.fileSystem.ReadText(name), name);
    const DocData& data = pending->data;
    if (winpath::Extension(name) != ExtensionOf(data.kind))
        throw Error(errors::kFail, name + ": the file holds a " + KindName(data.kind) +
                                       ", whose name ends in " + ExtensionOf(data.kind));
    if (data.savedBy > state_.softwareVersion)
        throw Error(errors::kFail, name + ": saved by release " + std::to_string(data.savedBy) +
                                       ", newer than this host (" + std::to_string(state_.softwareVersion) +
                                       ")");
    ForEachRef(pending->data, [&](FileRef& ref) { pending->refs.push_back(&ref); });
    stack.push_back(std::move(pending));
    return nullptr;
}

void DocumentStore::Attach(PendingLoad& parent, const SimDocumentPtr& doc) {
    FileRef& ref = *parent.refs[parent.next++];
    ref.doc = doc;
    if (doc->Data().kind == DocKind::Drawing)
        throw Error(errors::kFail, parent.name + ": references the drawing " + doc->FullFileName());
    if (parent.data.kind == DocKind::Assembly && doc->Data().kind == DocKind::Presentation)
        throw Error(errors::kFail,
                    parent.name + ": an assembly cannot hold the presentation " + doc->FullFileName());
}

// All or nothing: a file of the tree that cannot be read leaves nothing of it loaded.
SimDocumentPtr DocumentStore::Load(const std::string& fullFileName) {
    std::vector<SimDocumentPtr> added;
    std::unordered_set<std::string> loading;
    try {
        return LoadTree(fullFileName, added, loading);
    } catch (...) {
        for (auto& doc : added) {
            ForEachRef(doc->Data(), [&](const FileRef& ref) { --ref.doc->session.referrers; });
            doc->session.loaded = false;
            byName_.erase(Key(doc->FullFileName()));
        }
        std::erase_if(documents_, [](const SimDocumentPtr& d) { return !d->session.loaded; });
        throw;
    }
}

SimDocumentPtr DocumentStore::Open(const std::string& fullFileName, bool visible) {
    if (fullFileName.empty())
        throw Error(errors::kFileNotFound, "Cannot open a document without a file name");
    auto doc = Find(fullFileName);
    if (!doc) doc = Load(fullFileName);
    doc->session.explicitOpen = true;
    if (visible) {
        std::int32_t saved = doc->Data().thumbnail;
        doc->session.camera =
            saved && saved != host::kDefaultViewOrientation ? saved : host::kIsoTopRightViewOrientation;
        Show(*doc);
    }
    state_.ReportOpened(doc->FullFileName(), visible);
    return doc;
}

SimDocumentPtr DocumentStore::Reference(const std::string& fullFileName) {
    auto doc = Find(fullFileName);
    return doc ? doc : Load(fullFileName);
}

SimDocumentPtr DocumentStore::Add(DocKind kind, const std::string& templateFileName, bool visible) {
    DocData data = EmptyDocData(kind);
    std::vector<SimDocumentPtr> added;
    if (!templateFileName.empty()) {
        std::string name = state_.fileSystem.Canonical(templateFileName);
        data = format::Read(state_.fileSystem.ReadText(name), name);
        if (data.kind != kind)
            throw Error(errors::kInvalidArg, name + ": a " + std::string(KindName(data.kind)) +
                                                 " template cannot start a new " + KindName(kind));
        try {
            ForEachRef(data, [&](FileRef& ref) { ref.doc = Reference(ref.file); });
        } catch (...) {
            ForEachRef(data, [&](FileRef& ref) {
                if (ref.doc) DropIfUnused(ref.doc);
            });
            throw;
        }
        ForEachRef(data, [&](FileRef& ref) { ++ref.doc->session.referrers; });
    }
    data.savedBy = state_.softwareVersion;
    data.displayName.clear();
    auto doc = std::make_shared<SimDocument>(state_, "", std::move(data));
    doc->NameUnnamedOccurrences();
    doc->session.untitledName = UntitledStem(kind) + std::to_string(++untitledCount_[static_cast<int>(kind)]);
    doc->session.explicitOpen = true;
    doc->session.camera = host::kIsoTopRightViewOrientation;
    Register(doc);
    if (visible) Show(*doc);
    return doc;
}

// Another document coming to the front ends whatever was being edited in the last one.
void DocumentStore::Show(SimDocument& doc) {
    if (!shown_.empty() && shown_.back() == &doc) return;
    std::erase(shown_, &doc);
    shown_.push_back(&doc);
    state_.editMode = EditMode::TopLevel;
    state_.editPath.clear();
}

SimDocumentPtr DocumentStore::Active() const {
    return shown_.empty() ? nullptr : shown_.back()->shared_from_this();
}

// Closing with saving saves what Save would: the document and every dirty document it
// references, so that an edit made to a part inside a clean assembly is not lost.
void DocumentStore::Close(SimDocument& doc, bool skipSave) {
    doc.CheckLoaded();
    if (!skipSave && !DirtyInTree(doc).empty()) Save(doc);
    state_.ReportClosed(doc.FullFileName().empty() ? doc.DisplayName() : doc.FullFileName());
    doc.session.explicitOpen = false;
    if (!shown_.empty() && shown_.back() == &doc) {
        state_.editMode = EditMode::TopLevel;
        state_.editPath.clear();
    }
    std::erase(shown_, &doc);
    if (doc.session.referrers == 0) Unload(doc);
}

void DocumentStore::CloseAll() {
    for (auto& doc : documents_) {
        if (doc->session.loaded && doc->session.explicitOpen)
            state_.ReportClosed(doc->FullFileName().empty() ? doc->DisplayName() : doc->FullFileName());
        doc->session = SimDocument::Session{false, false, 0, 0, doc->session.untitledName};
    }
    documents_.clear();
    byName_.clear();
    shown_.clear();
    state_.editMode = EditMode::TopLevel;
    state_.editPath.clear();
}

// A document dropped may leave the documents it holds unreferenced in turn; they go with
// it, from a list rather than by recursion, however deep the tree.
void DocumentStore::Unload(SimDocument& first) {
    std::vector<SimDocument*> dropping{&first};
    while (!dropping.empty()) {
        SimDocument& doc = *dropping.back();
        dropping.pop_back();
        if (doc.Dirty())
            state_.ReportDiscarded(doc.FullFileName().empty() ? doc.DisplayName() : doc.FullFileName());
        doc.session.loaded = false;
        doc.session.explicitOpen = false;
        needsCompact_ = true;
        if (!doc.FullFileName().empty()) {
            auto it = byName_.find(Key(doc.FullFileName()));
            if (it != byName_.end() && it->second == &doc) byName_.erase(it);
        }
        std::erase(shown_, &doc);
        ForEachRef(doc.Data(), [&](const FileRef& ref) {
            if (--ref.doc->session.referrers == 0 && !ref.doc->session.explicitOpen &&
                ref.doc->session.loaded)
                dropping.push_back(ref.doc.get());
        });
    }
}

void DocumentStore::AddReferrer(const SimDocumentPtr& doc) {
    ++doc->session.referrers;
}

void DocumentStore::DropReferrer(const SimDocumentPtr& doc) {
    if (--doc->session.referrers == 0 && !doc->session.explicitOpen && doc->session.loaded) Unload(*doc);
}

void DocumentStore::DropIfUnused(const SimDocumentPtr& doc) {
    if (doc->session.referrers == 0 && !doc->session.explicitOpen && doc->session.loaded) Unload(*doc);
}

SimDocumentPtr DocumentStore::Adopt(const SimDocumentPtr& doc) {
    if (doc->session.loaded) return doc;
    if (auto loaded = Find(doc->FullFileName())) return loaded;
    Register(doc);
    ForEachRef(doc->Raw(), [&](FileRef& ref) {
        ref.doc = Adopt(ref.doc);
        AddReferrer(ref.doc);
    });
    return doc;
}

void DocumentStore::Compact() {
    if (!needsCompact_) return;
    std::erase_if(documents_, [](const SimDocumentPtr& d) { return !d->session.loaded; });
    needsCompact_ = false;
}

std::int32_t DocumentStore::Count() {
    Compact();
    return static_cast<std::int32_t>(documents_.size());
}

SimDocumentPtr DocumentStore::Item(std::int32_t index) {
    Compact();
    if (index < 1 || index > static_cast<std::int32_t>(documents_.size()))
        throw Error(errors::kInvalidArg, "Documents.Item: no document at " + std::to_string(index));
    return documents_[index - 1];
}

void DocumentStore::CheckSavable(const SimDocument& doc) const {
    if (doc.ReservedForWrite())
        throw Error(errors::kPermissionDenied,
                    doc.FullFileName() + " is reserved for write by " + doc.ReservedForWriteName());
    if (!doc.Data().modifiable)
        throw Error(errors::kPermissionDenied, doc.FullFileName() + " cannot be modified");
}

// The file gets the current release as its saver, and the active document's current
// view as its thumbnail.
void DocumentStore::WriteFile(SimDocument& doc, const std::string& fullFileName) {
    DocData out = doc.Data();
    out.savedBy = state_.softwareVersion;
    if (Active().get() == &doc) out.thumbnail = doc.session.camera;
    std::string text;
    try {
        text = format::Write(out);
    } catch (const std::exception& e) {  // text is checked where it enters; this only backs that up
        throw Error(errors::kFail, fullFileName + ": the document cannot be written: " + e.what());
    }
    state_.fileSystem.WriteText(fullFileName, text);
}

// Saves the document and every dirty document it references, the referenced ones first,
// so that no file on disk points at a copy that is not there yet.
void DocumentStore::Save(SimDocument& doc) {
    doc.CheckLoaded();
    if (doc.FullFileName().empty())
        throw Error(errors::kFail,
                    doc.DisplayName() + " has never been saved; it needs a file name (SaveAs)");
    for (SimDocument* d : DirtyInTree(doc)) {
        CheckSavable(*d);
        WriteFile(*d, d->FullFileName());
        d->MarkSaved(state_.softwareVersion, Active().get() == d ? d->session.camera : d->Data().thumbnail);
    }
}

// The dirty documents of the tree, those referenced before those that reference them.
// Walked with a stack of its own: a tree may be deeper than the call stack.
std::vector<SimDocument*> DocumentStore::DirtyInTree(SimDocument& top) const {
    std::vector<SimDocument*> order;
    std::unordered_set<SimDocument*> seen{&top};
    std::vector<std::pair<SimDocument*, std::vector<SimDocument*>>> stack;
    auto children = [](SimDocument& d) {
        std::vector<SimDocument*> out;
        ForEachRef(d.Data(), [&](const FileRef& ref) { out.push_back(ref.doc.get()); });
        std::reverse(out.begin(), out.end());
        return out;
    };
    stack.emplace_back(&top, children(top));
    while (!stack.empty()) {
        auto& [doc, pending] = stack.back();
        if (pending.empty()) {
            if (doc->Dirty()) order.push_back(doc);
            stack.pop_back();
            continue;
        }
        SimDocument* next = pending.back();
        pending.pop_back();
        if (seen.insert(next).second) stack.emplace_back(next, children(*next));
    }
    return order;
}

void DocumentStore::SaveAs(SimDocument& doc, const std::string& fullFileName, bool saveCopyAs) {
    doc.CheckLoaded();
    std::string name = state_.fileSystem.Canonical(fullFileName);
    if (winpath::Extension(name) != ExtensionOf(doc.Data().kind))
        throw Error(errors::kInvalidArg,
                    "Cannot save a " + std::string(KindName(doc.Data().kind)) + " as " + name);
    auto other = Find(name);
    // A copy may replace the file of another open document only while that document has
    // nothing unsaved to lose: packing from memory writes a part used under two parents
    // twice, the second time over the copy the first replace opened.
    if (other && other.get() != &doc && (!saveCopyAs || other->Dirty()))
        throw Error(errors::kFail, name + " is open as another document");
    WriteFile(doc, name);
    if (saveCopyAs && other.get() != &doc) return;
    if (!doc.FullFileName().empty()) byName_.erase(Key(doc.FullFileName()));
    doc.SetFullFileName(name);
    byName_[Key(name)] = &doc;
    doc.MarkSaved(state_.softwareVersion, Active().get() == &doc ? doc.session.camera : doc.Data().thumbnail);
}

}  // namespace simhost
