// The base of tests of the handles on cells, blocks and builders.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "handles/matrix_builders.hpp"
#include "tests/matrix/matrix_fixture.hpp"

namespace vorqtest {

template <class T>
std::unique_ptr<T> Own(T* object) {
  return std::unique_ptr<T>(object);
}

class MatrixHandleTest : public MatrixTest {
 protected:
  template <int N>
  static std::unique_ptr<Vorq::INDim<N>> Shape(Sizes<N> const& sizes) {
    return Own(Vorq::Wrap<Vorq::INDim<N>>(sizes));
  }
  template <class T, int N>
  static std::unique_ptr<Vorq::INdArray<T, N>> Array(Sizes<N> const& sizes, std::vector<T> const& values) {
    return Own(Vorq::WrapArray(
        Vorq::NdArray<T, N>::Generated(Vorq::NDim<N>(sizes), [&](std::uint64_t i) { return values[i]; })));
  }
  template <class Cell, int N>
  static auto Block(Vorq::MatrixObject<Cell, N> block) {
    return Own(Vorq::WrapBlock(std::move(block)));
  }
  template <class Interface, class... Arguments>
  static std::unique_ptr<Interface> Make(Arguments&&... arguments) {
    return Own(Vorq::Wrap<Interface>(std::forward<Arguments>(arguments)...));
  }
  std::unique_ptr<Vorq::IVar> VarHandle(char const* name, int idx) const {
    return Make<Vorq::IVar>(MakeVar(name, idx));
  }

  // The text of an owned object.
  template <class T>
  static std::string Text(T* object) {
    return Own(object)->ToString(1000);
  }
  // The elements of an owned array as one text.
  template <class T, int N>
  static std::string Text(Vorq::INdArray<T, N>* array) {
    return Own(array)->ToString(1000);
  }
};

}  // namespace vorqtest
