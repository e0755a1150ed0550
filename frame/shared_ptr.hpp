// SharedPtr: the reference-counted holder of single objects, owned arrays and borrowed memory.
//
//     SharedPtr<ItemRec> record = MakeShared<ItemRec>(prob, "x", 0);   // one allocation for block and object
//     SharedPtr<double> owned(new double[n], n);                       // an owned array
//     SharedPtr<Cell> cells = MakeSharedArray<Cell>(n);                // the same, destroyed in ascending order
//     SharedArrayBuilder<Cell> builder(n);                             // the same, each element made in its place
//     for (Var const& var : vars) builder.Emplace(var, 1.0);
//     SharedPtr<Cell> terms = builder.Finish();
//     SharedPtr<double> borrowed(callersMemory, 0);                    // not owned
//
// Counting is atomic, so holders may be copied and released by several threads at once; nothing else is guarded.
#pragma once

#include <cstddef>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

#include "frame/shared_block.hpp"
#include "frame/slab.hpp"

namespace Vorq {

template <class T>
class SharedPtr {
 public:
  SharedPtr() = default;

  // Takes over `object`, an array of `count` elements made with the array form of new when `count` is above 1 or T has
  // no destructor of its own. A null pointer gives a null holder.
  explicit SharedPtr(T* object, std::size_t count = 1) {
    if (object == nullptr) return;
    std::unique_ptr<T, void (*)(T*)> guard(object, count == 0 ? KeepObject : count == 1 ? DeleteObject : DeleteArray);
    block_ = new SharedBlock(const_cast<std::remove_const_t<T>*>(object), count);
    static_cast<void>(guard.release());
  }

  SharedPtr(SharedPtr const& other) noexcept : block_(other.block_) { Retain(); }
  SharedPtr(SharedPtr&& other) noexcept : block_(std::exchange(other.block_, nullptr)) {}

  SharedPtr& operator=(SharedPtr const& other) noexcept {
    if (this != &other) {
      SharedPtr(other).Swap(*this);
    }
    return *this;
  }

  SharedPtr& operator=(SharedPtr&& other) noexcept {
    SharedPtr(std::move(other)).Swap(*this);
    return *this;
  }

  ~SharedPtr() { Release(); }

  void Swap(SharedPtr& other) noexcept { std::swap(block_, other.block_); }

  T* Get() const { return block_ == nullptr ? nullptr : static_cast<T*>(block_->ptr); }
  T& operator*() const { return *static_cast<T*>(block_->ptr); }
  T* operator->() const { return static_cast<T*>(block_->ptr); }
  T& operator[](std::size_t i) const { return static_cast<T*>(block_->ptr)[i]; }
  explicit operator bool() const { return block_ != nullptr; }

  // Two holders are equal when they share one block.
  friend bool operator==(SharedPtr const& a, SharedPtr const& b) { return a.block_ == b.block_; }

  SharedBlock const* Block() const { return block_; }

 private:
  template <class U, class... Args>
  friend SharedPtr<U> MakeShared(Args&&... args);
  template <class U>
  friend SharedPtr<U> MakeSharedArray(std::size_t count);
  template <class U>
  friend class SharedArrayBuilder;

  // Block and object in one allocation.
  struct Joined : SharedBlock {
    template <class... Args>
    explicit Joined(Args&&... args) : SharedBlock(nullptr, 1), object(std::forward<Args>(args)...) {
      ptr = &object;
      form = SharedForm::kJoined;
    }

    static void* operator new(std::size_t size) {
      if constexpr (IsPooled()) return Slab<sizeof(Joined)>::Allocate();
      return ::operator new (size, std::align_val_t{alignof(Joined)});
    }
    static void operator delete(void* memory) noexcept {
      if constexpr (IsPooled()) return Slab<sizeof(Joined)>::Release(memory);
      ::operator delete (memory, std::align_val_t{alignof(Joined)});
    }
    static constexpr bool IsPooled() {
      using Pool = Slab<sizeof(Joined)>;
      return sizeof(Joined) <= Pool::kLargest && alignof(Joined) <= Pool::kAlignment;
    }

