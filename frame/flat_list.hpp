// FlatList: a list that may become very long, such as one that has an entry for each column of a problem.
//
//     FlatList<double> lower;
//     lower.push_back(0.0);
//     std::span<double const> view = lower;
//
// It reads like a std::vector. Once it is large it lies in memory of its own, and grows without copying its elements,
// so that building a list touches each page once.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <initializer_list>
#include <iterator>
#include <limits>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

#include "frame/address_sanitizer.hpp"
#include "frame/mapped_memory.hpp"

namespace Vorq {

// Whether objects may change their place by a copy of their bytes, the source being forgotten. To be specialised for
// classes that know neither their own address nor are known by it.
template <class T>
struct IsRelocatable : std::is_trivially_copyable<T> {};

template <class T>
class FlatList {
 public:
  using value_type = T;
  using iterator = T*;
  using const_iterator = T const*;

  FlatList() = default;
  explicit FlatList(std::size_t count) { resize(count); }
  FlatList(std::initializer_list<T> values) { append(values.begin(), values.end()); }
  FlatList(FlatList const& other) {
    reserve(other.size_);
    append(other.begin(), other.end());
  }
  FlatList(FlatList&& other) noexcept { swap(other); }
  FlatList& operator=(FlatList other) noexcept {
    swap(other);
    return *this;
  }
  ~FlatList() {
    static_assert(IsRelocatable<T>::value);
    std::destroy_n(data_, size_);
    Release(data_, bytes_);
  }

  void swap(FlatList& other) noexcept {
    std::swap(data_, other.data_);
    std::swap(size_, other.size_);
    std::swap(bytes_, other.bytes_);
  }

  std::size_t size() const { return size_; }
  std::size_t capacity() const { return bytes_ / sizeof(T); }
  bool empty() const { return size_ == 0; }
  T* data() { return data_; }
  T const* data() const { return data_; }
  T* begin() { return data_; }
  T* end() { return data_ + size_; }
  T const* begin() const { return data_; }
  T const* end() const { return data_ + size_; }
  T& operator[](std::size_t i) { return data_[i]; }
  T const& operator[](std::size_t i) const { return data_[i]; }
  T& back() { return data_[size_ - 1]; }
  T const& back() const { return data_[size_ - 1]; }

  friend bool operator==(FlatList const& a, FlatList const& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end());
  }

  // Room for `count` elements in all, and no more than that where the list is short.
  void reserve(std::size_t count) {
    if (count > capacity()) Grow(count);
  }

  // Room for `more` elements; appending them then takes no memory. Appending many times costs amortised constant time
  // for each.
  void reserve_more(std::size_t more) {
    if (more > capacity() - size_) [[unlikely]]
      GrowFurther(size_ + more);
  }

  template <class... Arguments>
  T& emplace_back(Arguments&&... arguments) {
    reserve_more(1);
    T* const made = ::new (static_cast<void*>(data_ + size_)) T(std::forward<Arguments>(arguments)...);
    ++size_;
    return *made;
  }
  // `value` must not be an element of the list.
  void push_back(T const& value) { emplace_back(value); }
  void pop_back() { std::destroy_at(data_ + --size_); }

  // Appends a range of elements of another list.
  template <std::input_iterator Iterator>
  void append(Iterator first, Iterator last) {
    reserve_more(static_cast<std::size_t>(std::distance(first, last)));
    T* const end = std::uninitialized_copy(first, last, data_ + size_);
    size_ = static_cast<std::size_t>(end - data_);
  }

  // New elements are copies of `value`, by default zero for numbers; `value` must not be an element of the list.
  void resize(std::size_t count, T const& value = T()) {
    if (count < size_) return Truncate(count);
    reserve_more(count - size_);
    std::uninitialized_fill_n(data_ + size_, count - size_, value);
    size_ = count;
  }

  // The elements are the given ones instead, which must not be the list's own.
  void assign(std::size_t count, T const& value) {
    clear();
    resize(count, value);
  }
  template <std::input_iterator Iterator>
  void assign(Iterator first, Iterator last) {
    clear();
    append(first, last);
  }

  void clear() { Truncate(0); }

 private:
  static constexpr std::size_t kLargest = std::numeric_limits<std::ptrdiff_t>::max() / sizeof(T);

  static bool IsMapped(std::size_t bytes) { return !kIsAddressSanitized && bytes >= kHugePageSize; }

  static void Release(void* memory, std::size_t bytes) noexcept {
    if (IsMapped(bytes)) {
      MappedMemory::Release(memory, bytes);
    } else {
      ::operator delete(memory);
    }
  }

  void Truncate(std::size_t count) {
    std::destroy(data_ + count, data_ + size_);
    size_ = count;
  }

  // A short list grows in few steps, since it is copied; what a long one has no use for yet takes no memory.
  [[gnu::noinline]] void GrowFurther(std::size_t needed) {
    std::size_t const room = capacity();
    Grow(std::max(needed, IsMapped(bytes_) ? room + room / 2 : 4 * room));
  }

  void Grow(std::size_t wanted) {
    if (wanted > kLargest) throw std::bad_array_new_length();
    std::size_t bytes = wanted * sizeof(T);
    void* grown = nullptr;
    if (IsMapped(bytes)) {
      bytes = MappedMemory::RoundUp(bytes);
      grown = IsMapped(bytes_) ? MappedMemory::Grow(data_, bytes_, bytes) : Moved(MappedMemory::Allocate(bytes));
    } else {
      grown = Moved(::operator new(bytes));
    }
    data_ = static_cast<T*>(grown);
    bytes_ = bytes;
  }

  // The elements in their new place; so far the list was short.
  void* Moved(void* place) {
    if (size_ > 0) std::memcpy(place, static_cast<void const*>(data_), size_ * sizeof(T));
    ::operator delete(data_);
    return place;
  }

  T* data_ = nullptr;
  std::size_t size_ = 0;
  std::size_t bytes_ = 0;
};

}  // namespace Vorq
