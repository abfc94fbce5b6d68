#include "simhost/SimDrawing.h"

#include "simhost/HostCalls.h"
#include "simhost/SimDocument.h"
#include "support/Error.h"

namespace simhost {

using support::Error;
namespace errors = support::errors;

namespace {

class SimTextBox : public host::TextBox {
public:
    explicit SimTextBox(std::string text) : text_(std::move(text)) {}
    std::string FormattedText() const override { return text_; }

private:
    std::string text_;
};

// A title block's text, as the definition held it when asked: definitions are not edited.
class SimTextBoxes : public host::Collection<host::TextBox> {
public:
    explicit SimTextBoxes(std::vector<std::string> texts) : texts_(std::move(texts)) {}
    std::int32_t Count() const override { return static_cast<std::int32_t>(texts_.size()); }
    std::shared_ptr<host::TextBox> Item(std::int32_t index) override {
        if (index < 1 || index > Count())
            throw Error(errors::kInvalidCall,
                        "The text box index " + std::to_string(index) + " is out of range");
        return std::make_shared<SimTextBox>(texts_[static_cast<std::size_t>(index - 1)]);
    }

private:
    std::vector<std::string> texts_;
};

class SimSketch : public host::DrawingSketch {
public:
    explicit SimSketch(std::vector<std::string> texts) : texts_(std::move(texts)) {}
    std::shared_ptr<host::Collection<host::TextBox>> TextBoxes() override {
        return std::make_shared<SimTextBoxes>(texts_);
    }

private:
    std::vector<std::string> texts_;
};

class SimTitleBlockDefinition : public host::TitleBlockDefinition {
public:
    explicit SimTitleBlockDefinition(TitleBlockData data) : data_(std::move(data)) {}
    std::string Name() const override { return data_.name; }
    std::shared_ptr<host::DrawingSketch> Sketch() override {
        return std::make_shared<SimSketch>(data_.textBoxes);
    }

private:
    TitleBlockData data_;
};

}  // namespace

bool SimDrawingSettings::DeferUpdates() const {
    SIM_HOST_CALL("DrawingSettings.DeferUpdates");
    return doc_->Data().deferUpdates;
}

void SimDrawingSettings::SetDeferUpdates(bool defer) {
    SIM_HOST_CALL("DrawingSettings.SetDeferUpdates");
    if (doc_->Data().deferUpdates != defer) doc_->Edit().deferUpdates = defer;
}

std::int32_t SimTitleBlockDefinitions::Count() const {
    SIM_HOST_CALL("TitleBlockDefinitions.Count");
    return static_cast<std::int32_t>(doc_->Data().titleBlocks.size());
}

std::shared_ptr<host::TitleBlockDefinition> SimTitleBlockDefinitions::Item(std::int32_t index) {
    SIM_HOST_CALL("TitleBlockDefinitions.Item");
    if (index < 1 || index > Count())
        throw Error(errors::kInvalidCall,
                    "The title block index " + std::to_string(index) + " is out of range");
    return std::make_shared<SimTitleBlockDefinition>(
        doc_->Data().titleBlocks[static_cast<std::size_t>(index - 1)]);
}

}  // namespace simhost
