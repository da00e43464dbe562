// A property of a control: a value that tells its owner when it is assigned, so that plain
// assignment in a handler shows on the screen.
#pragma once

#include <type_traits>
#include <utility>

namespace surface {

namespace detail {
template <class>
struct HookOwner;
template <class C>
struct HookOwner<void (C::*)()> {
  using type = C;
};
template <class C, class T>
struct HookOwner<void (C::*)(const T&)> {
  using type = C;
};
}  // namespace detail

/// `Changed` is the owner's member function that runs after every assignment, also of an equal
/// value (a background colour assigned anew erases the drawing); if it takes an argument, that is
/// the former value. `Check`, if given, is called with the new value first and throws to refuse it.
/// Assigning one property to another copies the value; a property can't be copied itself.
template <class T, auto Changed, auto Check = nullptr>
class Prop {
  using Owner = typename detail::HookOwner<decltype(Changed)>::type;

 public:
  Prop(Owner& owner, T value) : owner_(&owner), value_(std::move(value)) {}
  Prop(const Prop&) = delete;

  Prop& operator=(const Prop& other) { return assign(other.value_); }
  Prop& operator=(T value) { return assign(std::move(value)); }

  operator const T&() const { return value_; }
  const T& get() const { return value_; }
  const T* operator->() const { return &value_; }

  /// Changes the value without the hook: for the owner itself, when the screen has the new value
  /// already.
  void setQuietly(T value) { value_ = std::move(value); }

  // Only for class types: a number compares by its conversion.
  template <class U>
  requires(std::is_class_v<T>&& std::is_convertible_v<const U&, T>) friend bool operator==(
      const Prop& a, const U& b) {
    return a.value_ == b;
  }

 private:
  Prop& assign(T value) {
    if constexpr (!std::is_same_v<decltype(Check), std::nullptr_t>) Check(value);
    if constexpr (std::is_invocable_v<decltype(Changed), Owner&>) {
      value_ = std::move(value);
      (owner_->*Changed)();
    } else {
      const T former = std::exchange(value_, std::move(value));
      (owner_->*Changed)(former);
    }
    return *this;
  }

  Owner* owner_;
  T value_;
};

}  // namespace surface
