// Assembly structure: occurrences, component definitions, mass properties.
#include "win/adapter/Adapted.h"

namespace win::adapter {

namespace {

// A placement as the host's Matrix: cells by row and column from 1.
::host::Matrix ReadMatrix(const Remote& matrix) {
    ::host::Matrix m;
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c) m.cell[r][c] = matrix.Get("Cell", {r + 1, c + 1}).ToDouble();
    return m;
}

// A new Matrix of the host's, from its TransientGeometry, with the placement's cells.
support::Variant NewMatrix(const Context& context, const ::host::Matrix& m) {
    Remote application("Application", context->application.Object(), context);
    Remote geometry("TransientGeometry", DispatchOf(application.Get("TransientGeometry")), context);
    support::Variant value = geometry.Call("CreateMatrix");
    Remote matrix("Matrix", DispatchOf(value), context);
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c) matrix.Put("Cell", {r + 1, c + 1}, m.cell[r][c]);
    return value;
}

class AdaptedComponentOccurrences : public ::host::ComponentOccurrences, public Adapted {
public:
    AdaptedComponentOccurrences(com::ComPtr<IDispatch> o, Context c)
        : Adapted("ComponentOccurrences", std::move(o), std::move(c)) {}
    std::int32_t Count() const override { return remote_.Long("Count"); }
    std::shared_ptr<::host::ComponentOccurrence> Item(std::int32_t index) override {
        return AdaptComponentOccurrence(remote_.Shared(), remote_.Get("Item", {index}));
    }
    std::shared_ptr<::host::ComponentOccurrence> Add(const std::string& fullFileName,
                                                     const ::host::Matrix& position) override {
        support::Variant matrix = NewMatrix(remote_.Shared(), position);
        return AdaptComponentOccurrence(remote_.Shared(), remote_.Call("Add", {fullFileName, matrix}));
    }
};

class AdaptedComponentOccurrence : public ::host::ComponentOccurrence, public Adapted {
public:
    AdaptedComponentOccurrence(com::ComPtr<IDispatch> o, Context c)
        : Adapted("ComponentOccurrence", std::move(o), std::move(c)) {}
    std::int32_t Type() const override { return remote_.Long("Type"); }
    std::string Name() const override { return remote_.Text("Name"); }
    void SetName(const std::string& name) override { remote_.Put("Name", name); }
    bool Visible() const override { return remote_.Flag("Visible"); }
    void SetVisible(bool visible) override { remote_.Put("Visible", visible); }
    bool Grounded() const override { return remote_.Flag("Grounded"); }
    void SetGrounded(bool grounded) override { remote_.Put("Grounded", grounded); }
    ::host::Matrix Transformation() const override {
        return ReadMatrix(Remote("Matrix", DispatchOf(remote_.Get("Transformation")), remote_.Shared()));
    }
    std::shared_ptr<::host::ComponentDefinition> Definition() override {
        return AdaptComponentDefinition(remote_.Shared(), remote_.Get("Definition"));
    }
    std::shared_ptr<::host::ComponentOccurrences> SubOccurrences() override {
        return AdaptComponentOccurrences(remote_.Shared(), remote_.Get("SubOccurrences"));
    }
    void Delete() override { remote_.Call("Delete"); }
    void Replace(const std::string& fullFileName, bool replaceAll) override {
        remote_.Call("Replace", {fullFileName, replaceAll});
    }
};

class AdaptedComponentDefinition : public ::host::ComponentDefinition, public Adapted {
public:
    AdaptedComponentDefinition(com::ComPtr<IDispatch> o, Context c)
        : Adapted("ComponentDefinition", std::move(o), std::move(c)) {}
    std::int32_t Type() const override { return remote_.Long("Type"); }
    std::shared_ptr<::host::Document> Document() override {
        return AdaptDocument(remote_.Shared(), remote_.Get("Document"));
    }
    std::shared_ptr<::host::ComponentOccurrences> Occurrences() override {
        return AdaptComponentOccurrences(remote_.Shared(), remote_.Get("Occurrences"));
    }
    std::shared_ptr<::host::MassProperties> MassProperties() override {
        return AdaptMassProperties(remote_.Shared(), remote_.Get("MassProperties"));
    }
    std::shared_ptr<::host::Material> Material() override {
        return AdaptMaterial(remote_.Shared(), remote_.Get("Material"));
    }
    void SetMaterial(const std::shared_ptr<::host::Material>& material) override {
        remote_.PutRef("Material", HostObjectOf(material));
    }
    std::shared_ptr<::host::AttributeSets> AttributeSets() override {
        return AdaptAttributeSets(remote_.Shared(), remote_.Get("AttributeSets"));
    }
    bool IsiPartMember() const override { return remote_.Flag("IsiPartMember"); }
    void BreakLinkToFactory() override { remote_.Call("BreakLinkToFactory"); }
};

class AdaptedMassProperties : public ::host::MassProperties, public Adapted {
public:
    AdaptedMassProperties(com::ComPtr<IDispatch> o, Context c)
        : Adapted("MassProperties", std::move(o), std::move(c)) {}
    double Mass() const override { return remote_.Real("Mass"); }
    double Volume() const override { return remote_.Real("Volume"); }
};

}  // namespace

TW_DEFINE_ADAPT(ComponentOccurrences)
TW_DEFINE_ADAPT(ComponentOccurrence)
TW_DEFINE_ADAPT(ComponentDefinition)
TW_DEFINE_ADAPT(MassProperties)

}  // namespace win::adapter
