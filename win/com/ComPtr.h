#pragma once
#include <type_traits>
#include <utility>

#include "win/com/Ole.h"

namespace win::com {

// Owns one reference to a COM interface: AddRef on copy, Release on destruction.
template <class T>
class ComPtr {
public:
    ComPtr() = default;
    ComPtr(std::nullptr_t) {}
    // Takes a new reference to p (the pointer stays the caller's too).
    explicit ComPtr(T* p) : p_(p) {
        if (p_) p_->AddRef();
    }
    ComPtr(const ComPtr& other) : ComPtr(other.p_) {}
    // An object of ours seen through one of the interfaces it implements.
    template <class U>
    requires std::is_convertible_v<U*, T*> ComPtr(const ComPtr<U>& other) : ComPtr(other.Get()) {}
    ComPtr(ComPtr&& other) noexcept : p_(std::exchange(other.p_, nullptr)) {}
    ComPtr& operator=(ComPtr other) noexcept {
        std::swap(p_, other.p_);
        return *this;
    }
    ~ComPtr() { Reset(); }

    // Adopts a reference the caller already owns (a factory's out pointer).
    static ComPtr Adopt(T* p) {
        ComPtr result;
        result.p_ = p;
        return result;
    }
    void Reset() {
        if (T* p = std::exchange(p_, nullptr)) p->Release();
    }
    // The address for a call that hands out a new reference; drops the old one first.
    T** Receive() {
        Reset();
        return &p_;
    }
    // Hands the reference to the caller (an out parameter of ours).
    T* Detach() { return std::exchange(p_, nullptr); }

    T* Get() const { return p_; }
    T* operator->() const { return p_; }
    explicit operator bool() const { return p_ != nullptr; }

    // QueryInterface; null when the object does not answer iid.
    template <class U>
    ComPtr<U> As(REFIID iid) const {
        ComPtr<U> result;
        if (p_) p_->QueryInterface(iid, reinterpret_cast<void**>(result.Receive()));
        return result;
    }

private:
    T* p_ = nullptr;
};

}  // namespace win::com
