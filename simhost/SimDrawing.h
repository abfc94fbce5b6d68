#pragma once
#include <memory>
#include <string>

#include "host/Document.h"
#include "simhost/DocData.h"

namespace simhost {

// A drawing's settings and title block definitions, read from and written to its data.
class SimDrawingSettings : public host::DrawingSettings {
public:
    explicit SimDrawingSettings(SimDocumentPtr doc) : doc_(std::move(doc)) {}
    bool DeferUpdates() const override;
    void SetDeferUpdates(bool defer) override;

private:
    SimDocumentPtr doc_;
};

class SimTitleBlockDefinitions : public host::Collection<host::TitleBlockDefinition> {
public:
    explicit SimTitleBlockDefinitions(SimDocumentPtr doc) : doc_(std::move(doc)) {}
    std::int32_t Count() const override;
    std::shared_ptr<host::TitleBlockDefinition> Item(std::int32_t index) override;

private:
    SimDocumentPtr doc_;
};

}  // namespace simhost
