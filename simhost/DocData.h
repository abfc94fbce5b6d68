#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "host/Codes.h"
#include "host/Object.h"
#include "host/Styles.h"
#include "support/Variant.h"

namespace simhost {

class SimDocument;
using SimDocumentPtr = std::shared_ptr<SimDocument>;

// The host release a document is saved by when its file does not say.
inline constexpr std::int32_t kDefaultSoftwareVersion = 9;

enum class DocKind { Part, Assembly, Drawing, Presentation };

// A reference to another file: the name as read from the file, and the document it was
// resolved to once loaded. The document wins: a reference follows its document when the
// document is saved under another name.
struct FileRef {
    std::string file;
    SimDocumentPtr doc;
    std::string Name() const;
};

struct StoredProperty {
    std::string name;
    std::int32_t id = 0;
    support::Variant value;
};

// Standard sets store only the properties that have a value; user-defined and custom
// sets store every property they hold.
struct StoredSet {
    std::string name;
    std::string formatId;
    std::vector<StoredProperty> properties;
};

struct StoredAttribute {
    std::string name;
    support::Variant value;
};

struct StoredAttributeSet {
    std::string name;
    std::vector<StoredAttribute> attributes;
};

// A material's physical values, by the name the file gives each; all but the density
// are kept as given, in the host's internal units.
struct MaterialValues {
    double linearExpansion = 0;
    double poissonsRatio = 0;
    double specificHeat = 0;
    double thermalConductivity = 0;
    double ultimateTensileStrength = 0;
    double yieldStrength = 0;
    double youngsModulus = 0;
};

struct MaterialData {
    std::string name;
    double density = 0;  // g/cm^3 in the file; the host's Density gives kg/cm^3
    std::string renderStyle;
    std::int32_t location = host::kLocalStyleLocation;
    MaterialValues values;
};

struct RenderStyleData {
    std::string name;
    std::int32_t location = host::kLocalStyleLocation;
    double opacity = 0;
    double shininess = 0;
    std::string texture;
    double textureScale = 0;
    double textureRotation = 0;
    host::Rgb ambient, diffuse, specular, emissive;
};

// A title block definition: the formatted text of each text box of its sketch.
struct TitleBlockData {
    std::string name;
    std::vector<std::string> textBoxes;
};

struct OccurrenceData {
    std::int64_t uid = 0;  // stable within the document for the session; not stored
    std::string name;
    FileRef ref;
    bool visible = true;
    bool grounded = false;
    host::Matrix transform;
};

// Everything a document file holds. Plain values, so a transaction can keep a copy.
struct DocData {
    DocKind kind = DocKind::Part;
    std::int32_t savedBy = kDefaultSoftwareVersion;
    std::int32_t thumbnail = 0;  // view orientation the file was saved in; 0 none
    std::string reservedBy;
    bool modifiable = true;
    std::string displayName;  // "" shows the file name
    std::int32_t disabledCommandTypes = 0;
    std::vector<StoredSet> propertySets;  // the four standard sets first, then custom sets

    // Parts and assemblies.
    std::vector<StoredAttributeSet> attributeSets;
    std::int32_t massUnits = host::kKilogramMassUnits;

    // Parts.
    std::string material;
    double volume = 0;        // cm^3
    std::string renderStyle;  // a colour override; "" shows the material's own
    std::vector<MaterialData> materials;
    std::vector<RenderStyleData> renderStyles;
    std::string iPartFactory;  // the factory's full file name for an iPart member

    // Assemblies.
    std::vector<OccurrenceData> occurrences;
    std::int64_t nextUid = 1;

    // Drawings and presentations: the models they show.
    std::vector<FileRef> models;

    // Drawings.
    bool deferUpdates = false;
    std::vector<TitleBlockData> titleBlocks;
};

// A document holding the four standard sets and nothing else.
DocData EmptyDocData(DocKind kind);

const char* KindName(DocKind kind);  // "part", "assembly"...
std::int32_t DocumentTypeOf(DocKind kind);
const char* ExtensionOf(DocKind kind);  // ".ipt"...

}  // namespace simhost
