// References that may be empty. Using an empty one is failure 91, which the caller's trap reports.
#pragma once

#include <memory>
#include <utility>

#include "core/failure.h"

namespace ombrel {

// Refers to an object that something else owns.
template <class T>
class Ref {
public:
    Ref() = default;
    Ref(T* object) : object_(object) {}  // NOLINT(google-explicit-constructor): a reference is made from an address

    T* get() const { return object_; }
    T* operator->() const { return &**this; }
    T& operator*() const {
        if (!object_) throw Failure(failure::kNoObject);
        return *object_;
    }
    explicit operator bool() const { return object_ != nullptr; }

private:
    T* object_ = nullptr;
};

// Owns its object.
template <class T>
class Owned {
public:
    Owned() = default;
    Owned(std::unique_ptr<T> object)
        : object_(std::move(object)) {}  // NOLINT(google-explicit-constructor): takes it over

    T* get() const { return object_.get(); }
    T* operator->() const { return &**this; }
    T& operator*() const {
        if (!object_) throw Failure(failure::kNoObject);
        return *object_;
    }
    explicit operator bool() const { return object_ != nullptr; }

    // Ends the object before the reference is empty or holds another, so that its last steps still reach it by name.
    void Release() {
        if (auto* object = object_.get()) {
            std::default_delete<T>()(object);
            (void)object_.release();
        }
    }

private:
    std::unique_ptr<T> object_;
};

// Owns an object that the whole plug-in shares, until it is released. One that never is ends with the process, without
// a step of its own: by then the host that it would call is gone.
template <class T>
class Global {
public:
    constexpr Global() = default;
    Global(const Global&) = delete;
    Global& operator=(const Global&) = delete;

    // The object before ends once the new one stands in its place.
    Global& operator=(std::unique_ptr<T> object) {
        std::unique_ptr<T> before(std::exchange(object_, object.release()));
        return *this;
    }

    T* get() const { return object_; }
    T* operator->() const { return &**this; }
    T& operator*() const {
        if (!object_) throw Failure(failure::kNoObject);
        return *object_;
    }
    explicit operator bool() const { return object_ != nullptr; }

    // Ends the object before the reference is empty, so that its last steps still reach it by name.
    void Release() {
        std::default_delete<T>()(object_);
        object_ = nullptr;
    }

private:
    T* object_ = nullptr;
};

}  // namespace ombrel
