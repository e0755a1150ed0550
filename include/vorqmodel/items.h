// Handles on the items of a model: variables, constraints of all kinds, cones.
//
// An item knows the position that it has in the model at the moment (GetIdx): 0 or above while it is live, -2 for the
// result of a failed operation, -3 or below once removed. Items outlive their model.
#ifndef VORQMODEL_ITEMS_H
#define VORQMODEL_ITEMS_H

#include "vorqmodel/forward.h"

namespace Vorq {

class IVar {
 public:
  virtual ~IVar() = default;

  // The position in the model: 0 or above while live, -2 for the result of a failed operation, -3 - position once
  // removed.
  virtual int GetIdx() = 0;
  // The name, fetched from the solver at first use; valid until it changes. Never fails: an item without a name, and
  // one that was removed before its name was read, has the empty name.
  virtual char const* GetName() = 0;
  // The solver takes the name as written; GetName gives it without outer white space and with '_' for blanks. Null
  // changes nothing. Fails with code 3 on an item that is not live, otherwise with the solver's code.
  virtual void SetName(char const* name) = 0;
  // 'C' continuous, 'B' binary, 'I' integer, and so on; 0 on an item that is not live. Never reports a failure.
  virtual char GetType() = 0;
  // Fails with code 3 on an item that is not live, otherwise with the solver's code.
  virtual void SetType(char type) = 0;
  // The basis status; -2147483648 on failure.
  virtual int GetBasis() = 0;
  // 1 if the lower bound belongs to the computed irreducible infeasible subsystem; 0 otherwise and on failure.
  virtual int GetLowerIIS() = 0;
  // The same for the upper bound.
  virtual int GetUpperIIS() = 0;
  // One number by the name of an information, as listed for the model. -2147483648 on failure: code 3 on an item that
  // is not live, otherwise the solver's code.
  virtual double Get(char const* name) = 0;
  // Sets "LB", "UB" or "Obj", in any case of letters. Fails with code 3 for a null, empty or unknown name and on an
  // item that is not live, otherwise with the solver's code.
  virtual void Set(char const* name, double value) = 0;
  // Marks the item as removed. The solver hears of it at the next operation of the model that needs it. A second
  // removal, or that of an invalid item, does nothing.
  virtual void Remove() = 0;
  // The code of the last operation of this object, 0 for success.
  virtual int GetLastError() = 0;
  // The text of the last failure of this object, null before the first one; valid until the next failure.
  virtual char const* GetErrorMessage() = 0;
};

class IConstraint {
 public:
  virtual ~IConstraint() = default;

  // The position in the model: 0 or above while live, -2 for the result of a failed operation, -3 - position once
  // removed.
  virtual int GetIdx() = 0;
  // The name, fetched from the solver at first use; valid until it changes. Never fails: an item without a name, and
  // one that was removed before its name was read, has the empty name.
  virtual char const* GetName() = 0;
  // The solver takes the name as written; GetName gives it without outer white space and with '_' for blanks. Null
  // changes nothing. Fails with code 3 on an item that is not live, otherwise with the solver's code.
  virtual void SetName(char const* name) = 0;
  // The basis status; -2147483648 on failure.
  virtual int GetBasis() = 0;
  // 1 if the lower bound belongs to the computed irreducible infeasible subsystem; 0 otherwise and on failure.
  virtual int GetLowerIIS() = 0;
  // The same for the upper bound.
  virtual int GetUpperIIS() = 0;
  // One number by the name of an information, as listed for the model. -2147483648 on failure: code 3 on an item that
  // is not live, otherwise the solver's code.
  virtual double Get(char const* name) = 0;
  // Sets "LB" or "UB", in any case of letters. Fails with code 3 for a null, empty or unknown name and on an item that
  // is not live, otherwise with the solver's code.
  virtual void Set(char const* name, double value) = 0;
  // Marks the item as removed. The solver hears of it at the next operation of the model that needs it. A second
  // removal, or that of an invalid item, does nothing.
  virtual void Remove() = 0;
  // The code of the last operation of this object, 0 for success.
  virtual int GetLastError() = 0;
  // The text of the last failure of this object, null before the first one; valid until the next failure.
  virtual char const* GetErrorMessage() = 0;
};

class IQConstraint {
 public:
  virtual ~IQConstraint() = default;

