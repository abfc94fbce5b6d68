#include "copy/engine/modBuildAssembly.h"

#include "host/Application.h"
#include "host/Codes.h"
#include "host/Component.h"
#include "host/Document.h"
#include "support/Error.h"

namespace copy::modBuildAssembly {

namespace {
constexpr const char* kTemplateName = "Standard.iam";
}  // namespace

void Collect(host::ComponentOccurrences& occurrences, std::vector<clsFileTrans>& records) {
    for (std::int32_t i = 1; i <= occurrences.Count(); ++i) {
        auto occurrence = occurrences.Item(i);
        host::DocumentPtr document;
        std::int32_t documentType = 0;
        try {
            document = occurrence->Definition()->Document();
            documentType = document->DocumentType();
        } catch (const support::Error&) {
            continue;
        }
        if (documentType == host::kPartDocumentObject) {
            if (occurrence->Visible())
                records.push_back({document->FullFileName(), occurrence->Transformation()});
        } else {
            Collect(*occurrence->SubOccurrences(), records);
        }
    }
}

std::shared_ptr<host::Document> Build(host::Application& app, host::ComponentOccurrences& occurrences) {
    // Each build starts from an empty collection, so a build that failed half-way
    // leaves nothing behind for the next one.
    std::vector<clsFileTrans> records;
    Collect(occurrences, records);

    std::string templateFile = app.FileLocations()->TemplatesPath() + kTemplateName;
    app.Documents()->Add(host::kAssemblyDocumentObject, templateFile, true);
    auto assembly = app.ActiveDocument();
    support::Required(assembly, "new assembly");
    auto placed = assembly->ComponentDefinition()->Occurrences();
    for (const auto& record : records)
        placed->Add(record.FullFileName, record.Transformation)->SetGrounded(true);
    return assembly;
}

}  // namespace copy::modBuildAssembly
