// Handle: what every concrete class of the library is made of: one interface, one holder of an implementation object.
//
// A handle's operations are one line each: unwrap the arguments, call the implementation, wrap the result.
//
//     class VorqExpr final : public Vorq::Handle<VorqExpr, Vorq::IExpr, Vorq::Expr> { ... };
//     template <> struct Vorq::HandleTraits<Vorq::IExpr> { using Handle = VorqExpr; };
//
//     Vorq::IExpr* Clone() override { return Vorq::Wrap<Vorq::IExpr>(Impl()); }
//     void AddExpr(Vorq::IExpr* other, double mult) override { Impl().AddExpr(Vorq::Unwrap(other), mult); }
#pragma once

#include <cstddef>
#include <utility>

#include "frame/shared_ptr.hpp"
#include "frame/slab.hpp"

namespace Vorq {

// Ties an interface to the handle class that implements it.
template <class Interface>
struct HandleTraits;

// The virtual table and the holder.
inline constexpr std::size_t kHandleSize = 2 * sizeof(void*);

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

 private:
  SharedPtr<Implementation> holder_;
};

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

// A new handle, owned by the caller, on a new implementation object made from `arguments`.
template <class Interface, class... Arguments>
Interface* Wrap(Arguments&&... arguments) {
  using HandleClass = typename HandleTraits<Interface>::Handle;
  static_assert(sizeof(HandleClass) == kHandleSize);
  return new HandleClass(MakeShared<typename HandleClass::Impl_t>(std::forward<Arguments>(arguments)...));
}

}  // namespace Vorq
