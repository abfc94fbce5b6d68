#pragma once
#include <cstdint>
#include <memory>
#include <string>

#include "host/Application.h"
#include "simhost/DocData.h"
#include "simhost/HostCalls.h"

// The application's smaller services: transactions, file copies, file locations and the
// view of the active document.
namespace simhost {

class SimState;

class SimTransactionManager : public host::TransactionManager {
public:
    explicit SimTransactionManager(SimState& state) : state_(state) {}
    std::shared_ptr<host::Transaction> StartTransaction(std::shared_ptr<host::Document> document,
                                                        const std::string& displayName) override;

private:
    SimState& state_;
};

class SimFileManager : public host::FileManager {
public:
    explicit SimFileManager(SimState& state) : state_(state) {}
    void CopyFile(const std::string& source, const std::string& destination, std::int32_t option) override;

private:
    SimState& state_;
};

class SimFileLocations : public host::FileLocations {
public:
    explicit SimFileLocations(SimState& state) : state_(state) {}
    std::string Workspace() const override;
    std::string TemplatesPath() const override;
    // The drawing of the same name in the model's folder, when there is one.
    std::string FindDrawing(const std::string& modelFullFileName, const std::string& subject) const override;

private:
    SimState& state_;
};

// The camera of a shown document: an orientation set here takes effect on Apply.
class SimCamera : public host::Camera {
public:
    explicit SimCamera(SimDocumentPtr doc) : doc_(std::move(doc)) {}
    std::int32_t ViewOrientationType() const override;
    void SetViewOrientationType(std::int32_t orientation) override;
    void Apply() override;

private:
    SimDocumentPtr doc_;
    std::int32_t pending_ = 0;
};

class SimView : public host::View {
public:
    explicit SimView(SimDocumentPtr doc) : doc_(std::move(doc)) {}
    std::intptr_t HWND() const override;
    std::shared_ptr<host::Camera> Camera() override;

private:
    SimDocumentPtr doc_;
};

}  // namespace simhost
