#pragma once
#include <cstdint>
#include <memory>

#include "addin/shared/AddinState.h"
#include "host/Object.h"
#include "support/Event.h"

namespace host {
class InteractionEvents;
class SelectEvents;
}  // namespace host

namespace addin {

// A blocking pick: the caller waits, while the message loop keeps running, until the
// user picks one entity or ends the interaction.
class clsSelect {
public:
    explicit clsSelect(AddinState& state) : state_(state) {}
    // The first entity the user selected, or null when the interaction ended without one.
    host::ObjectPtr Pick(std::int32_t filter);
    VbBool bStillSelecting = kVbFalse;

private:
    void Release();
    AddinState& state_;
    std::shared_ptr<host::InteractionEvents> interaction_;
    std::shared_ptr<host::SelectEvents> selection_;
    support::Connection onTerminate_, onSelect_;
};

}  // namespace addin
