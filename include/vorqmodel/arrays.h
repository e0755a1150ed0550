// Ordered lists of items and builders, to pass many at once.
//
// All have the same operations, in numbers and orders of slots that differ:
//   PushBack  appends a copy of the element: an item keeps standing for the same thing of its model, a column or a
//             builder becomes independent
//   Size      the number of elements; removed items count
//   Get       element i, a new handle owned by the caller; one that stands for nothing where there is none
//   ToVector  all elements in order, new handles owned by the caller
//   Reserve   makes room for n elements in all; never shrinks
//   Clear     removes all elements
// None of them can fail.
#ifndef VORQMODEL_ARRAYS_H
#define VORQMODEL_ARRAYS_H

#include <vector>

#include "vorqmodel/forward.h"

namespace Vorq {

class IVarArray {
 public:
  virtual ~IVarArray() = default;

  virtual void PushBack(IVar const& element) = 0;
  virtual int Size() = 0;
  virtual IVar* Get(int i) = 0;
  virtual std::vector<IVar*> ToVector() = 0;
  virtual void Reserve(int n) = 0;
};

class IConstrArray {
 public:
  virtual ~IConstrArray() = default;

  virtual void PushBack(IConstraint const& element) = 0;
  virtual int Size() = 0;
  virtual IConstraint* Get(int i) = 0;
  virtual std::vector<IConstraint*> ToVector() = 0;
  virtual void Reserve(int n) = 0;
};

class IColumnArray {
 public:
  virtual ~IColumnArray() = default;

  virtual void PushBack(IColumn const& element) = 0;
  virtual int Size() = 0;
  virtual IColumn* Get(int i) = 0;
  virtual void Reserve(int n) = 0;
  virtual void Clear() = 0;
};

class ISosArray {
 public:
  virtual ~ISosArray() = default;

  virtual void PushBack(ISos const& element) = 0;
  virtual int Size() = 0;
  virtual ISos* Get(int i) = 0;
};

class IGenConstrArray {
 public:
  virtual ~IGenConstrArray() = default;

  virtual void PushBack(IGenConstr const& element) = 0;
  virtual int Size() = 0;
  virtual std::vector<IGenConstr*> ToVector() = 0;
  virtual IGenConstr* Get(int i) = 0;
  virtual void Reserve(int n) = 0;
};

class IConeArray {
 public:
  virtual ~IConeArray() = default;

  virtual void PushBack(ICone const& element) = 0;
  virtual int Size() = 0;
  virtual ICone* Get(int i) = 0;
};

class IExpConeArray {
 public:
  virtual ~IExpConeArray() = default;

  virtual void PushBack(IExpCone const& element) = 0;
  virtual int Size() = 0;
  virtual IExpCone* Get(int i) = 0;
};

class IAffineConeArray {
 public:
  virtual ~IAffineConeArray() = default;

  virtual void PushBack(IAffineCone const& element) = 0;
  virtual void Reserve(int n) = 0;
  virtual int Size() = 0;
  virtual IAffineCone* Get(int i) = 0;
  virtual std::vector<IAffineCone*> ToVector() = 0;
};

class IQConstrArray {
 public:
  virtual ~IQConstrArray() = default;

  virtual void PushBack(IQConstraint const& element) = 0;
  virtual int Size() = 0;
  virtual void Reserve(int n) = 0;
  virtual IQConstraint* Get(int i) = 0;
};

class IPsdVarArray {
 public:
  virtual ~IPsdVarArray() = default;

  virtual void PushBack(IPsdVar const& element) = 0;
  virtual int Size() = 0;
  virtual void Reserve(int n) = 0;
  virtual std::vector<IPsdVar*> ToVector() = 0;
  virtual IPsdVar* Get(int i) = 0;
};

class IPsdConstrArray {
 public:
  virtual ~IPsdConstrArray() = default;

  virtual void PushBack(IPsdConstraint const& element) = 0;
  virtual int Size() = 0;
  virtual void Reserve(int n) = 0;
  virtual IPsdConstraint* Get(int i) = 0;
};

class ILmiConstrArray {
 public:
  virtual ~ILmiConstrArray() = default;

  virtual void PushBack(ILmiConstraint const& element) = 0;
  virtual int Size() = 0;
  virtual void Reserve(int n) = 0;
  virtual ILmiConstraint* Get(int i) = 0;
};

class ISymMatrixArray {
 public:
  virtual ~ISymMatrixArray() = default;

  virtual void PushBack(ISymMatrix const& element) = 0;
  virtual int Size() = 0;
  virtual void Reserve(int n) = 0;
  virtual ISymMatrix* Get(int i) = 0;
};

class IConstrBuilderArray {
 public:
  virtual ~IConstrBuilderArray() = default;

  virtual void PushBack(IConstrBuilder const& element) = 0;
  virtual int Size() = 0;
  virtual void Reserve(int n) = 0;
  virtual IConstrBuilder* Get(int i) = 0;
};

class IQConstrBuilderArray {
 public:
  virtual ~IQConstrBuilderArray() = default;

  virtual void PushBack(IQConstrBuilder const& element) = 0;
  virtual int Size() = 0;
  virtual void Reserve(int n) = 0;
  virtual IQConstrBuilder* Get(int i) = 0;
};

class IPsdConstrBuilderArray {
 public:
  virtual ~IPsdConstrBuilderArray() = default;

  virtual void PushBack(IPsdConstrBuilder const& element) = 0;
  virtual int Size() = 0;
  virtual void Reserve(int n) = 0;
  virtual IPsdConstrBuilder* Get(int i) = 0;
};

class ISosBuilderArray {
 public:
  virtual ~ISosBuilderArray() = default;

  virtual void PushBack(ISosBuilder const& element) = 0;
  virtual int Size() = 0;
  virtual ISosBuilder* Get(int i) = 0;
};

class IGenConstrBuilderArray {
 public:
  virtual ~IGenConstrBuilderArray() = default;

  virtual void PushBack(IGenConstrBuilder const& element) = 0;
  virtual int Size() = 0;
  virtual IGenConstrBuilder* Get(int i) = 0;
};

class IConeBuilderArray {
 public:
  virtual ~IConeBuilderArray() = default;

  virtual void PushBack(IConeBuilder const& element) = 0;
  virtual int Size() = 0;
  virtual IConeBuilder* Get(int i) = 0;
};

class IExpConeBuilderArray {
 public:
  virtual ~IExpConeBuilderArray() = default;

  virtual void PushBack(IExpConeBuilder const& element) = 0;
  virtual int Size() = 0;
  virtual IExpConeBuilder* Get(int i) = 0;
};

class IAffineConeBuilderArray {
 public:
  virtual ~IAffineConeBuilderArray() = default;

  virtual void PushBack(IAffineConeBuilder const& element) = 0;
  virtual int Size() = 0;
  virtual IAffineConeBuilder* Get(int i) = 0;
};

}  // namespace Vorq

#endif
