#include "win/adapter/HostMembers.h"

#include <stdexcept>

namespace win::adapter {

namespace {
// Kinds as the adapter names them; members as the host does. Where the host fixes a member
// by number the DISPID follows its name. "to confirm" marks a name chosen here that the
// host's type library must confirm before the first run in the real host.
constexpr HostMember kMembers[] = {
    {"ApplicationAddInSite", "Application (0x03001401)", "get", "", "Application"},
    {"ApplicationAddInSite", "CreateButtonDefinition", "call",
     "InternalName, Classification, DisplayName, Description, ToolTipText, [StandardIcon]",
     "ButtonDefinitionHandler (name to confirm)"},
    {"Application", "ActiveDocument", "get", "", "Document or Nothing"},
    {"Application", "Documents", "get", "", "Documents"},
    {"Application", "ActiveEditObject", "get", "", "object (its Type tells which)"},
    {"Application", "ActiveView", "get", "", "View"},
    {"Application", "CommandManager", "get", "", "CommandManager"},
    {"Application", "UserInterfaceManager", "get", "", "UserInterfaceManager"},
    {"Application", "TransactionManager", "get", "", "TransactionManager"},
    {"Application", "FileManager", "get", "", "FileManager"},
    {"Application", "FileLocations", "get", "", "FileLocations"},
    {"Application", "FileOptions", "get", "", "FileOptions"},
    {"Application", "TransientGeometry", "get", "", "TransientGeometry"},
    {"Application", "StatusBarText", "get/put", "", "String"},
    {"Application", "SilentOperation", "get/put", "", "Boolean"},
    {"Application", "MainFrameHWND", "get", "", "Long"},
    {"Application", "Caption", "get", "", "String"},
    {"Application", "SoftwareVersion", "get", "", "SoftwareVersion"},
    {"Application", "Type", "get", "", "ObjectTypeEnum"},
    {"SoftwareVersion", "Major", "get", "", "Long"},
    {"View", "HWND", "get", "", "Long"},
    {"View", "Camera", "get", "", "Camera"},
    {"Camera", "ViewOrientationType", "get/put", "", "ViewOrientationTypeEnum"},
    {"Camera", "Apply", "call", "", ""},
    {"TransactionManager", "StartTransaction", "call", "Document, DisplayName", "Transaction"},
    {"Transaction", "End", "call", "", ""},
    {"Transaction", "Abort", "call", "", ""},
    {"FileManager", "CopyFile", "call", "Source, Destination, Option (32: kOverwriteExistingFile)", ""},
    {"FileLocations", "Workspace", "get", "", "String"},
    {"FileLocations", "FindDrawing", "call", "ModelFileName, Subject (name to confirm)", "String"},
    {"FileOptions", "TemplatesPath", "get", "", "String, ending in \\"},
    {"TransientGeometry", "CreateMatrix", "call", "", "Matrix"},
    {"Matrix", "Cell", "get/put", "Row, Column", "Double"},
    {"Documents", "Count", "get", "", "Long"},
    {"Documents", "Item", "get", "Index", "Document"},
    {"Documents", "Open", "call", "FullDocumentName, OpenVisible", "Document"},
    {"Documents", "Add", "call", "DocumentType, TemplateFileName, CreateVisible", "Document"},
    {"Document", "Type", "get", "", "ObjectTypeEnum"},
    {"Document", "FullFileName", "get", "", "String"},
    {"Document", "DisplayName", "get/put", "", "String"},
    {"Document", "DocumentType", "get", "", "DocumentTypeEnum"},
    {"Document", "SaveAs", "call", "FileName, SaveCopyAs", ""},
    {"Document", "Save", "call", "", ""},
    {"Document", "Close", "call", "SkipSave", ""},
    {"Document", "Dirty", "get/put", "", "Boolean"},
    {"Document", "IsModifiable", "get", "", "Boolean"},
    {"Document", "ReservedForWrite", "get", "", "Boolean"},
    {"Document", "ReservedForWriteName", "get", "", "String"},
    {"Document", "DisabledCommandTypes", "get/put", "", "CommandTypesEnum"},
    {"Document", "SoftwareVersionSaved", "get", "", "SoftwareVersion"},
    {"Document", "NeedsMigrating", "get", "", "Boolean"},
    {"Document", "PropertySets", "get", "", "PropertySets"},
    {"Document", "UnitsOfMeasure", "get", "", "UnitsOfMeasure"},
    {"Document", "ComponentDefinition", "get", "", "ComponentDefinition"},
    {"Document", "ReferencedDocuments", "get", "", "DocumentsEnumerator"},
    {"Document", "Thumbnail", "get", "", "the saved view's name (the host: a picture; to confirm)"},
    {"Document", "Materials", "get", "", "Materials"},
    {"Document", "RenderStyles", "get", "", "RenderStyles"},
    {"Document", "ActiveMaterial", "get", "", "Material"},
    {"Document", "ActiveRenderStyle", "get/putref", "", "RenderStyle"},
    {"Document", "DrawingSettings", "get", "", "DrawingSettings"},
    {"Document", "TitleBlockDefinitions", "get", "", "TitleBlockDefinitions"},
    {"DocumentsEnumerator", "Count", "get", "", "Long"},
    {"DocumentsEnumerator", "Item", "get", "Index", "Document"},
    {"DrawingSettings", "DeferUpdates", "get/put", "", "Boolean"},
    {"TitleBlockDefinitions", "Count", "get", "", "Long"},
    {"TitleBlockDefinitions", "Item", "get", "Index", "TitleBlockDefinition"},
    {"TitleBlockDefinition", "Name", "get", "", "String"},
    {"TitleBlockDefinition", "Sketch", "get", "", "DrawingSketch"},
    {"DrawingSketch", "TextBoxes", "get", "", "TextBoxes"},
    {"TextBoxes", "Count", "get", "", "Long"},
    {"TextBoxes", "Item", "get", "Index", "TextBox"},
    {"TextBox", "FormattedText", "get", "", "String"},
    {"PropertySets", "Count", "get", "", "Long"},
    {"PropertySets", "Item", "get", "Index or Name (name or format identifier)", "PropertySet"},
    {"PropertySets", "Add", "call", "Name, InternalName", "PropertySet"},
    {"PropertySets", "PropertySetExists", "call", "Name", "Boolean"},
    {"PropertySet", "Name", "get", "", "String"},
    {"PropertySet", "DisplayName", "get", "", "String"},
    {"PropertySet", "InternalName", "get", "", "String"},
    {"PropertySet", "Count", "get", "", "Long"},
    {"PropertySet", "Item", "get", "Index or Name", "Property"},
    {"PropertySet", "ItemByPropId", "get", "PropId", "Property"},
    {"PropertySet", "Add", "call", "PropValue, Name, [PropId]", "Property"},
    {"PropertySet", "Delete", "call", "", ""},
    {"Property", "Name", "get", "", "String"},
    {"Property", "DisplayName", "get", "", "String"},
    {"Property", "PropId", "get", "", "Long"},
    {"Property", "Value", "get/put", "", "Variant"},
    {"Property", "Delete", "call", "", ""},
    {"AttributeSets", "NameIsUsed", "get", "AttributeSetName", "Boolean"},
    {"AttributeSets", "Item", "get", "AttributeSetName", "AttributeSet"},
    {"AttributeSets", "Add", "call", "AttributeSetName", "AttributeSet"},
    {"AttributeSet", "Name", "get", "", "String"},
    {"AttributeSet", "NameIsUsed", "get", "AttributeName", "Boolean"},
    {"AttributeSet", "Item", "get", "AttributeName", "Attribute"},
    {"AttributeSet", "Add", "call", "AttributeName, ValueType, Value", "Attribute"},
    {"Attribute", "Name", "get", "", "String"},
    {"Attribute", "Value", "get/put", "", "Variant"},
    {"ComponentOccurrences", "Count", "get", "", "Long"},
    {"ComponentOccurrences", "Item", "get", "Index", "ComponentOccurrence"},
    {"ComponentOccurrences", "Add", "call", "FullDocumentName, Position (Matrix)", "ComponentOccurrence"},
    {"ComponentOccurrence", "Type", "get", "", "ObjectTypeEnum"},
    {"ComponentOccurrence", "Name", "get/put", "", "String"},
    {"ComponentOccurrence", "Visible", "get/put", "", "Boolean"},
    {"ComponentOccurrence", "Grounded", "get/put", "", "Boolean"},
    {"ComponentOccurrence", "Transformation", "get", "", "Matrix"},
    {"ComponentOccurrence", "Definition", "get", "", "ComponentDefinition"},
    {"ComponentOccurrence", "SubOccurrences", "get", "", "ComponentOccurrences"},
    {"ComponentOccurrence", "Delete", "call", "", ""},
    {"ComponentOccurrence", "Replace", "call", "FileName, ReplaceAll", ""},
    {"ComponentDefinition", "Type", "get", "", "ObjectTypeEnum"},
    {"ComponentDefinition", "Document", "get", "", "Document"},
    {"ComponentDefinition", "Occurrences", "get", "", "ComponentOccurrences"},
    {"ComponentDefinition", "MassProperties", "get", "", "MassProperties"},
    {"ComponentDefinition", "Material", "get/putref", "", "Material"},
    {"ComponentDefinition", "AttributeSets", "get", "", "AttributeSets"},
    {"ComponentDefinition", "IsiPartMember", "get", "", "Boolean"},
    {"ComponentDefinition", "BreakLinkToFactory", "call", "", "(to confirm: the host has it on iPartMember)"},
    {"MassProperties", "Mass", "get", "", "Double (kg)"},
    {"MassProperties", "Volume", "get", "", "Double (cm^3)"},
    {"Materials", "Count", "get", "", "Long"},
    {"Materials", "Item", "get", "Index or Name", "Material"},
    {"Materials", "Add", "call", "Name, Density (to confirm)", "Material"},
    {"Material", "Name", "get", "", "String"},
    {"Material", "InUse", "get", "", "Boolean"},
    {"Material", "StyleLocation", "get", "", "StyleLocationEnum"},
    {"Material", "Delete", "call", "", ""},
    {"Material", "Density", "get/put", "", "Double (kg/cm^3)"},
    {"Material", "LinearExpansion", "get/put", "", "Double"},
    {"Material", "PoissonsRatio", "get/put", "", "Double"},
    {"Material", "SpecificHeat", "get/put", "", "Double"},
    {"Material", "ThermalConductivity", "get/put", "", "Double"},
    {"Material", "UltimateTensileStrength", "get/put", "", "Double"},
    {"Material", "YieldStrength", "get/put", "", "Double"},
    {"Material", "YoungsModulus", "get/put", "", "Double"},
    {"Material", "RenderStyle", "get/putref", "", "RenderStyle"},
    {"RenderStyles", "Count", "get", "", "Long"},
    {"RenderStyles", "Item", "get", "Index or Name", "RenderStyle"},
    {"RenderStyles", "Add", "call", "Name", "RenderStyle"},
    {"RenderStyle", "InUse", "get", "", "Boolean"},
    {"RenderStyle", "StyleLocation", "get", "", "StyleLocationEnum"},
    {"RenderStyle", "Delete", "call", "", ""},
    {"RenderStyle", "Name", "get (0x3006C10)", "", "String"},
    {"RenderStyle", "Opacity", "get/put (0x3006C09)", "", "Double"},
    {"RenderStyle", "Shininess", "get/put (0x3006C0A)", "", "Double"},
    {"RenderStyle", "TextureFilename", "get/put (0x3006C0D)", "", "String"},
    {"RenderStyle", "TextureRotation", "get/put (0x3006C0E)", "", "Double"},
    {"RenderStyle", "TextureScale", "get/put (0x3006C0F)", "", "Double"},
    {"RenderStyle", "GetAmbientColor", "call (0x3006C01)", "[out] Red, Green, Blue (Byte)", ""},
    {"RenderStyle", "SetAmbientColor", "call (0x3006C02)", "Red, Green, Blue", ""},
    {"RenderStyle", "GetDiffuseColor", "call (0x3006C03)", "[out] Red, Green, Blue (Byte)", ""},
    {"RenderStyle", "SetDiffuseColor", "call (0x3006C04)", "Red, Green, Blue", ""},
    {"RenderStyle", "GetSpecularColor", "call (0x3006C05)", "[out] Red, Green, Blue (Byte)", ""},
    {"RenderStyle", "SetSpecularColor", "call (0x3006C06)", "Red, Green, Blue", ""},
    {"RenderStyle", "GetEmissiveColor", "call (0x3006C07)", "[out] Red, Green, Blue (Byte)", ""},
    {"RenderStyle", "SetEmissiveColor", "call (0x3006C08)", "Red, Green, Blue", ""},
    {"UnitsOfMeasure", "GetStringFromValue", "call", "Value, UnitsSpecifier (UnitsTypeEnum or text)",
     "String"},
    {"UnitsOfMeasure", "GetValueFromExpression", "call", "Expression, UnitsSpecifier", "Double"},
    {"UnitsOfMeasure", "GetStringFromType", "call", "UnitsType", "String"},
    {"UnitsOfMeasure", "MassUnits", "get/put", "", "UnitsTypeEnum"},
    {"UnitsOfMeasure", "LengthUnits", "get", "", "UnitsTypeEnum"},
    {"ButtonDefinitionHandler", "ControlDefinition", "get", "", "ButtonDefinition"},
    {"ButtonDefinitionHandler", "OnClick (0x0300A680)", "event",
     "sink IID from the handler's connection point", ""},
    {"ButtonDefinition", "Type", "get", "", "ObjectTypeEnum"},
    {"ButtonDefinition", "InternalName", "get", "", "String"},
    {"ButtonDefinition", "DisplayName", "get", "", "String"},
    {"ButtonDefinition", "StandardIcon", "get", "", "picture or Nothing"},
    {"ButtonDefinition", "OnExecute (0x03009C81)", "event", "Context; sink {9B5D2EC6-...}", ""},
    {"UserInterfaceManager", "CommandBars", "get", "", "CommandBars"},
    {"CommandBars", "Item", "get", "Name", "CommandBar"},
    {"CommandBars", "Add", "call", "Name", "CommandBar"},
    {"CommandBar", "Type", "get", "", "ObjectTypeEnum"},
    {"CommandBar", "Name", "get", "", "String"},
    {"CommandBar", "Controls", "get", "", "CommandBarControls"},
    {"CommandBarControls", "Count", "get", "", "Long"},
    {"CommandBarControls", "Item", "get", "Index", "CommandBarControl"},
    {"CommandBarControls", "AddButton", "call", "ButtonDefinition", "CommandBarControl"},
    {"CommandBarControl", "ControlType", "get", "", "BarControlTypeEnum (name to confirm)"},
    {"CommandBarControl", "ControlDefinition", "get", "", "ButtonDefinition"},
    {"CommandManager", "CreateInteractionEvents", "call", "", "InteractionEvents"},
    {"CommandManager", "UserInputEvents", "get", "", "UserInputEvents"},
    {"CommandManager", "ControlDefinitions", "get", "", "ControlDefinitions (the later factory's)"},
    {"ControlDefinitions", "AddButtonDefinition", "call",
     "DisplayName, InternalName, Classification, ClientId, DescriptionText, ToolTipText, [StandardIcon]",
     "ButtonDefinition"},
    {"InteractionEvents", "SelectEvents", "get", "", "SelectEvents"},
    {"InteractionEvents", "SelectionActive", "put", "", "Boolean (name to confirm)"},
    {"InteractionEvents", "Start", "call", "", ""},
    {"InteractionEvents", "Stop", "call", "", ""},
    {"InteractionEvents", "OnTerminate (0x03005482)", "event", "sink {F1C0EFF2-...}", ""},
    {"SelectEvents", "AddSelectionFilter", "call", "Filter", ""},
    {"SelectEvents", "SelectedEntities", "get", "", "ObjectsEnumerator"},
    {"SelectEvents", "ResetPreSelection", "call", "", "(name to confirm)"},
    {"SelectEvents", "OnSelect (0x03005584)", "event",
     "JustSelectedEntities, SelectionDevice, ModelPosition, ViewPosition, View; sink {2E19A8EE-...}", ""},
    {"SelectEvents", "OnPreSelect (0x03005581)", "event",
     "PreSelectEntity, [out] DoHighlight, MorePreSelectEntities, SelectionDevice, ModelPosition, "
     "ViewPosition, "
     "View",
     ""},
    {"UserInputEvents", "OnContextMenuOld (0x03002204)", "event",
     "SelectionDevice, AdditionalInfo, CommandBar", ""},
    {"UserInputEvents", "OnContextMenu (0x03002206)", "event",
     "SelectionDevice, AdditionalInfo, CommandBar; sink {711F30CD-...}", ""},
    {"ObjectsEnumerator", "Count", "get", "", "Long"},
    {"ObjectsEnumerator", "Item", "get", "Index", "object"},
    {"Object", "Type", "get", "", "ObjectTypeEnum"},
};

// "Application (0x03001401)" names the member Application.
std::string_view NameOf(std::string_view listed) {
    return listed.substr(0, listed.find(' '));
}
}  // namespace

std::span<const HostMember> HostMembers() {
    return kMembers;
}

void RequireListed(std::string_view object, std::string_view member) {
    for (const HostMember& m : kMembers)
        if (object == m.object && member == NameOf(m.member)) return;
    throw std::logic_error("the adapter calls " + std::string(object) + "." + std::string(member) +
                           ", which docs/host-calls.md does not list");
}

std::string HostMembersMarkdown() {
    std::string text =
        "# Host calls\n\n"
        "Every member of the host's automation interface that the add-in calls, through the adapter\n"
        "(`win/adapter/`), by late binding. Made from the adapter's own list\n"
        "(`win/adapter/HostMembers.cpp`) by the test `adapter_tests`, which fails when this page and\n"
        "the list differ; the adapter refuses to call a member the list does not name. The first\n"
        "run in the real host checks these names, argument orders and DISPIDs against its type\n"
        "library; \"to confirm\" marks the names that no source at hand settles.\n\n"
        "Buttons: the adapter calls the site's `CreateButtonDefinition` (releases 7 to 9), which\n"
        "returns a ButtonDefinitionHandler raising `OnClick`. Only where the host answers 438\n"
        "(no such member) does it use the later factory, `ControlDefinitions.AddButtonDefinition`,\n"
        "whose ButtonDefinition raises `OnExecute`. The stand-in's face is of releases 7 to 9: the\n"
        "transcript tests run the first factory; a unit test runs the second against a later site.\n";
    std::string object;
    for (const HostMember& m : kMembers) {
        if (object != m.object) {
            object = m.object;
            text += "\n## " + object + "\n\n| member | access | arguments | returns |\n|---|---|---|---|\n";
        }
        text += "| " + std::string(m.member) + " | " + m.access + " | " + m.arguments + " | " + m.returns +
                " |\n";
    }
    return text;
}

}  // namespace win::adapter
