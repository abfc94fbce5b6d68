#pragma once
#include <memory>
#include <string>
#include <unordered_set>

namespace host {
class Application;
class Document;
class FileSystem;
}  // namespace host

// The style purge's walk: the active document and every document it references, each
// handled once, in pre-order, with one result line a document.
namespace purge {

// Where the walk writes its lines, and how the user stops it. Yield runs the message
// loop: a Stop pressed then is seen before the next document starts.
class PurgeSink {
public:
    virtual ~PurgeSink() = default;
    virtual void AddLine(const std::string& line) = 0;
    virtual void Yield() = 0;
    virtual bool StopRequested() const = 0;
};

struct PurgeContext {
    host::Application& app;
    host::FileSystem& fileSystem;
    PurgeSink& sink;
    bool resetReadOnly;  // "Reset Read Only": purge read-only files after clearing the attribute
};

// The result lines; each is the label, a tab and the document's full file name.
inline constexpr const char* kNotModifiable = "Not Modifiable:";
inline constexpr const char* kNeedsMigrate = "Needs Migrate:";
inline constexpr const char* kReadOnly = "Read Only:";
inline constexpr const char* kWasReadOnlyPurged = "Was R/0 Purged";
inline constexpr const char* kPurged = "Purged:";

class PurgeWalk {
public:
    explicit PurgeWalk(PurgeContext context) : context_(context) {}

    // Walks depth-first in pre-order with a stack of its own rather than the call stack,
    // so that neither a very deep tree nor a reference cycle can end it early or keep it
    // going: a document already handled is neither listed nor descended into again.
    void PurgeTree(const std::shared_ptr<host::Document>& top);

private:
    // Lists and, where allowed, purges one document; false when it was handled before.
    bool PurgeDocument(host::Document& document);
    void PurgeReadOnly(host::Document& document, const std::string& name);
    void AddLine(const char* label, const std::string& name);

    PurgeContext context_;
    std::unordered_set<std::string> visited_;  // full file names
};

}  // namespace purge
