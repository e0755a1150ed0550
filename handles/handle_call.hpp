// HandleCall: how a handle passes an operation on to its implementation. Objects are unwrapped, and null ones refused
// with a text that names the argument.
//
//     Do(VORQ_CALL(AddExpr, other, mult))     // Impl().AddExpr(Unwrap(other), mult), unless `other` is null
#pragma once

#include <cstddef>
#include <string>
#include <type_traits>
#include <utility>

#include "frame/status.hpp"

namespace Vorq {

// Ties an interface to the handle class that implements it.
template <class Interface>
struct HandleTraits;

// The implementation object behind an interface of ours. There is no check of the type: only this library's own
// objects may be passed.
template <class Interface>
auto& Unwrap(Interface* object) {
  return static_cast<typename HandleTraits<Interface>::Handle*>(object)->Impl();
}
template <class Interface>
auto& Unwrap(Interface const& object) {
  return static_cast<typename HandleTraits<Interface>::Handle const&>(object).Impl();
}

// The names of an operation and of its arguments, the latter parted by ", ", and the call of the implementation.
template <class Function>
struct HandleCall {
  char const* name;
  char const* arguments;
  Function function;
};
template <class Function>
HandleCall(char const*, char const*, Function) -> HandleCall<Function>;

// A pointer to an interface of ours. All other arguments are numbers, texts and arrays.
template <class Argument>
inline constexpr bool kIsObject = std::is_class_v<std::remove_pointer_t<Argument>>&& std::is_pointer_v<Argument>;

template <class Argument>
bool IsNullObject(Argument const& argument) {
  if constexpr (kIsObject<Argument>) {
    return argument == nullptr;
  } else {
    return false;
  }
}

template <class Argument>
auto& UnwrapArgument(Argument const& argument) {
  if constexpr (kIsObject<Argument>) {
    return Unwrap(argument);
  } else {
    return argument;
  }
}

// What is said of a null argument. `arguments` are names parted by ", ", and `place` counts from 1.
[[gnu::cold]] std::string NullText(char const* operation, char const* arguments, int place);

// Where an implementation object records a failure, null for one that records none.
template <class Implementation>
Status* StatusOf(Implementation& object) {
  if constexpr (requires { object.status; }) {
    return &object.status;
  } else if constexpr (requires { object.GetStatus(); }) {
    return &object.GetStatus();
  } else {
    return nullptr;
  }
}

// A result that stands for nothing. Shapes, arrays of numbers and blocks have one cell and carry the failure.
template <class Value>
Value FailedValue(std::string const& text) {
  if constexpr (requires { Value::Failed(text.c_str()); }) {
    return Value::Failed(text.c_str());
  } else if constexpr (requires { typename Value::Element; }) {
    Status failure;
    SetStatus(failure, kInvalid, "%s", text.c_str());
    return Value::Failed(typename Value::Element(), std::move(failure));
  } else if constexpr (requires { Value::Uniform(1).GetStatus(); }) {
    Value shape = Value::Uniform(1);
    SetStatus(shape.GetStatus(), kInvalid, "%s", text.c_str());
    return shape;
  } else {
    return Value();
  }
}

// The element at a position that a caller gives, null for one that there is not.
template <class Elements>
auto* FindElement(Elements& elements, int position) {
  auto const index = static_cast<std::size_t>(position);
  return position >= 0 && index < elements.size() ? &elements[index] : nullptr;
}
// A copy of it, or an element that stands for nothing.
template <class Elements>
auto ElementAt(Elements const& elements, int position) {
  auto const* const element = FindElement(elements, position);
  return element == nullptr ? typename Elements::value_type() : *element;
}

}  // namespace Vorq

// A call of the implementation's operation of the same name, of another, or of a function object that is given the
// implementation first, with the handle's arguments.
#define VORQ_CALL(NAME, ...) VORQ_CALL_AS(NAME, NAME, __VA_ARGS__)
#define VORQ_CALL_AS(NAME, OPERATION, ...)                                              \
  VORQ_CALL_BY(NAME, ([](auto& implementation, auto&&... arguments) -> decltype(auto) { \
                 return implementation.OPERATION(arguments...);                         \
               }),                                                                      \
               __VA_ARGS__)
#define VORQ_CALL_BY(NAME, FUNCTION, ...) Vorq::HandleCall{#NAME, #__VA_ARGS__, FUNCTION}, __VA_ARGS__
