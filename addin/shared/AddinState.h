#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <typeindex>
#include <unordered_map>

#include "ui/Form.h"

namespace host {
class Application;
class Document;
class ComponentOccurrence;
class FileSystem;
}  // namespace host
namespace settings {
class Store;
}

namespace addin {

// Booleans that cross the add-in are 16-bit: 0 false, -1 true.
using VbBool = std::int16_t;
inline constexpr VbBool kVbFalse = 0;
inline constexpr VbBool kVbTrue = -1;

// The application name every setting is kept under.
inline constexpr const char* kSettingsApp = "Tarnwell";

// What the add-in is given besides the host: the desktop, the settings store, the disk.
struct Environment {
    ui::Platform& platform;
    settings::Store& settings;
    host::FileSystem& fileSystem;
};

// The add-in's process-wide state, owned by the add-in server and handed to every
// dialog, so that each test gets a fresh add-in.
class AddinState {
public:
    explicit AddinState(Environment env);
    ~AddinState();

    ui::Platform& platform;
    settings::Store& settings;
    host::FileSystem& fileSystem;

    std::shared_ptr<host::Application> app;                         // set by Activate
    std::shared_ptr<host::Document> workingDocument;                // the document a dialog works on
    std::shared_ptr<host::ComponentOccurrence> selectedOccurrence;  // null: the top-level document
    VbBool mainDialogOpen = kVbFalse;
    std::int32_t deletedComponents = 0;  // shown by the delete-invisible dialog

    // The host application; fails as the host does when there is none.
    host::Application& App();

    std::string GetSetting(const std::string& section, const std::string& key,
                           const std::string& defaultValue = "") const;
    void SaveSetting(const std::string& section, const std::string& key, const std::string& value);

    // Each dialog is one instance, created on first use and reused afterwards.
    template <class F>
    F& Dialog() {
        auto& slot = dialogs_[std::type_index(typeid(F))];
        if (!slot) slot = std::make_unique<F>(*this);
        return static_cast<F&>(*slot);
    }

private:
    std::unordered_map<std::type_index, std::unique_ptr<ui::Form>> dialogs_;
};

}  // namespace addin
