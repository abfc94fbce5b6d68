#pragma once
#include <cstdint>
#include <memory>
#include <string>

#include "host/Object.h"

namespace host {

class Document;
class Documents;
class CommandManager;
class UserInterfaceManager;
class ButtonDefinition;

class Transaction {
public:
    virtual ~Transaction() = default;
    virtual void End() = 0;
    virtual void Abort() = 0;
};

class TransactionManager {
public:
    virtual ~TransactionManager() = default;
    virtual std::shared_ptr<Transaction> StartTransaction(std::shared_ptr<host::Document> document,
                                                          const std::string& displayName) = 0;
};

class FileManager {
public:
    virtual ~FileManager() = default;
    // Copies a host file; option kOverwriteExistingFile replaces an existing target.
    virtual void CopyFile(const std::string& source, const std::string& destination, std::int32_t option) = 0;
};

class FileLocations {
public:
    virtual ~FileLocations() = default;
    virtual std::string Workspace() const = 0;
    virtual std::string TemplatesPath() const = 0;  // ends with "\"
    // The host's guess at the drawing of a model; "" when it knows none.
    virtual std::string FindDrawing(const std::string& modelFullFileName,
                                    const std::string& subject) const = 0;
};

class Camera {
public:
    virtual ~Camera() = default;
    virtual std::int32_t ViewOrientationType() const = 0;
    virtual void SetViewOrientationType(std::int32_t orientation) = 0;
    virtual void Apply() = 0;
};

class View {
public:
    virtual ~View() = default;
    virtual std::intptr_t HWND() const = 0;
    virtual std::shared_ptr<host::Camera> Camera() = 0;
};

class Application : public Object {
public:
    virtual std::shared_ptr<host::Document> ActiveDocument() = 0;  // null when none
    virtual std::shared_ptr<host::Documents> Documents() = 0;
    // The document at top level, or the object being edited in place (a sketch,
    // a sub-assembly); its Type tells which.
    virtual ObjectPtr ActiveEditObject() = 0;
    virtual std::shared_ptr<host::View> ActiveView() = 0;
    virtual std::shared_ptr<host::CommandManager> CommandManager() = 0;
    virtual std::shared_ptr<host::UserInterfaceManager> UserInterfaceManager() = 0;
    virtual std::shared_ptr<host::TransactionManager> TransactionManager() = 0;
    virtual std::shared_ptr<host::FileManager> FileManager() = 0;
    virtual std::shared_ptr<host::FileLocations> FileLocations() = 0;

    virtual std::string StatusBarText() const = 0;
    virtual void SetStatusBarText(const std::string& text) = 0;
    virtual bool SilentOperation() const = 0;
    virtual void SetSilentOperation(bool silent) = 0;
    virtual std::intptr_t MainFrameHWND() const = 0;
    virtual std::string Caption() const = 0;
    virtual std::int32_t SoftwareVersionMajor() const = 0;
};

// What the host hands the add-in on activation.
class AddInSite {
public:
    virtual ~AddInSite() = default;
    virtual std::shared_ptr<host::Application> Application() = 0;
    // Fails with E_UNEXPECTED when the host refuses the icon.
    virtual std::shared_ptr<ButtonDefinition> CreateButtonDefinition(
        const std::string& internalName, std::int32_t classification, const std::string& displayName,
        const std::string& description, const std::string& tooltip, bool withIcon) = 0;
};

}  // namespace host
