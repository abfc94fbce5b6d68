#pragma once
#include <cstdint>

// The host's own numeric codes, named. Values are the host's and must not change.
namespace host {

// DocumentTypeEnum
inline constexpr std::int32_t kUnknownDocumentObject = 12289;
inline constexpr std::int32_t kPartDocumentObject = 12290;
inline constexpr std::int32_t kAssemblyDocumentObject = 12291;
inline constexpr std::int32_t kDrawingDocumentObject = 12292;
inline constexpr std::int32_t kPresentationDocumentObject = 12293;

// ObjectTypeEnum: what an object says it is through Type. Only an assembly document
// answers 50332160; each other kind of document answers a value of its own.
inline constexpr std::int32_t kPartDocumentObjectType = 50331904;
inline constexpr std::int32_t kAssemblyDocumentObjectType = 50332160;
inline constexpr std::int32_t kDrawingDocumentObjectType = 50332416;
inline constexpr std::int32_t kPresentationDocumentObjectType = 50332672;
inline constexpr std::int32_t kComponentOccurrenceObject = 67113776;
inline constexpr std::int32_t kComponentOccurrenceProxyObject = 67113808;
inline constexpr std::int32_t kPlanarSketchObject = 83886592;
inline constexpr std::int32_t kPartComponentDefinitionObject = 83886080;
inline constexpr std::int32_t kAssemblyComponentDefinitionObject = 100675072;

// SelectionFilterEnum
inline constexpr std::int32_t kAssemblyOccurrenceFilter = 16640;
inline constexpr std::int32_t kAssemblyLeafOccurrenceFilter = 16643;

// BarControlTypeEnum
inline constexpr std::int32_t kBarControlButton = 22785;

// CommandTypesEnum (classification of a button, and document locks)
inline constexpr std::int32_t kShapeEditCmdType = 1;
inline constexpr std::int32_t kQueryOnlyCmdType = 2;
inline constexpr std::int32_t kFileOperationsCmdType = 4;
inline constexpr std::int32_t kFilePropertyEditCmdType = 8;

// UnitsTypeEnum
inline constexpr std::int32_t kDefaultDisplayLengthUnits = 11266;
inline constexpr std::int32_t kDefaultDisplayMassUnits = 11281;
inline constexpr std::int32_t kKilogramMassUnits = 11283;
inline constexpr std::int32_t kGramMassUnits = 11284;
inline constexpr std::int32_t kSlugMassUnits = 11285;
inline constexpr std::int32_t kLbMassMassUnits = 11286;

// ValueTypeEnum
inline constexpr std::int32_t kStringType = 14595;

// ViewOrientationTypeEnum
inline constexpr std::int32_t kDefaultViewOrientation = 10753;
inline constexpr std::int32_t kTopViewOrientation = 10754;
inline constexpr std::int32_t kRightViewOrientation = 10755;
inline constexpr std::int32_t kBackViewOrientation = 10756;
inline constexpr std::int32_t kBottomViewOrientation = 10757;
inline constexpr std::int32_t kLeftViewOrientation = 10758;
inline constexpr std::int32_t kIsoTopRightViewOrientation = 10759;
inline constexpr std::int32_t kIsoTopLeftViewOrientation = 10760;
inline constexpr std::int32_t kIsoBottomRightViewOrientation = 10761;
inline constexpr std::int32_t kIsoBottomLeftViewOrientation = 10762;
inline constexpr std::int32_t kFrontViewOrientation = 10764;

// StyleLocationEnum
inline constexpr std::int32_t kBothStyleLocation = 51201;
inline constexpr std::int32_t kLocalStyleLocation = 51202;
inline constexpr std::int32_t kLibraryStyleLocation = 51203;

// FileManager.CopyFile options
inline constexpr std::int32_t kOverwriteExistingFile = 32;

// Property set format identifiers.
inline constexpr const char* kSummaryInformationSet = "{F29F85E0-4FF9-1068-AB91-08002B27B3D9}";
inline constexpr const char* kDocumentSummarySet = "{D5CDD502-2E9C-101B-9397-08002B2CF9AE}";
inline constexpr const char* kDesignTrackingSet = "{32853F0F-3444-11D1-9E93-0060B03C1CA6}";
inline constexpr const char* kUserDefinedSet = "{D5CDD505-2E9C-101B-9397-08002B2CF9AE}";

}  // namespace host
