#pragma once
#include <span>

#include "support/Variant.h"
#include "win/com/ComPtr.h"
#include "win/com/Ole.h"

namespace win::com {

// A failure of the call itself rather than of the member: a wrong count or type of
// arguments. The caller gets the HRESULT and the argument's position.
struct InvokeError {
    HRESULT hr;
    UINT argument = 0;
};

// The positional arguments of a call into one of our objects, in declared order
// (DISPPARAMS holds them reversed). A property assignment's value is the last one.
class InvokeArgs {
public:
    explicit InvokeArgs(const DISPPARAMS& params) : params_(params) {}
    std::size_t Count() const { return params_.cArgs; }
    // Throws DISP_E_BADPARAMCOUNT unless the caller passed exactly count arguments.
    void Require(std::size_t count) const;
    support::Variant At(std::size_t index) const;         // DISP_E_TYPEMISMATCH when unconvertible
    ComPtr<IDispatch> ObjectAt(std::size_t index) const;  // an object or Nothing, else a mismatch
    // Writes an [out] argument the caller passed by reference.
    void SetOut(std::size_t index, const support::Variant& value) const;

private:
    VARIANT& Slot(std::size_t index) const;
    const DISPPARAMS& params_;
};

// A member our object answers by name and DISPID.
struct Member {
    DISPID id;
    const wchar_t* name;
};

// What a concrete object supplies: its members and what they do.
class Invocable {
public:
    virtual std::span<const Member> Members() const = 0;
    // Runs member id; a support::Error it throws reaches the caller as its EXCEPINFO.
    virtual support::Variant Call(DISPID id, WORD flags, const InvokeArgs& args) = 0;
    // The IIDs this object answers besides IUnknown and IDispatch.
    virtual bool Answers(REFIID iid) const = 0;

protected:
    ~Invocable() = default;
};

// Live objects of this module, for DllCanUnloadNow and for leak checks in tests.
long LiveObjectCount();

namespace detail {
void CountObject(long delta);
HRESULT QueryInterface(IUnknown* self, ISupportErrorInfo* errorInfo, const Invocable& target, REFIID iid,
                       void** out);
HRESULT GetIDsOfNames(const Invocable& target, LPOLESTR* names, UINT count, DISPID* ids);
HRESULT Invoke(Invocable& target, DISPID id, REFIID iid, WORD flags, DISPPARAMS* params, VARIANT* result,
               EXCEPINFO* exception, UINT* badArgument);
}  // namespace detail

// Base of our own COM objects (the add-in server, event sinks): reference counting,
// QueryInterface, error information, and IDispatch answered from the member table without
// a type library. Interface is IDispatch, or a dual interface derived from it whose vtable
// members the subclass implements. No exception ever leaves a COM member.
template <class Interface = IDispatch>
class DispatchObject : public Interface, public ISupportErrorInfo, protected Invocable {
public:
    // A new object with one reference, owned by the returned pointer.
    template <class T, class... A>
    static ComPtr<T> Make(A&&... args) {
        return ComPtr<T>::Adopt(new T(std::forward<A>(args)...));
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
        return detail::QueryInterface(static_cast<Interface*>(this), this, *this, iid, out);
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return InterlockedIncrement(&refs_); }
    ULONG STDMETHODCALLTYPE Release() override {
        LONG left = InterlockedDecrement(&refs_);
        if (left == 0) delete this;
        return left;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        if (!count) return E_POINTER;
        *count = 0;  // no type library: callers look members up by name
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) override {
        if (info) *info = nullptr;
        return DISP_E_BADINDEX;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
        return detail::GetIDsOfNames(*this, names, count, ids);
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID, WORD flags, DISPPARAMS* params,
                                     VARIANT* result, EXCEPINFO* exception, UINT* badArgument) override {
        return detail::Invoke(*this, id, iid, flags, params, result, exception, badArgument);
    }
    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) override {
        return Answers(iid) ? S_OK : S_FALSE;
    }

protected:
    DispatchObject() { detail::CountObject(+1); }
    virtual ~DispatchObject() { detail::CountObject(-1); }
    DispatchObject(const DispatchObject&) = delete;
    DispatchObject& operator=(const DispatchObject&) = delete;

private:
    LONG refs_ = 1;
};

}  // namespace win::com
