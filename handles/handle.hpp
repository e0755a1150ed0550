// Handle: what every concrete class of the library is made of: one interface, one holder of an implementation object.
//
// A handle's operations are one line each: unwrap the arguments, call the implementation, wrap the result. Those that
// are given objects do so through a HandleCall, which refuses null ones:
//
//     class VorqExpr final : public Vorq::Handle<VorqExpr, Vorq::IExpr, Vorq::Expr> { ... };
//     template <> struct Vorq::HandleTraits<Vorq::IExpr> { using Handle = VorqExpr; };
//
//     Vorq::IExpr* Clone() override { return Vorq::Wrap<Vorq::IExpr>(Impl()); }
//     void AddExpr(Vorq::IExpr* other, double mult) override { Do(VORQ_CALL(AddExpr, other, mult)); }
#pragma once

#include <cstddef>
#include <string>
#include <type_traits>
#include <utility>

#include "frame/shared_ptr.hpp"
#include "frame/slab.hpp"
#include "handles/handle_call.hpp"

namespace Vorq {

// The virtual table and the holder.
inline constexpr std::size_t kHandleSize = 2 * sizeof(void*);

// A new handle, owned by the caller, on a new implementation object made from `arguments`.
template <class Interface, class... Arguments>
Interface* Wrap(Arguments&&... arguments) {
  using HandleClass = typename HandleTraits<Interface>::Handle;
  static_assert(sizeof(HandleClass) == kHandleSize);
  return new HandleClass(MakeShared<typename HandleClass::Impl_t>(std::forward<Arguments>(arguments)...));
}

// The same for what an operation gives. Blocks are wrapped where their handles are.
template <class Interface, class Value>
Interface* WrapResult(Value&& value) {
  if constexpr (requires { WrapBlock(std::forward<Value>(value)); }) {
    return WrapBlock(std::forward<Value>(value));
  } else {
    return Wrap<Interface>(std::forward<Value>(value));
  }
}

template <class Derived, class InterfaceType, class Implementation>
class Handle : public InterfaceType {
 public:
  using Interface = InterfaceType;
  using Impl_t = Implementation;

  Handle() = default;
  explicit Handle(SharedPtr<Implementation> holder) : holder_(std::move(holder)) {}

  Implementation& Impl() const { return *holder_; }
  SharedPtr<Implementation> const& Holder() const { return holder_; }

  // All handles are of one size, two words, and come from one slab.
  static void* operator new(std::size_t) { return Slab<kHandleSize>::Allocate(); }
  static void operator delete(void* memory) noexcept { Slab<kHandleSize>::Release(memory); }

 protected:
  // Calls on to the implementation, unless an object among the arguments is null: then its status, if it has one, tells
  // which, nothing is done, and the result is that of a failed operation.

  template <class Function, class... Arguments>
  void Do(HandleCall<Function> const& call, Arguments const&... arguments) {
    if (AreGiven(arguments...)) {
      call.function(Impl(), UnwrapArgument(arguments)...);
    } else {
      RecordNull(call, arguments...);
    }
  }

  // The number that the implementation gives, or `otherwise`.
  template <class Number, class Function, class... Arguments>
  Number Ask(Number otherwise, HandleCall<Function> const& call, Arguments const&... arguments) {
    if (AreGiven(arguments...)) return call.function(Impl(), UnwrapArgument(arguments)...);
    RecordNull(call, arguments...);
    return otherwise;
  }

  // A new handle, owned by the caller, on what the implementation gives. What blocks and arrays of numbers make carries
  // the failure too.
  template <class Result, class Function, class... Arguments>
  Result* Make(HandleCall<Function> const& call, Arguments const&... arguments) {
    using Value = std::decay_t<decltype(call.function(Impl(), UnwrapArgument(arguments)...))>;
    if (AreGiven(arguments...)) return WrapResult<Result>(call.function(Impl(), UnwrapArgument(arguments)...));
    std::string const text = RecordNull(call, arguments...);
    if constexpr (requires { Impl().GetStatus(); }) return WrapResult<Result>(FailedValue<Value>(text));
    return WrapResult<Result>(Value());
  }

 private:
  template <class... Arguments>
  static bool AreGiven(Arguments const&... arguments) {
    return (!IsNullObject(arguments) && ...);
  }

  template <class Function, class... Arguments>
  std::string RecordNull(HandleCall<Function> const& call, Arguments const&... arguments) {
    int place = 0;
    static_cast<void>(((++place, IsNullObject(arguments)) || ...));
    std::string text = NullText(call.name, call.arguments, place);
    if (Status* status = StatusOf(Impl())) SetStatus(*status, kInvalid, "%s", text.c_str());
    return text;
  }

  SharedPtr<Implementation> holder_;
};

}  // namespace Vorq
