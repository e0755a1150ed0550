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

#include <algorithm>
#include <cstddef>
#include <limits>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

#include "frame/huge_pages.hpp"
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

  // Block and elements in one allocation. The elements stand behind the block, and are made and destroyed one by one,
  // in ascending order, which the array forms of new and delete do not do.
  class alignas(std::max(alignof(T), alignof(SharedBlock))) ArrayBlock : public SharedBlock {
   public:
    static ArrayBlock* New(std::size_t elements) {
      if (elements > (std::numeric_limits<std::size_t>::max() - sizeof(ArrayBlock)) / sizeof(T)) {
        throw std::bad_array_new_length();
      }
      std::size_t const size = sizeof(ArrayBlock) + elements * sizeof(T);
      void* const memory = Allocate(size);
      AdviseHugePages(memory, size);
      return ::new (memory) ArrayBlock(elements);
    }
    // The elements must have been destroyed.
    static void Delete(ArrayBlock* block) noexcept {
      block->~ArrayBlock();
      if constexpr (kIsOverAligned) {
        ::operator delete(block, kAlignment);
      } else {
        ::operator delete(block);
      }
    }

    T* Elements() const { return static_cast<T*>(ptr); }

   private:
    static constexpr bool kIsOverAligned = alignof(T) > __STDCPP_DEFAULT_NEW_ALIGNMENT__;
    static constexpr std::align_val_t kAlignment{alignof(T)};

    explicit ArrayBlock(std::size_t elements) : SharedBlock(this + 1, elements) { form = SharedForm::kElements; }

    static void* Allocate(std::size_t size) {
      if constexpr (kIsOverAligned) {
        return ::operator new(size, kAlignment);
      } else {
        return ::operator new(size);
      }
    }
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
    if (block_ != nullptr) block_->Retain();
  }

  void Release() noexcept {
    if (block_ != nullptr && block_->Release()) Destroy();
  }

  [[gnu::noinline]] void Destroy() noexcept {
    T* object = static_cast<T*>(block_->ptr);
    if constexpr (kCanJoin) {
      if (block_->form == SharedForm::kJoined) {
        delete static_cast<Joined*>(block_);
        return;
      }
      if (block_->form == SharedForm::kElements) {
        std::destroy_n(object, block_->count);
        ArrayBlock::Delete(static_cast<ArrayBlock*>(block_));
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

  explicit SharedArrayBuilder(std::size_t count) : block_(count == 0 ? nullptr : ArrayBlock::New(count)) {}
  SharedArrayBuilder(SharedArrayBuilder const&) = delete;
  SharedArrayBuilder& operator=(SharedArrayBuilder const&) = delete;
  ~SharedArrayBuilder() {
    if (block_ == nullptr) return;
    std::destroy_n(block_->Elements(), made_);
    ArrayBlock::Delete(block_);
  }

  // Makes the next element; there must be one left to make.
  template <class... Args>
  T& Emplace(Args&&... args) {
    T* const element = ::new (static_cast<void*>(block_->Elements() + made_)) T(std::forward<Args>(args)...);
    ++made_;
    return *element;
  }

  // The array, a null holder for one of no elements. Elements that were not made are default ones.
  SharedPtr<T> Finish() {
    if (block_ != nullptr) {
      while (made_ < block_->count) Emplace();
    }
    SharedPtr<T> holder;
    holder.block_ = std::exchange(block_, nullptr);
    return holder;
  }

 private:
  using ArrayBlock = typename SharedPtr<T>::ArrayBlock;

  ArrayBlock* block_;
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
