#pragma once
#include <cstdint>
#include <memory>
#include <string>

#include "host/Application.h"
#include "host/Document.h"
#include "simhost/HostCalls.h"

namespace simhost {

class SimState;
class SimOccurrence;

inline constexpr std::int32_t kApplicationObjectType = 0x03000100;  // the stand-in's own value
inline constexpr std::intptr_t kMainFrameHWND = 0x000A0F10;

class SimDocuments : public host::Documents {
public:
    explicit SimDocuments(SimState& state) : state_(state) {}
    std::int32_t Count() const override;
    host::DocumentPtr Item(std::int32_t index) override;
    host::DocumentPtr Open(const std::string& fullFileName, bool openVisible = true) override;
    host::DocumentPtr Add(std::int32_t documentType, const std::string& templateFileName,
                          bool createVisible = true) override;

private:
    SimState& state_;
};

class SimApplication : public host::Application {
public:
    explicit SimApplication(SimState& state);
    std::int32_t Type() const override;
    std::shared_ptr<host::Document> ActiveDocument() override;
    std::shared_ptr<host::Documents> Documents() override;
    host::ObjectPtr ActiveEditObject() override;
    std::shared_ptr<host::View> ActiveView() override;  // null with no document shown
    std::shared_ptr<host::CommandManager> CommandManager() override;
    std::shared_ptr<host::UserInterfaceManager> UserInterfaceManager() override;
    std::shared_ptr<host::TransactionManager> TransactionManager() override;
    std::shared_ptr<host::FileManager> FileManager() override;
    std::shared_ptr<host::FileLocations> FileLocations() override;

    std::string StatusBarText() const override;
    void SetStatusBarText(const std::string& text) override;
    bool SilentOperation() const override;
    void SetSilentOperation(bool silent) override;
    std::intptr_t MainFrameHWND() const override;
    std::string Caption() const override;
    std::int32_t SoftwareVersionMajor() const override;

    // An occurrence of the active assembly by names from its top: "Frame:1/Bracket:2".
    std::shared_ptr<SimOccurrence> FindOccurrence(const std::string& path);

private:
    SimState& state_;
    std::shared_ptr<SimDocuments> documents_;
    std::shared_ptr<host::TransactionManager> transactions_;
    std::shared_ptr<host::FileManager> fileManager_;
    std::shared_ptr<host::FileLocations> fileLocations_;
    host::ObjectPtr sketch_;
};

class SimSite : public host::AddInSite {
public:
    explicit SimSite(SimState& state) : state_(state) {}
    std::shared_ptr<host::Application> Application() override;
    std::shared_ptr<host::ButtonDefinition> CreateButtonDefinition(
        const std::string& internalName, std::int32_t classification, const std::string& displayName,
        const std::string& description, const std::string& tooltip, bool withIcon) override;

private:
    SimState& state_;
};

}  // namespace simhost
