#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "host/Component.h"
#include "simhost/DocData.h"

namespace simhost {

// An occurrence, named by the path of occurrence uids that leads to it from its context
// document. A path of one is an occurrence of that document itself; a longer path is a
// proxy in the context of the top assembly: it reads and changes the occurrence it
// stands for in that occurrence's own parent document, and its Transformation is the
// placements along the path composed top-down. The context document hands out one
// handle per path, so the same occurrence asked for twice is the same object.
class SimOccurrence : public host::ComponentOccurrence {
public:
    SimOccurrence(SimDocumentPtr context, std::vector<std::int64_t> path)
        : context_(std::move(context)), path_(std::move(path)) {}

    const SimDocumentPtr& Context() const { return context_; }
    const std::vector<std::int64_t>& Path() const { return path_; }
    SimDocument& Parent() const;         // the document holding the occurrence
    const OccurrenceData& Data() const;  // throws when it no longer exists

    std::int32_t Type() const override;
    std::string Name() const override;
    void SetName(const std::string& name) override;
    bool Visible() const override;
    void SetVisible(bool visible) override;
    bool Grounded() const override;
    void SetGrounded(bool grounded) override;
    host::Matrix Transformation() const override;
    std::shared_ptr<host::ComponentDefinition> Definition() override;
    std::shared_ptr<host::ComponentOccurrences> SubOccurrences() override;
    void Delete() override;
    void Replace(const std::string& fullFileName, bool replaceAll) override;

private:
    SimDocumentPtr context_;
    std::vector<std::int64_t> path_;
};

// The occurrences of a document (an empty prefix) or the sub-occurrences of the
// occurrence the prefix leads to, as proxies in the same context.
class SimOccurrences : public host::ComponentOccurrences {
public:
    SimOccurrences(SimDocumentPtr context, std::vector<std::int64_t> prefix)
        : context_(std::move(context)), prefix_(std::move(prefix)) {}
    std::int32_t Count() const override;
    std::shared_ptr<host::ComponentOccurrence> Item(std::int32_t index) override;
    std::shared_ptr<host::ComponentOccurrence> Add(const std::string& fullFileName,
                                                   const host::Matrix& position) override;

private:
    SimDocument& Holder() const;
    SimDocumentPtr context_;
    std::vector<std::int64_t> prefix_;
};

class SimComponentDefinition : public host::ComponentDefinition {
public:
    explicit SimComponentDefinition(SimDocumentPtr doc) : doc_(std::move(doc)) {}
    std::int32_t Type() const override;
    std::shared_ptr<host::Document> Document() override;
    std::shared_ptr<host::ComponentOccurrences> Occurrences() override;
    // A part: its material's density times its volume; an assembly: the sum over its
    // occurrences. Fails for a part whose material is unknown, and for an assembly
    // holding one.
    std::shared_ptr<host::MassProperties> MassProperties() override;
    std::shared_ptr<host::AttributeSets> AttributeSets() override;
    bool IsiPartMember() const override;
    void BreakLinkToFactory() override;
    std::shared_ptr<host::Material> Material() override;
    void SetMaterial(const std::shared_ptr<host::Material>& material) override;

private:
    void RequirePartDefinition(const char* member) const;
    SimDocumentPtr doc_;
};

}  // namespace simhost
