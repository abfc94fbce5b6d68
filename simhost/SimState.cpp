#include "simhost/SimState.h"

#include "simhost/SimApplication.h"

namespace simhost {

SimState::SimState()
    : application(std::make_shared<SimApplication>(*this)), site(std::make_shared<SimSite>(*this)) {}

// The observer may be gone by now, so closing at the end reports nothing.
SimState::~SimState() {
    observer = nullptr;
    fileSystem.SetObserver(nullptr);
    documents.CloseAll();
}

}  // namespace simhost
