#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "host/Document.h"
#include "simhost/DocData.h"
#include "simhost/HostCalls.h"
#include "simhost/PropertyIndex.h"

namespace simhost {

class SimState;
class SimOccurrence;
class SimComponentDefinition;

// One document in the host's memory: the data its file holds plus the session's view of
// it. Every change goes through Edit() (or the occurrence operations, which call it), so
// that an open transaction keeps the data as it was and the document turns dirty.
class SimDocument final : public host::Document, public std::enable_shared_from_this<SimDocument> {
public:
    SimDocument(SimState& state, std::string fullFileName, DocData data);
    ~SimDocument() override;

    // What the session knows about the document besides its data; kept by DocumentStore.
    struct Session {
        bool loaded = true;         // in the host's document collection
        bool explicitOpen = false;  // opened or created by someone, not only referenced
        int referrers = 0;          // occurrences and drawing views in loaded documents
        std::int32_t camera = 0;    // the applied view orientation while shown
        std::string untitledName;   // "Assembly1" for a document never saved
    } session;

    SimState& State() const { return state_; }
    const DocData& Data() const { return data_; }
    DocData& Edit();  // not for occurrences: use the operations below
    void Restore(DocData data, bool dirty);
    // The look-up of the stored properties of the set at that position; dropped whenever
    // properties or sets are added or removed other than by appending a property.
    PropertyIndex& PropertiesOf(std::size_t set) const;
    void PropertiesMoved() { propertyIndex_.clear(); }
    void SetFullFileName(std::string name) { fullFileName_ = std::move(name); }
    // The file now matches the document: clean, saved by this release in this view.
    void MarkSaved(std::int32_t savedBy, std::int32_t thumbnail);
    // For the store only: the data without recording a change.
    DocData& Raw() { return data_; }
    // The file holds UTF-8 text only: other text is refused where it enters, naming the
    // file, so that no save fails on it later and nothing is half written.
    void RequireStorable(std::string_view text) const;
    void RequireStorableValue(const support::Variant& value) const;
    // Gives default names to occurrences a file listed without one (loading only).
    void NameUnnamedOccurrences();
    std::string BaseNameForOccurrences() const;  // "Bracket" for C:\Work\Bracket.ipt
    void CheckLoaded() const;

    // --- occurrences (assemblies), by their session-stable uid
    const OccurrenceData* FindOccurrence(std::int64_t uid) const;
    const OccurrenceData* FindOccurrenceByName(const std::string& name) const;
    const OccurrenceData& Occurrence(std::int64_t uid) const;  // throws when gone
    std::int64_t AddOccurrence(const SimDocumentPtr& target, const host::Matrix& position);
    void RemoveOccurrence(std::int64_t uid);
    void RenameOccurrence(std::int64_t uid, const std::string& name);  // "" restores the default
    void ReplaceOccurrence(std::int64_t uid, const SimDocumentPtr& target, bool replaceAll);
    void SetOccurrenceVisible(std::int64_t uid, bool visible);
    void SetOccurrenceGrounded(std::int64_t uid, bool grounded);
    // True when this document is the target or (transitively) referenced by it.
    bool IsReferencedBy(const SimDocument& target) const;

    // The one handle of an occurrence reached along a path of uids from this document.
    std::shared_ptr<SimOccurrence> OccurrenceHandle(const std::vector<std::int64_t>& path);
    std::shared_ptr<SimComponentDefinition> Definition();

    // --- host::Document
    std::int32_t Type() const override;
    std::string FullFileName() const override;
    std::string DisplayName() const override;
    void SetDisplayName(const std::string& name) override;
    std::int32_t DocumentType() const override;
    void SaveAs(const std::string& fullFileName, bool saveCopyAs) override;
    void Save() override;
    void Close(bool skipSave = false) override;
    bool Dirty() const override;
    void SetDirty(bool dirty) override;
    bool IsModifiable() const override;
    bool ReservedForWrite() const override;
    std::string ReservedForWriteName() const override;
    std::int32_t DisabledCommandTypes() const override;
    void SetDisabledCommandTypes(std::int32_t types) override;
    std::int32_t SoftwareVersionSaved() const override;
    bool NeedsMigrating() const override;
    std::shared_ptr<host::PropertySets> PropertySets() override;
    std::shared_ptr<host::UnitsOfMeasure> UnitsOfMeasure() override;
    std::shared_ptr<host::ComponentDefinition> ComponentDefinition() override;
    std::vector<host::DocumentPtr> ReferencedDocuments() override;
    std::string Thumbnail() const override;
    std::shared_ptr<host::Materials> Materials() override;
    std::shared_ptr<host::RenderStyles> RenderStyles() override;
    std::shared_ptr<host::Material> ActiveMaterial() override;
    std::shared_ptr<host::RenderStyle> ActiveRenderStyle() override;
    void SetActiveRenderStyle(const std::shared_ptr<host::RenderStyle>& style) override;
    std::shared_ptr<host::DrawingSettings> DrawingSettings() override;
    std::shared_ptr<host::Collection<host::TitleBlockDefinition>> TitleBlockDefinitions() override;

private:
    void RequirePart(const char* member) const;
    void RequireDrawing(const char* member) const;

    void RequireAssembly(const char* member) const;
    OccurrenceData& MutableOccurrence(std::int64_t uid);
    void Reindex() const;
    std::string FreeDefaultName(const std::string& base, std::int64_t exceptUid) const;
    void ReleaseName(const std::string& name);
    bool IsDefaultName(const OccurrenceData& occ) const;

    SimState& state_;
    std::string fullFileName_;
    DocData data_;
    bool dirty_ = false;

    // Occurrence look-up, rebuilt when stale and kept in step by the operations.
    mutable bool indexStale_ = true;
    mutable std::unordered_map<std::int64_t, std::size_t> byUid_;
    mutable std::unordered_map<std::string, std::int64_t> byName_;
    // For each default-name base, a number below which every "base:n" is taken, so that
    // naming thousands of occurrences of one file does not count up from 1 each time.
    // Lowered when such a name is let go; forgotten when names go wholesale.
    mutable std::unordered_map<std::string, long> takenBelow_;
    mutable std::vector<PropertyIndex> propertyIndex_;

    std::unordered_map<std::string, std::weak_ptr<SimOccurrence>> handles_;
    std::size_t handlesPruneAt_ = 256;
    std::weak_ptr<SimComponentDefinition> definition_;
};

}  // namespace simhost