    T object;
  };

  // Room for an element. The array form of delete on slots runs no destructor, so that elements in slots can be
  // destroyed in ascending order, which the array form on elements does not do.
  struct Slot {
    alignas(T) std::byte room[sizeof(T)];
  };

  static void KeepObject(T*) {}
  static void DeleteObject(T* object) {
    // Elements without a destructor are always made in the array form, also a single one.
    if constexpr (std::is_trivially_destructible_v<T>) {
      delete[] object;
    } else {
      delete object;
    }
  }
  static void DeleteArray(T* objects) { delete[] objects; }

  static constexpr bool kCanJoin = std::is_class_v<T> && !std::is_abstract_v<T> && !std::is_trivially_destructible_v<T>;

  void Retain() const noexcept {
    if (block_ != nullptr) block_->refs.fetch_add(1);
  }

  void Release() noexcept {
    if (block_ != nullptr && block_->refs.fetch_sub(1) == 1) Destroy();
  }

  [[gnu::noinline]] void Destroy() noexcept {
    T* object = static_cast<T*>(block_->ptr);
    if constexpr (kCanJoin) {
      if (block_->form == SharedForm::kJoined) {
        delete static_cast<Joined*>(block_);
        return;
      }
      if (block_->form == SharedForm::kSlots) {
        std::destroy_n(object, block_->count);
        delete[] reinterpret_cast<Slot*>(object);
        delete block_;
        return;
      }
    }
    if (block_->count == 1) {
      DeleteObject(object);
    } else if (block_->count > 1) {
      DeleteArray(object);
    }
    delete block_;
  }

  SharedBlock* block_ = nullptr;
};

// Makes an object and its block together.
template <class T, class... Args>
SharedPtr<T> MakeShared(Args&&... args) {
  static_assert(SharedPtr<T>::kCanJoin);
  SharedPtr<T> holder;
  holder.block_ = new typename SharedPtr<T>::Joined(std::forward<Args>(args)...);
  return holder;
}

// Makes an owned array of `count` elements one by one, each where it stays. What was made is destroyed with the builder
// when it does not come to the end.
template <class T>
class SharedArrayBuilder {
 public:
  static_assert(SharedPtr<T>::kCanJoin);

  explicit SharedArrayBuilder(std::size_t count) : slots_(count == 0 ? nullptr : new Slot[count]), count_(count) {}
  SharedArrayBuilder(SharedArrayBuilder const&) = delete;
  SharedArrayBuilder& operator=(SharedArrayBuilder const&) = delete;
  ~SharedArrayBuilder() { std::destroy_n(Elements(), made_); }

  // Makes the next element; there must be one left to make.
  template <class... Args>
  T& Emplace(Args&&... args) {
    T* const element = ::new (static_cast<void*>(slots_[made_].room)) T(std::forward<Args>(args)...);
    ++made_;
    return *element;
  }

  // The array, a null holder for one of no elements. Elements that were not made are default ones.
  SharedPtr<T> Finish() {
    SharedPtr<T> holder;
    if (count_ == 0) return holder;
    auto block = std::make_unique<SharedBlock>(Elements(), count_);
    block->form = SharedForm::kSlots;
    while (made_ < count_) Emplace();
    static_cast<void>(slots_.release());
    made_ = count_ = 0;
    holder.block_ = block.release();
    return holder;
  }

 private:
  using Slot = typename SharedPtr<T>::Slot;

  T* Elements() const { return reinterpret_cast<T*>(slots_.get()); }

  std::unique_ptr<Slot[]> slots_;
  std::size_t count_;
  std::size_t made_ = 0;
};

// Makes `count` default elements, numbers left unset; a null holder for none.
template <class T>
SharedPtr<T> MakeSharedArray(std::size_t count) {
  if (count == 0) return {};
  if constexpr (!SharedPtr<T>::kCanJoin) {
    return SharedPtr<T>(new T[count], count);
  } else {
    if (count == 1) return MakeShared<T>();
    return SharedArrayBuilder<T>(count).Finish();
  }
}

}  // namespace Vorq