  // The position in the model: 0 or above while live, -2 for the result of a failed operation, -3 - position once
  // removed.
  virtual int GetIdx() = 0;
  // The name, fetched from the solver at first use; valid until it changes. Never fails: an item without a name, and
  // one that was removed before its name was read, has the empty name.
  virtual char const* GetName() = 0;
  // The solver takes the name as written; GetName gives it without outer white space and with '_' for blanks. Null
  // changes nothing. Fails with code 3 on an item that is not live, otherwise with the solver's code.
  virtual void SetName(char const* name) = 0;
  // The right side; 0 on failure.
  virtual double GetRhs() = 0;
  // 'E', 'G' or 'L'; 0 on failure.
  virtual char GetSense() = 0;
  // Fails with code 3 on an item that is not live, otherwise with the solver's code.
  virtual void SetRhs(double rhs) = 0;
  // Fails as SetRhs does.
  virtual void SetSense(char sense) = 0;
  // One number by the name of an information, as listed for the model. -2147483648 on failure: code 3 on an item that
  // is not live, otherwise the solver's code.
  virtual double Get(char const* name) = 0;
  // There is nothing that can be set by name: always fails with code 3.
  virtual void Set(char const* name, double value) = 0;
  // Marks the item as removed. The solver hears of it at the next operation of the model that needs it. A second
  // removal, or that of an invalid item, does nothing.
  virtual void Remove() = 0;
  // The code of the last operation of this object, 0 for success.
  virtual int GetLastError() = 0;
  // The text of the last failure of this object, null before the first one; valid until the next failure.
  virtual char const* GetErrorMessage() = 0;
};

class IPsdVar {
 public:
  virtual ~IPsdVar() = default;

  // The position in the model: 0 or above while live, -2 for the result of a failed operation, -3 - position once
  // removed.
  virtual int GetIdx() = 0;
  // The dimension of the square matrix.
  virtual int GetDim() = 0;
  // The number of its entries, the dimension squared.
  virtual int GetLen() = 0;
  // The same as GetLen.
  virtual int GetSize() = 0;
  // The name, fetched from the solver at first use; valid until it changes. Never fails: an item without a name, and
  // one that was removed before its name was read, has the empty name.
  virtual char const* GetName() = 0;
  // The solver takes the name as written; GetName gives it without outer white space and with '_' for blanks. Null
  // changes nothing. Fails with code 3 on an item that is not live, otherwise with the solver's code.
  virtual void SetName(char const* name) = 0;
  // Writes the full matrix of an information, row by row, GetLen() numbers, to `out`, which has room for `size`. Fails
  // with code 3 on an item that is not live and if `size` is too small, otherwise with the solver's code.
  virtual void GetInfo(char const* name, double* out, int size) = 0;
  // The matrix of an information, GetDim() by GetDim(). The caller owns the result.
  virtual INdArray<double, 2>* Get(char const* name) = 0;
  // Entries of the matrix as expressions, owned by the caller: a diagonal, above the main one for a positive offset;
  // those of a view; those at positions counted row by row; those at the coordinates that the rows of an array tell,
  // negative ones counted from the end; their sum; all of them. What lies outside the matrix, and a null argument, is
  // code 3, in the status of the result too, which is then of one cell.
  virtual IMPsdExpr<1>* Diagonal(int offset) = 0;
  virtual IMPsdExpr<2>* Pick(IView* view) = 0;
  virtual IMPsdExpr<1>* Pick(INdArray<int, 1>* indices) = 0;
  virtual IMPsdExpr<1>* Pick(INdArray<int, 2>* coords) = 0;
  virtual IPsdExpr* Sum() = 0;
  virtual IMPsdExpr<2>* ToMPsdExpr() = 0;
  // Marks the item as removed. The solver hears of it at the next operation of the model that needs it. A second
  // removal, or that of an invalid item, does nothing.
  virtual void Remove() = 0;
  // The code of the last operation of this object, 0 for success.
  virtual int GetLastError() = 0;
  // The text of the last failure of this object, null before the first one; valid until the next failure.
  virtual char const* GetErrorMessage() = 0;
};

class IPsdConstraint {
 public:
  virtual ~IPsdConstraint() = default;

  // The position in the model: 0 or above while live, -2 for the result of a failed operation, -3 - position once
  // removed.
  virtual int GetIdx() = 0;
  // The name, fetched from the solver at first use; valid until it changes. Never fails: an item without a name, and
  // one that was removed before its name was read, has the empty name.
  virtual char const* GetName() = 0;
  // The solver takes the name as written; GetName gives it without outer white space and with '_' for blanks. Null
  // changes nothing. Fails with code 3 on an item that is not live, otherwise with the solver's code.
  virtual void SetName(char const* name) = 0;
  // One number by the name of an information, as listed for the model. -2147483648 on failure: code 3 on an item that
  // is not live, otherwise the solver's code.
  virtual double Get(char const* name) = 0;
  // Sets "LB" or "UB", in any case of letters. Fails with code 3 for a null, empty or unknown name and on an item that
  // is not live, otherwise with the solver's code.
  virtual void Set(char const* name, double value) = 0;
  // Marks the item as removed. The solver hears of it at the next operation of the model that needs it. A second
  // removal, or that of an invalid item, does nothing.
  virtual void Remove() = 0;
  // The code of the last operation of this object, 0 for success.
  virtual int GetLastError() = 0;
  // The text of the last failure of this object, null before the first one; valid until the next failure.
  virtual char const* GetErrorMessage() = 0;
};

class ILmiConstraint {
 public:
  virtual ~ILmiConstraint() = default;

