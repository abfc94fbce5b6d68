#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "host/Object.h"

namespace host {

class PropertySets;
class ComponentDefinition;
class UnitsOfMeasure;
class Material;
class RenderStyle;

class Document;
using DocumentPtr = std::shared_ptr<Document>;

template <class T>
class Collection {
public:
    virtual ~Collection() = default;
    virtual std::int32_t Count() const = 0;
    virtual std::shared_ptr<T> Item(std::int32_t index) = 0;  // from 1
};

class Materials : public Collection<Material> {
public:
    virtual std::shared_ptr<Material> Item(const std::string& name) = 0;
    using Collection<Material>::Item;
    // A new material of the document; the host refuses a name that is taken.
    virtual std::shared_ptr<Material> Add(const std::string& name, double density) = 0;
};

class RenderStyles : public Collection<RenderStyle> {
public:
    virtual std::shared_ptr<RenderStyle> Item(const std::string& name) = 0;
    using Collection<RenderStyle>::Item;
    virtual std::shared_ptr<RenderStyle> Add(const std::string& name) = 0;
};

// A drawing's text box: its formatted text carries a field for each property it shows,
// such as <Property FormatID='{...}' PropertyID='5'>TITLE</Property>.
class TextBox {
public:
    virtual ~TextBox() = default;
    virtual std::string FormattedText() const = 0;
};

class DrawingSketch {
public:
    virtual ~DrawingSketch() = default;
    virtual std::shared_ptr<Collection<TextBox>> TextBoxes() = 0;
};

class TitleBlockDefinition {
public:
    virtual ~TitleBlockDefinition() = default;
    virtual std::string Name() const = 0;
    virtual std::shared_ptr<DrawingSketch> Sketch() = 0;
};

class DrawingSettings {
public:
    virtual ~DrawingSettings() = default;
    virtual bool DeferUpdates() const = 0;
    virtual void SetDeferUpdates(bool defer) = 0;
};

class Document : public Object {
public:
    virtual std::string FullFileName() const = 0;  // "" until saved
    virtual std::string DisplayName() const = 0;
    virtual void SetDisplayName(const std::string& name) = 0;  // "" restores the default
    virtual std::int32_t DocumentType() const = 0;

    virtual void SaveAs(const std::string& fullFileName, bool saveCopyAs) = 0;
    virtual void Save() = 0;
    virtual void Close(bool skipSave = false) = 0;

    virtual bool Dirty() const = 0;
    virtual void SetDirty(bool dirty) = 0;
    virtual bool IsModifiable() const = 0;
    virtual bool ReservedForWrite() const = 0;
    virtual std::string ReservedForWriteName() const = 0;
    virtual std::int32_t DisabledCommandTypes() const = 0;
    virtual void SetDisabledCommandTypes(std::int32_t types) = 0;
    virtual std::int32_t SoftwareVersionSaved() const = 0;  // major release that saved it
    virtual bool NeedsMigrating() const = 0;                // saved by an older release

    virtual std::shared_ptr<host::PropertySets> PropertySets() = 0;
    virtual std::shared_ptr<host::UnitsOfMeasure> UnitsOfMeasure() = 0;
    // Parts and assemblies; a drawing has none (the call fails).
    virtual std::shared_ptr<host::ComponentDefinition> ComponentDefinition() = 0;
    // Documents this one references directly, each once, in reference order.
    virtual std::vector<DocumentPtr> ReferencedDocuments() = 0;
    // The preview picture: which view the file was last saved in.
    virtual std::string Thumbnail() const = 0;

    // Part documents only; the call fails on other documents.
    virtual std::shared_ptr<host::Materials> Materials() = 0;
    virtual std::shared_ptr<host::RenderStyles> RenderStyles() = 0;
    virtual std::shared_ptr<Material> ActiveMaterial() = 0;
    virtual std::shared_ptr<RenderStyle> ActiveRenderStyle() = 0;
    virtual void SetActiveRenderStyle(const std::shared_ptr<RenderStyle>& style) = 0;

    // Drawing documents only; the call fails on other documents.
    virtual std::shared_ptr<host::DrawingSettings> DrawingSettings() = 0;
    virtual std::shared_ptr<Collection<TitleBlockDefinition>> TitleBlockDefinitions() = 0;
};

class Documents {
public:
    virtual ~Documents() = default;
    virtual std::int32_t Count() const = 0;
    virtual DocumentPtr Item(std::int32_t index) = 0;  // from 1
    // Opens (or returns the already open) document; visible makes it the active one.
    virtual DocumentPtr Open(const std::string& fullFileName, bool openVisible = true) = 0;
    virtual DocumentPtr Add(std::int32_t documentType, const std::string& templateFileName,
                            bool createVisible = true) = 0;
};

}  // namespace host
