#pragma once
#include <cstdint>
#include <memory>
#include <string>

#include "simhost/DocumentStore.h"
#include "simhost/SimCommands.h"
#include "simhost/SimFileSystem.h"
#include "simhost/SimHost.h"
#include "simhost/TransactionLog.h"

namespace simhost {

class SimApplication;
class SimSite;

// Everything one running stand-in host holds. The objects handed to the add-in keep a
// reference to it, so the SimHost must outlive them.
class SimState {
public:
    SimState();
    ~SimState();

    // Set-up.
    std::int32_t softwareVersion = kDefaultSoftwareVersion;
    std::string userName = "Designer";
    std::string workspace = "C:\\Work";
    std::string templatesPath = "C:\\Templates\\";
    bool refuseIcons = false;
    Observer* observer = nullptr;

    SimFileSystem fileSystem;
    DocumentStore documents{*this};
    TransactionLog transactions;
    std::shared_ptr<CommandState> commands = std::make_shared<CommandState>();

    // What the user is doing.
    EditMode editMode = EditMode::TopLevel;
    std::string editPath;  // the occurrence edited in place
    std::string statusBar;
    bool silent = false;

    std::shared_ptr<SimApplication> application;
    std::shared_ptr<SimSite> site;

    void ReportOpened(const std::string& path, bool visible) {
        if (observer) observer->DocumentOpened(path, visible);
    }
    void ReportClosed(const std::string& path) {
        if (observer) observer->DocumentClosed(path);
    }
    void ReportDiscarded(const std::string& path) {
        if (observer) observer->EditsDiscarded(path);
    }
};

}  // namespace simhost
