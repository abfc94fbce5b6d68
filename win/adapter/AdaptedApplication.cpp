// The site, the application and what hangs from it directly: views, transactions, files.
#include "support/Error.h"
#include "win/adapter/Adapted.h"
#include "win/adapter/HostAdapter.h"
#include "win/com/ComObject.h"
#include "win/com/HostEvents.h"
#include "win/com/Picture.h"

namespace win::adapter {

namespace {

class AdaptedView : public ::host::View, public Adapted {
public:
    AdaptedView(com::ComPtr<IDispatch> o, Context c) : Adapted("View", std::move(o), std::move(c)) {}
    std::intptr_t HWND() const override { return remote_.Long("HWND"); }
    std::shared_ptr<::host::Camera> Camera() override {
        return AdaptCamera(remote_.Shared(), remote_.Get("Camera"));
    }
};

class AdaptedCamera : public ::host::Camera, public Adapted {
public:
    AdaptedCamera(com::ComPtr<IDispatch> o, Context c) : Adapted("Camera", std::move(o), std::move(c)) {}
    std::int32_t ViewOrientationType() const override { return remote_.Long("ViewOrientationType"); }
    void SetViewOrientationType(std::int32_t v) override { remote_.Put("ViewOrientationType", v); }
    void Apply() override { remote_.Call("Apply"); }
};

class AdaptedTransactionManager : public ::host::TransactionManager, public Adapted {
public:
    AdaptedTransactionManager(com::ComPtr<IDispatch> o, Context c)
        : Adapted("TransactionManager", std::move(o), std::move(c)) {}
    std::shared_ptr<::host::Transaction> StartTransaction(std::shared_ptr<::host::Document> document,
                                                          const std::string& displayName) override {
        return AdaptTransaction(remote_.Shared(),
                                remote_.Call("StartTransaction", {HostObjectOf(document), displayName}));
    }
};

class AdaptedTransaction : public ::host::Transaction, public Adapted {
public:
    AdaptedTransaction(com::ComPtr<IDispatch> o, Context c)
        : Adapted("Transaction", std::move(o), std::move(c)) {}
    void End() override { remote_.Call("End"); }
    void Abort() override { remote_.Call("Abort"); }
};

class AdaptedFileManager : public ::host::FileManager, public Adapted {
public:
    AdaptedFileManager(com::ComPtr<IDispatch> o, Context c)
        : Adapted("FileManager", std::move(o), std::move(c)) {}
    void CopyFile(const std::string& source, const std::string& destination, std::int32_t option) override {
        remote_.Call("CopyFile", {source, destination, option});
    }
};

// The file locations; the templates folder is one of the application's file options.
class AdaptedFileLocations : public ::host::FileLocations, public Adapted {
public:
    AdaptedFileLocations(com::ComPtr<IDispatch> o, Context c)
        : Adapted("FileLocations", std::move(o), std::move(c)) {}
    std::string Workspace() const override { return remote_.Text("Workspace"); }
    std::string TemplatesPath() const override {
        const Context& context = remote_.Shared();
        Remote options(
            "FileOptions",
            DispatchOf(Remote("Application", context->application.Object(), context).Get("FileOptions")),
            context);
        return options.Text("TemplatesPath");
    }
    std::string FindDrawing(const std::string& model, const std::string& subject) const override {
        return remote_.Call("FindDrawing", {model, subject}).ToText();
    }
};

class AdaptedApplication : public ::host::Application, public Adapted {
public:
    AdaptedApplication(com::ComPtr<IDispatch> o, Context c)
        : Adapted("Application", std::move(o), std::move(c)) {}
    std::int32_t Type() const override { return remote_.Long("Type"); }
    std::shared_ptr<::host::Document> ActiveDocument() override {
        return AdaptDocument(remote_.Shared(), remote_.Get("ActiveDocument"));
    }
    std::shared_ptr<::host::Documents> Documents() override {
        return AdaptDocuments(remote_.Shared(), remote_.Get("Documents"));
    }
    ::host::ObjectPtr ActiveEditObject() override {
        return AdaptObject(remote_.Shared(), remote_.Get("ActiveEditObject"));
    }
    std::shared_ptr<::host::View> ActiveView() override {
        return Make<AdaptedView>(remote_.Shared(), remote_.Get("ActiveView"));
    }
    std::shared_ptr<::host::CommandManager> CommandManager() override {
        return AdaptCommandManager(remote_.Shared(), remote_.Get("CommandManager"));
    }
    std::shared_ptr<::host::UserInterfaceManager> UserInterfaceManager() override {
        return AdaptUserInterfaceManager(remote_.Shared(), remote_.Get("UserInterfaceManager"));
    }
    std::shared_ptr<::host::TransactionManager> TransactionManager() override {
        return Make<AdaptedTransactionManager>(remote_.Shared(), remote_.Get("TransactionManager"));
    }
    std::shared_ptr<::host::FileManager> FileManager() override {
        return Make<AdaptedFileManager>(remote_.Shared(), remote_.Get("FileManager"));
    }
    std::shared_ptr<::host::FileLocations> FileLocations() override {
        return Make<AdaptedFileLocations>(remote_.Shared(), remote_.Get("FileLocations"));
    }
    std::string StatusBarText() const override { return remote_.Text("StatusBarText"); }
    void SetStatusBarText(const std::string& text) override { remote_.Put("StatusBarText", text); }
    bool SilentOperation() const override { return remote_.Flag("SilentOperation"); }
    void SetSilentOperation(bool silent) override { remote_.Put("SilentOperation", silent); }
    std::intptr_t MainFrameHWND() const override { return remote_.Long("MainFrameHWND"); }
    std::string Caption() const override { return remote_.Text("Caption"); }
    std::int32_t SoftwareVersionMajor() const override {
        return Remote("SoftwareVersion", DispatchOf(remote_.Get("SoftwareVersion")), remote_.Shared())
            .Long("Major");
    }
};

// The platform's "Object doesn't support this property or method".
constexpr std::int32_t kMemberNotFound = 438;

class AdaptedSite : public ::host::AddInSite, public Adapted {
public:
    AdaptedSite(com::ComPtr<IDispatch> o, Context c, std::string clientId)
        : Adapted("ApplicationAddInSite", std::move(o), std::move(c)), clientId_(std::move(clientId)) {}
    std::shared_ptr<::host::Application> Application() override {
        return AdaptApplication(Shared(), AsValue(Shared()));
    }

