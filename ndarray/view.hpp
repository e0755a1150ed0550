// Views: ordered lists of index operations, the first for axis 0, the next for axis 1, and so on.
//
//     View view;
//     view.Scalar(1);                 // the second position, as an axis of size 1
//     view.Slice(4, 0, -2, 0);        // positions 4 and 2
//     shape.Apply(view);
#pragma once

#include <cstdint>
#include <vector>

#include "frame/shared_ptr.hpp"

namespace Vorq {

struct Axis;

// An index operation, told from the others by its name. Only the kinds below are made; the class is not abstract in the
// language's sense, because a SharedPtr needs a type that can stand by itself.
class Indexing {
 public:
  virtual ~Indexing() = default;

  virtual char const* GetName() const { return "Indexing"; }

 protected:
  Indexing() = default;
};

// The whole axis.
class Full final : public Indexing {
 public:
  char const* GetName() const override { return "Full"; }
};

// Every step-th position from start up to stop, which is not reached. Negative positions count from the end.
class Slice final : public Indexing {
 public:
  // Marks of what the caller left out. A marked field's value is not used.
  enum Omitted : int { kStepOmitted = 1, kStopOmitted = 2, kStartOmitted = 4 };

  Slice(std::int64_t first, std::int64_t last, std::int64_t by, int omitted)
      : start(first), stop(last), step(by), flags(omitted) {}

  char const* GetName() const override { return "Slice"; }

  std::int64_t start;
  std::int64_t stop;
  std::int64_t step;
  int flags;
};

// One position. The axis stays, with size 1.
class Scalar final : public Indexing {
 public:
  explicit Scalar(std::int64_t position) : index(position) {}

  char const* GetName() const override { return "Scalar"; }

  std::int64_t index;
};

class View {
 public:
  // Each appends an operation to this view, and gives a copy of it as it then is: both hold the new operation.
  View Full() { return Append(new Vorq::Full); }
  View Scalar(std::int64_t index) { return Append(new Vorq::Scalar(index)); }
  View Slice(std::int64_t start, std::int64_t stop, std::int64_t step, int flags) {
    return Append(new Vorq::Slice(start, stop, step, flags));
  }

  std::vector<SharedPtr<Indexing>> const& Operations() const { return operations_; }

 private:
  View Append(Indexing* operation);

  std::vector<SharedPtr<Indexing>> operations_;
};

// Position `index` of an axis of size `size`, negative ones counted from the end. Nothing is refused: what lies beyond
// the end is held at `size`, what lies before the start becomes -1.
std::int64_t NormalizeIndex(std::int64_t index, std::uint64_t size);

// The axis as `operation` sees it.
Axis ApplyToAxis(Indexing const& operation, Axis const& axis);

}  // namespace Vorq
