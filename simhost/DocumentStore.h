#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "simhost/DocData.h"

namespace simhost {

class SimState;

// The host's document collection: every document in memory, indexed by its lower-cased
// full file name, in the order they were loaded; which of them are shown (the last
// shown is the active one); and how documents reach the disk. A document referenced by
// another loaded document stays loaded; one that nobody opened and nobody references any
// more is dropped, together with whatever only it kept loaded.
class DocumentStore {
public:
    explicit DocumentStore(SimState& state) : state_(state) {}

    SimDocumentPtr Find(const std::string& fullFileName) const;  // loaded, or null
    SimDocumentPtr Open(const std::string& fullFileName, bool visible);
    SimDocumentPtr Add(DocKind kind, const std::string& templateFileName, bool visible);
    // Loads a file as a reference (with everything it references) or finds it loaded.
    SimDocumentPtr Reference(const std::string& fullFileName);
    void Close(SimDocument& doc, bool skipSave);
    void CloseAll();

    void Save(SimDocument& doc);
    void SaveAs(SimDocument& doc, const std::string& fullFileName, bool saveCopyAs);

    SimDocumentPtr Active() const;
    void Show(SimDocument& doc);  // visible and active

    std::int32_t Count();
    SimDocumentPtr Item(std::int32_t index);  // from 1

    // Reference counting of documents by the documents that hold them.
    void AddReferrer(const SimDocumentPtr& doc);
    void DropReferrer(const SimDocumentPtr& doc);
    // Drops a document loaded for an operation that then failed.
    void DropIfUnused(const SimDocumentPtr& doc);
    // A document a restored transaction refers to: loaded again if it was dropped, or
    // the document now loaded under its name.
    SimDocumentPtr Adopt(const SimDocumentPtr& doc);

private:
    SimDocumentPtr Load(const std::string& fullFileName);
    SimDocumentPtr FindLoaded(const std::string& fullFileName) const;  // Find, null for a non-path
    struct PendingLoad;
    SimDocumentPtr LoadTree(const std::string& fullFileName, std::vector<SimDocumentPtr>& added,
                            std::unordered_set<std::string>& loading);
    SimDocumentPtr Begin(const std::string& fullFileName, std::vector<std::unique_ptr<PendingLoad>>& stack,
                         std::unordered_set<std::string>& loading);
    void Attach(PendingLoad& parent, const SimDocumentPtr& doc);
    void Register(const SimDocumentPtr& doc);
    void Unload(SimDocument& doc);
    void Compact();
    void WriteFile(SimDocument& doc, const std::string& fullFileName);
    void CheckSavable(const SimDocument& doc) const;
    std::vector<SimDocument*> DirtyInTree(SimDocument& top) const;
    std::string Key(const std::string& fullFileName) const;

    SimState& state_;
    std::vector<SimDocumentPtr> documents_;  // load order; dropped ones until compacted
    bool needsCompact_ = false;
    std::unordered_map<std::string, SimDocument*> byName_;
    std::vector<SimDocument*> shown_;  // activation order, the active one last
    std::unordered_map<int, int> untitledCount_;
};

}  // namespace simhost