    // The site's factory of releases 7 to 9; a host without it has the later one,
    // ControlDefinitions.AddButtonDefinition, whose definitions raise OnExecute.
    std::shared_ptr<::host::ButtonDefinition> CreateButtonDefinition(
        const std::string& internalName, std::int32_t classification, const std::string& displayName,
        const std::string& description, const std::string& tooltip, bool withIcon) override {
        Argument icon = withIcon ? Argument(com::StandardIconPicture()) : Argument::Missing();
        try {
            return AdaptButtonHandler(
                Shared(), remote_.Call("CreateButtonDefinition", {internalName, classification, displayName,
                                                                  description, tooltip, icon}));
        } catch (const support::Error& e) {
            if (e.Number() != kMemberNotFound) throw;
        }
        Remote application("Application", Shared()->application.Object(), Shared());
        Remote commands("CommandManager", DispatchOf(application.Get("CommandManager")), Shared());
        Remote definitions("ControlDefinitions", DispatchOf(commands.Get("ControlDefinitions")), Shared());
        return AdaptButtonDefinition(
            Shared(), definitions.Call("AddButtonDefinition", {displayName, internalName, classification,
                                                               clientId_, description, tooltip, icon}));
    }

private:
    // What every object reached from the site shares: the application, asked once.
    const Context& Shared() {
        if (!shared_) {
            support::Variant application =
                remote_.Invoke(com::kDispidSiteApplication, DISPATCH_PROPERTYGET, "Application");
            shared_ =
                std::make_shared<AdapterContext>(AdapterContext{com::Dispatch(DispatchOf(application))});
        }
        return shared_;
    }
    static support::Variant AsValue(const Context& context) {  // Nothing stays Nothing
        return support::Variant(std::make_shared<com::ComObject>(context->application.Object()));
    }
    std::string clientId_;
    Context shared_;
};

}  // namespace

TW_DEFINE_ADAPT(Application)
TW_DEFINE_ADAPT(Camera)
TW_DEFINE_ADAPT(Transaction)

std::shared_ptr<::host::AddInSite> AdaptSite(com::ComPtr<IDispatch> site, std::string clientId) {
    return std::make_shared<AdaptedSite>(std::move(site), std::make_shared<AdapterContext>(),
                                         std::move(clientId));
}

}  // namespace win::adapter
