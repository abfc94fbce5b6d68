// Documents: the collection, each document and a drawing's own objects.
#include "win/adapter/Adapted.h"

namespace win::adapter {

namespace {

// A collection the host counts and indexes from 1, of objects of one kind.
template <class T, std::shared_ptr<T> (*AdaptItem)(const Context&, const support::Variant&)>
class AdaptedCollection : public ::host::Collection<T>, public Adapted {
public:
    AdaptedCollection(const char* kind, com::ComPtr<IDispatch> o, Context c)
        : Adapted(kind, std::move(o), std::move(c)) {}
    std::int32_t Count() const override { return remote_.Long("Count"); }
    std::shared_ptr<T> Item(std::int32_t index) override {
        return AdaptItem(remote_.Shared(), remote_.Get("Item", {index}));
    }
};

struct TitleBlockDefinitionList : AdaptedCollection<::host::TitleBlockDefinition, AdaptTitleBlockDefinition> {
    TitleBlockDefinitionList(com::ComPtr<IDispatch> o, Context c)
        : AdaptedCollection("TitleBlockDefinitions", std::move(o), std::move(c)) {}
};
struct TextBoxList : AdaptedCollection<::host::TextBox, AdaptTextBox> {
    TextBoxList(com::ComPtr<IDispatch> o, Context c)
        : AdaptedCollection("TextBoxes", std::move(o), std::move(c)) {}
};
struct DocumentsEnumerator : AdaptedCollection<::host::Document, AdaptDocument> {
    DocumentsEnumerator(com::ComPtr<IDispatch> o, Context c)
        : AdaptedCollection("DocumentsEnumerator", std::move(o), std::move(c)) {}
};

class AdaptedDocuments : public ::host::Documents, public Adapted {
public:
    AdaptedDocuments(com::ComPtr<IDispatch> o, Context c)
        : Adapted("Documents", std::move(o), std::move(c)) {}
    std::int32_t Count() const override { return remote_.Long("Count"); }
    ::host::DocumentPtr Item(std::int32_t index) override {
        return AdaptDocument(remote_.Shared(), remote_.Get("Item", {index}));
    }
    ::host::DocumentPtr Open(const std::string& fullFileName, bool openVisible) override {
        return AdaptDocument(remote_.Shared(), remote_.Call("Open", {fullFileName, openVisible}));
    }
    ::host::DocumentPtr Add(std::int32_t documentType, const std::string& templateFileName,
                            bool createVisible) override {
        return AdaptDocument(remote_.Shared(),
                             remote_.Call("Add", {documentType, templateFileName, createVisible}));
    }
};

class AdaptedDocument : public ::host::Document, public Adapted {
public:
    AdaptedDocument(com::ComPtr<IDispatch> o, Context c) : Adapted("Document", std::move(o), std::move(c)) {}
    std::int32_t Type() const override { return remote_.Long("Type"); }
    std::string FullFileName() const override { return remote_.Text("FullFileName"); }
    std::string DisplayName() const override { return remote_.Text("DisplayName"); }
    void SetDisplayName(const std::string& name) override { remote_.Put("DisplayName", name); }
    std::int32_t DocumentType() const override { return remote_.Long("DocumentType"); }
    void SaveAs(const std::string& fullFileName, bool saveCopyAs) override {
        remote_.Call("SaveAs", {fullFileName, saveCopyAs});
    }
    void Save() override { remote_.Call("Save"); }
    void Close(bool skipSave) override { remote_.Call("Close", {skipSave}); }
    bool Dirty() const override { return remote_.Flag("Dirty"); }
    void SetDirty(bool dirty) override { remote_.Put("Dirty", dirty); }
    bool IsModifiable() const override { return remote_.Flag("IsModifiable"); }
    bool ReservedForWrite() const override { return remote_.Flag("ReservedForWrite"); }
    std::string ReservedForWriteName() const override { return remote_.Text("ReservedForWriteName"); }
    std::int32_t DisabledCommandTypes() const override { return remote_.Long("DisabledCommandTypes"); }
    void SetDisabledCommandTypes(std::int32_t types) override { remote_.Put("DisabledCommandTypes", types); }
    std::int32_t SoftwareVersionSaved() const override {
        return Remote("SoftwareVersion", DispatchOf(remote_.Get("SoftwareVersionSaved")), remote_.Shared())
            .Long("Major");
    }
    bool NeedsMigrating() const override { return remote_.Flag("NeedsMigrating"); }
    std::shared_ptr<::host::PropertySets> PropertySets() override {
        return AdaptPropertySets(remote_.Shared(), remote_.Get("PropertySets"));
    }
    std::shared_ptr<::host::UnitsOfMeasure> UnitsOfMeasure() override {
        return AdaptUnitsOfMeasure(remote_.Shared(), remote_.Get("UnitsOfMeasure"));
    }
    std::shared_ptr<::host::ComponentDefinition> ComponentDefinition() override {
        return AdaptComponentDefinition(remote_.Shared(), remote_.Get("ComponentDefinition"));
    }
    std::vector<::host::DocumentPtr> ReferencedDocuments() override {
        DocumentsEnumerator documents(DispatchOf(remote_.Get("ReferencedDocuments")), remote_.Shared());
        std::vector<::host::DocumentPtr> list;
        for (std::int32_t i = 1, n = documents.Count(); i <= n; ++i) list.push_back(documents.Item(i));
        return list;
    }
    std::string Thumbnail() const override { return remote_.Text("Thumbnail"); }
    std::shared_ptr<::host::Materials> Materials() override {
        return AdaptMaterials(remote_.Shared(), remote_.Get("Materials"));
    }
    std::shared_ptr<::host::RenderStyles> RenderStyles() override {
        return AdaptRenderStyles(remote_.Shared(), remote_.Get("RenderStyles"));
    }
    std::shared_ptr<::host::Material> ActiveMaterial() override {
        return AdaptMaterial(remote_.Shared(), remote_.Get("ActiveMaterial"));
    }
    std::shared_ptr<::host::RenderStyle> ActiveRenderStyle() override {
        return AdaptRenderStyle(remote_.Shared(), remote_.Get("ActiveRenderStyle"));
    }
    void SetActiveRenderStyle(const std::shared_ptr<::host::RenderStyle>& style) override {
        remote_.PutRef("ActiveRenderStyle", HostObjectOf(style));
    }
    std::shared_ptr<::host::DrawingSettings> DrawingSettings() override {
        return AdaptDrawingSettings(remote_.Shared(), remote_.Get("DrawingSettings"));
    }
    std::shared_ptr<::host::Collection<::host::TitleBlockDefinition>> TitleBlockDefinitions() override {
        return Make<TitleBlockDefinitionList>(remote_.Shared(), remote_.Get("TitleBlockDefinitions"));
    }
};

class AdaptedDrawingSettings : public ::host::DrawingSettings, public Adapted {
public:
    AdaptedDrawingSettings(com::ComPtr<IDispatch> o, Context c)
        : Adapted("DrawingSettings", std::move(o), std::move(c)) {}
    bool DeferUpdates() const override { return remote_.Flag("DeferUpdates"); }
    void SetDeferUpdates(bool defer) override { remote_.Put("DeferUpdates", defer); }
};

class AdaptedTitleBlockDefinition : public ::host::TitleBlockDefinition, public Adapted {
public:
    AdaptedTitleBlockDefinition(com::ComPtr<IDispatch> o, Context c)
        : Adapted("TitleBlockDefinition", std::move(o), std::move(c)) {}
    std::string Name() const override { return remote_.Text("Name"); }
    std::shared_ptr<::host::DrawingSketch> Sketch() override {
        return AdaptDrawingSketch(remote_.Shared(), remote_.Get("Sketch"));
    }
};

class AdaptedDrawingSketch : public ::host::DrawingSketch, public Adapted {
public:
    AdaptedDrawingSketch(com::ComPtr<IDispatch> o, Context c)
        : Adapted("DrawingSketch", std::move(o), std::move(c)) {}
    std::shared_ptr<::host::Collection<::host::TextBox>> TextBoxes() override {
        return Make<TextBoxList>(remote_.Shared(), remote_.Get("TextBoxes"));
    }
};

class AdaptedTextBox : public ::host::TextBox, public Adapted {
public:
    AdaptedTextBox(com::ComPtr<IDispatch> o, Context c) : Adapted("TextBox", std::move(o), std::move(c)) {}
    std::string FormattedText() const override { return remote_.Text("FormattedText"); }
};

}  // namespace

TW_DEFINE_ADAPT(Documents)
TW_DEFINE_ADAPT(Document)
TW_DEFINE_ADAPT(DrawingSettings)
TW_DEFINE_ADAPT(TitleBlockDefinition)
TW_DEFINE_ADAPT(DrawingSketch)
TW_DEFINE_ADAPT(TextBox)

}  // namespace win::adapter
