#include "addin/shared/clsPickOccur.h"

#include "host/Application.h"
#include "host/Commands.h"

namespace addin {

clsPickOccur::~clsPickOccur() {
    onPreSelect_.Reset();
    onSelect_.Reset();
    selection_.reset();
    onTerminate_.Reset();
    interaction_.reset();
}

void clsPickOccur::StartPick(std::int32_t filter) {
    if (selecting_) return;
    selecting_ = kVbTrue;
    interaction_ = state_.App().CommandManager()->CreateInteractionEvents();
    onTerminate_ = interaction_->OnTerminate().Subscribe([this] { selecting_ = kVbFalse; });
    interaction_->SetSelectionEnabled(true);
    selection_ = interaction_->SelectEvents();
    onSelect_ =
        selection_->OnSelect().Subscribe([this](const host::ObjectList& picked) { OnSelect(picked); });
    onPreSelect_ =
        selection_->OnPreSelect().Subscribe([this](host::ObjectPtr) { selection_->ResetPreSelection(); });
    selection_->AddSelectionFilter(filter);
    interaction_->Start();
}

void clsPickOccur::StopPick() {
    if (interaction_) interaction_->Stop();
    selecting_ = kVbFalse;
}

void clsPickOccur::OnSelect(const host::ObjectList& justSelected) {
    oObjectSelected = justSelected.empty() ? nullptr : justSelected.front();
    OnPicked.Raise();
    oObjectSelected = nullptr;
}

}  // namespace addin
