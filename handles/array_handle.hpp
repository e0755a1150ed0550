// What all array handles are made of. Which operations an array has differs, and so does their order in its interface:
// each operation beyond the common ones is a base of its own.
#pragma once

#include <memory>
#include <vector>

#include "handles/handle.hpp"

namespace Vorq {

template <class Derived, class Interface, class ElementInterface, class Element>
class ArrayHandle : public Handle<Derived, Interface, std::vector<Element>> {
 public:
  using ElementInterface_t = ElementInterface;
  using Handle<Derived, Interface, std::vector<Element>>::Handle;

  void PushBack(ElementInterface const& element) override { this->Impl().push_back(Unwrap(element)); }
  int Size() override { return static_cast<int>(this->Impl().size()); }
  ElementInterface* Get(int i) override { return Wrap<ElementInterface>(ElementAt(this->Impl(), i)); }
};

template <class Base>
class WithReserve : public Base {
 public:
  using Base::Base;

  void Reserve(int n) override {
    if (n > 0) this->Impl().reserve(static_cast<std::size_t>(n));
  }
};

template <class Base>
class WithClear : public Base {
 public:
  using Base::Base;

  void Clear() override { this->Impl().clear(); }
};

template <class Base>
class WithToVector : public Base {
 public:
  using Base::Base;
  using ElementHandle = typename Base::ElementInterface_t;

  std::vector<ElementHandle*> ToVector() override {
    constexpr std::size_t kHeadRoom = 100;
    std::vector<std::unique_ptr<ElementHandle>> owned;
    owned.reserve(this->Impl().size());
    for (auto const& element : this->Impl()) owned.emplace_back(Wrap<ElementHandle>(element));

    std::vector<ElementHandle*> result;
    result.reserve(owned.size() + kHeadRoom);
    for (auto& handle : owned) result.push_back(handle.release());
    return result;
  }
};

// A chain of bases: each operation on top of those before it.
template <class Base, template <class> class... Operations>
struct Chain {
  using Type = Base;
};
template <class Base, template <class> class First, template <class> class... Rest>
struct Chain<Base, First, Rest...> : Chain<First<Base>, Rest...> {};

}  // namespace Vorq