  // The position in the model: 0 or above while live, -2 for the result of a failed operation, -3 - position once
  // removed.
  virtual int GetIdx() = 0;
  // The dimension of the matrices.
  virtual int GetDim() = 0;
  // The dimension squared.
  virtual int GetLen() = 0;
  // The name, fetched from the solver at first use; valid until it changes. Never fails: an item without a name, and
  // one that was removed before its name was read, has the empty name.
  virtual char const* GetName() = 0;
  // The solver takes the name as written; GetName gives it without outer white space and with '_' for blanks. Null
  // changes nothing. Fails with code 3 on an item that is not live, otherwise with the solver's code.
  virtual void SetName(char const* name) = 0;
  // Writes the full matrix of an information, row by row, GetLen() numbers, to `out`, which has room for `size`. Fails
  // with code 3 on an item that is not live and if `size` is too small, otherwise with the solver's code.
  virtual void GetInfo(char const* name, double* out, int size) = 0;
  // Sets the constant matrix, a registered one of dimension GetDim(). Fails with code 3 otherwise, on an item that is
  // not live, and while an earlier failure of this object stands; else with the solver's code.
  virtual void SetRhs(ISymMatrix* matrix) = 0;
  // Marks the item as removed. The solver hears of it at the next operation of the model that needs it. A second
  // removal, or that of an invalid item, does nothing.
  virtual void Remove() = 0;
  // The code of the last operation of this object, 0 for success.
  virtual int GetLastError() = 0;
  // The text of the last failure of this object, null before the first one; valid until the next failure.
  virtual char const* GetErrorMessage() = 0;
};

class IGenConstr {
 public:
  virtual ~IGenConstr() = default;

  // The position in the model: 0 or above while live, -2 for the result of a failed operation, -3 - position once
  // removed.
  virtual int GetIdx() = 0;
  // The name, fetched from the solver at first use; valid until it changes. Never fails: an item without a name, and
  // one that was removed before its name was read, has the empty name.
  virtual char const* GetName() = 0;
  // The solver takes the name as written; GetName gives it without outer white space and with '_' for blanks. Null
  // changes nothing. Fails with code 3 on an item that is not live, otherwise with the solver's code.
  virtual void SetName(char const* name) = 0;
  // 1 if the constraint belongs to the computed irreducible infeasible subsystem; 0 otherwise and on failure.
  virtual int GetIIS() = 0;
  // Marks the item as removed. The solver hears of it at the next operation of the model that needs it. A second
  // removal, or that of an invalid item, does nothing.
  virtual void Remove() = 0;
  // The code of the last operation of this object, 0 for success.
  virtual int GetLastError() = 0;
  // The text of the last failure of this object, null before the first one; valid until the next failure.
  virtual char const* GetErrorMessage() = 0;
};

class ISos {
 public:
  virtual ~ISos() = default;

  // The position in the model: 0 or above while live, -2 for the result of a failed operation, -3 - position once
  // removed.
  virtual int GetIdx() = 0;
  // 1 if the set belongs to the computed irreducible infeasible subsystem; 0 otherwise and on failure.
  virtual int GetIIS() = 0;
  // Marks the item as removed. The solver hears of it at the next operation of the model that needs it. A second
  // removal, or that of an invalid item, does nothing.
  virtual void Remove() = 0;
  // The code of the last operation of this object, 0 for success.
  virtual int GetLastError() = 0;
  // The text of the last failure of this object, null before the first one; valid until the next failure.
  virtual char const* GetErrorMessage() = 0;
};

class ICone {
 public:
  virtual ~ICone() = default;

  // The position in the model: 0 or above while live, -2 for the result of a failed operation, -3 - position once
  // removed.
  virtual int GetIdx() = 0;
  // Marks the item as removed. The solver hears of it at the next operation of the model that needs it. A second
  // removal, or that of an invalid item, does nothing.
  virtual void Remove() = 0;
};

class IExpCone {
 public:
  virtual ~IExpCone() = default;

  // The position in the model: 0 or above while live, -2 for the result of a failed operation, -3 - position once
  // removed.
  virtual int GetIdx() = 0;
  // Marks the item as removed. The solver hears of it at the next operation of the model that needs it. A second
  // removal, or that of an invalid item, does nothing.
  virtual void Remove() = 0;
};

class IAffineCone {
 public:
  virtual ~IAffineCone() = default;

  // The position in the model: 0 or above while live, -2 for the result of a failed operation, -3 - position once
  // removed.
  virtual int GetIdx() = 0;
  // The name, fetched from the solver at first use; valid until it changes. Never fails: an item without a name, and
  // one that was removed before its name was read, has the empty name.
  virtual char const* GetName() = 0;
  // The solver takes the name as written; GetName gives it without outer white space and with '_' for blanks. Null
  // changes nothing. Fails with code 3 on an item that is not live, otherwise with the solver's code.
  virtual void SetName(char const* name) = 0;
  // Marks the item as removed. The solver hears of it at the next operation of the model that needs it. A second
  // removal, or that of an invalid item, does nothing.
  virtual void Remove() = 0;
  // The code of the last operation of this object, 0 for success.
  virtual int GetLastError() = 0;
  // The text of the last failure of this object, null before the first one; valid until the next failure.
  virtual char const* GetErrorMessage() = 0;
};

}  // namespace Vorq

#endif
