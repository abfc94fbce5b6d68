#include "addin/shared/clsSelect.h"

#include "host/Application.h"
#include "host/Commands.h"

namespace addin {

host::ObjectPtr clsSelect::Pick(std::int32_t filter) {
    host::ObjectPtr result;
    bStillSelecting = kVbTrue;
    if (waiting_) return result;
    struct WaitingScope {
        bool& flag;
        explicit WaitingScope(bool& f) : flag(f) { flag = true; }
        ~WaitingScope() { flag = false; }
    } waiting(waiting_);

    interaction_ = state_.App().CommandManager()->CreateInteractionEvents();
    onTerminate_ = interaction_->OnTerminate().Subscribe([this] { bStillSelecting = kVbFalse; });
    interaction_->SetSelectionEnabled(true);
    selection_ = interaction_->SelectEvents();
    onSelect_ =
        selection_->OnSelect().Subscribe([this](const host::ObjectList&) { bStillSelecting = kVbFalse; });
    selection_->AddSelectionFilter(filter);
    interaction_->Start();

    // The caller waits here while the user works; other handlers of the add-in may run.
    while (bStillSelecting) state_.platform.WaitForInput("a blocking pick");

    // From here on a failure only means nothing was picked.
    try {
        auto selected = selection_->SelectedEntities();
        if (!selected.empty()) result = selected.front();
    } catch (const support::Error&) {
    }
    try {
        interaction_->Stop();
    } catch (const support::Error&) {
    }
    Release();
    return result;
}

void clsSelect::Release() {
    onSelect_.Reset();
    onTerminate_.Reset();
    selection_.reset();
    interaction_.reset();
}

}  // namespace addin
