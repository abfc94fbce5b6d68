#pragma once
#include <map>
#include <memory>
#include <span>
#include <vector>

#include "support/Variant.h"
#include "win/com/DispatchObject.h"

namespace win::hostface {

using com::InvokeArgs;

// One member of a host object as the automation interface shows it: its name, what a read
// or a call does, what an assignment does (none for a read-only member), and its DISPID
// where the host's is known; otherwise its place in the table is its number.
template <class T>
struct FaceMember {
    const wchar_t* name;
    support::Variant (*get)(T& target, const InvokeArgs& args) = nullptr;
    void (*put)(T& target, const support::Variant& value, const InvokeArgs& args) = nullptr;
    DISPID id = 0;
};

// A host object of the stand-in, as an IDispatch object with the host's member names. Each
// kind of object has one member table (FaceTable<T>), and the face does nothing but forward
// to the object it shows: no logic of its own, so both ways of playing a session meet the
// same host.
//
// One host object has one face while the face lives, as the host hands out one COM object
// for each of its objects: a client comparing two references (Is in a script) finds them
// the same.
template <class T>
class FaceObject : public com::DispatchObject<> {
public:
    explicit FaceObject(std::shared_ptr<T> target) : target_(std::move(target)) {
        Live()[target_.get()] = this;
    }
    ~FaceObject() override { Live().erase(target_.get()); }
    const std::shared_ptr<T>& Target() const { return target_; }

    // The face target has now, if it has one.
    static com::ComPtr<IDispatch> Existing(const std::shared_ptr<T>& target) {
        auto found = Live().find(target.get());
        return found == Live().end() ? nullptr : com::ComPtr<IDispatch>(found->second);
    }

protected:
    std::span<const com::Member> Members() const override {
        static const std::vector<com::Member> members = [] {
            std::vector<com::Member> list;
            for (std::size_t i = 0; i < Table().size(); ++i) list.push_back({IdOf(i), Table()[i].name});
            return list;
        }();
        return members;
    }

    support::Variant Call(DISPID id, WORD flags, const InvokeArgs& args) override {
        for (std::size_t i = 0; i < Table().size(); ++i) {
            const FaceMember<T>& m = Table()[i];
            if (IdOf(i) != id) continue;
            if (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) {
                if (!m.put || args.Count() == 0) throw com::InvokeError{DISP_E_MEMBERNOTFOUND};
                m.put(*target_, args.At(args.Count() - 1), args);
                return {};
            }
            if (!m.get) throw com::InvokeError{DISP_E_MEMBERNOTFOUND};
            return m.get(*target_, args);
        }
        throw com::InvokeError{DISP_E_MEMBERNOTFOUND};
    }

    bool Answers(REFIID) const override { return false; }

private:
    static std::map<const T*, FaceObject*>& Live() {
        static std::map<const T*, FaceObject*> live;
        return live;
    }
    static std::span<const FaceMember<T>> Table();
    static DISPID IdOf(std::size_t index) {
        return Table()[index].id ? Table()[index].id : static_cast<DISPID>(index + 1);
    }
    std::shared_ptr<T> target_;
};

}  // namespace win::hostface
