// Counted references: how all objects of the toolkit are held, checked and cast.
#ifndef VAMO_TOOLKIT_OBJECT_OBJECT_H_
#define VAMO_TOOLKIT_OBJECT_OBJECT_H_

#include <concepts>
#include <cstddef>
#include <memory>
#include <string>
#include <utility>

#include "toolkit/object/exceptions.h"

namespace vamo {

struct ClassInfo;

// The base of everything that a Ref can hold. It has an identity and a class, and it is never
// copied.
class Object : public std::enable_shared_from_this<Object> {
 public:
  Object() = default;
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;
  virtual ~Object() = default;

  // The table of the object's class; null if the class has none.
  virtual const ClassInfo* Class() const { return nullptr; }
};

// A counted reference to a T, or nil. It keeps its object alive. `->` and `*` on nil raise
// NilObjectException before any member is accessed.
template <class T>
class Ref {
 public:
  Ref() = default;
  Ref(std::nullptr_t) {}  // NOLINT(google-explicit-constructor)
  explicit Ref(std::shared_ptr<T> object) : object_(std::move(object)) {}
  template <std::derived_from<T> U>
  Ref(const Ref<U>& other) : object_(other.Share()) {}  // NOLINT(google-explicit-constructor)

  T* operator->() const { return &**this; }
  T& operator*() const {
    if (object_ == nullptr)
      throw NilObjectException("An object is needed here, and there is none.");
    return *object_;
  }
  explicit operator bool() const { return object_ != nullptr; }
  const std::shared_ptr<T>& Share() const { return object_; }

  template <class U>
  bool operator==(const Ref<U>& other) const {
    return object_ == other.Share();
  }

 private:
  std::shared_ptr<T> object_;
};

// Allocates a T. The caller calls its `Constructor`, if it has one.
template <class T, class... Arguments>
Ref<T> New(Arguments&&... arguments) {
  return Ref<T>(std::make_shared<T>(std::forward<Arguments>(arguments)...));
}

// A counted reference to `object`, typically `this`.
template <class T>
Ref<T> Self(T* object) {
  return Ref<T>(std::static_pointer_cast<T>(object->shared_from_this()));
}

// The name of an object's class, for messages.
std::string ClassName(const Object& object);

// The same object as a T; nil stays nil. Raises IllegalCastException if the object is not a T.
template <class T, class U>
Ref<T> Cast(const Ref<U>& object) {
  if (!object) return nullptr;
  auto cast = std::dynamic_pointer_cast<T>(object.Share());
  if (cast == nullptr) {
    throw IllegalCastException("An object of class " + ClassName(*object) +
                               " is not of the class that is needed here.");
  }
  return Ref<T>(std::move(cast));
}

// A reference that does not keep its object alive.
template <class T>
class WeakRef {
 public:
  WeakRef() = default;
  explicit WeakRef(const Ref<T>& object) : object_(object.Share()) {}

  // The object, or nil once it is destroyed.
  Ref<T> Value() const { return Ref<T>(object_.lock()); }

 private:
  std::weak_ptr<T> object_;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_OBJECT_OBJECT_H_
