// The exported functions: factories of all objects, and the version. Each returned object belongs to the caller, who
// deletes it through its interface. A null interface pointer is not checked for.
#ifndef VORQMODEL_EXPORTS_H
#define VORQMODEL_EXPORTS_H

#include "vorqmodel/forward.h"

#if defined(__GNUC__)
#define VORQMODEL_API __attribute__((visibility("default")))
#else
#define VORQMODEL_API
#endif

extern "C" {

VORQMODEL_API Vorq::IEnvr* CreateEnvr(Vorq::ILogSink* sink);
VORQMODEL_API Vorq::IEnvr* CreateEnvrWithPath(char const* path, Vorq::ILogSink* sink);
VORQMODEL_API Vorq::IEnvr* CreateEnvrWithConfig(Vorq::IEnvrConfig* config, Vorq::ILogSink* sink);
VORQMODEL_API Vorq::IEnvrConfig* CreateEnvrConfig();
VORQMODEL_API Vorq::IModel* CreateModel(Vorq::IEnvr* envr, char const* name);
VORQMODEL_API Vorq::IProbBuffer* CreateProbBuffer(int size);
VORQMODEL_API Vorq::ICallbackProxy* CreateCallbackProxy();
VORQMODEL_API Vorq::IColumn* CreateColumn();
VORQMODEL_API Vorq::IExpr* CreateExpr(double constant);
VORQMODEL_API Vorq::IExpr* CreateLinExpr(Vorq::IVar* var, double coeff);
VORQMODEL_API Vorq::IQuadExpr* CreateQuadExpr1(double constant);
VORQMODEL_API Vorq::IQuadExpr* CreateQuadExpr2(Vorq::IVar* var, double coeff);
VORQMODEL_API Vorq::IQuadExpr* CreateQuadExpr3(Vorq::IExpr* expr);
VORQMODEL_API Vorq::IQuadExpr* CreateQuadExpr4(Vorq::IExpr* expr, Vorq::IVar* var);
VORQMODEL_API Vorq::IQuadExpr* CreateQuadExpr5(Vorq::IExpr* a, Vorq::IExpr* b);
VORQMODEL_API Vorq::IPsdExpr* CreatePsdExpr1(double constant);
VORQMODEL_API Vorq::IPsdExpr* CreatePsdExpr2(Vorq::IVar* var, double coeff);
VORQMODEL_API Vorq::IPsdExpr* CreatePsdExpr3(Vorq::IExpr* expr);
VORQMODEL_API Vorq::IPsdExpr* CreatePsdExpr4(Vorq::IPsdVar* var, Vorq::ISymMatrix* mat);
VORQMODEL_API Vorq::IPsdExpr* CreatePsdExpr5(Vorq::IPsdVar* var, Vorq::ISymMatExpr* expr);
VORQMODEL_API Vorq::IPsdExpr* CreatePsdExpr6(Vorq::IMExpression* cell);
VORQMODEL_API Vorq::ILmiExpr* CreateLmiExpr1();
VORQMODEL_API Vorq::ILmiExpr* CreateLmiExpr2(Vorq::ISymMatrix* mat);
VORQMODEL_API Vorq::ILmiExpr* CreateLmiExpr3(Vorq::ISymMatExpr* expr);
VORQMODEL_API Vorq::ILmiExpr* CreateLmiExpr4(Vorq::IVar* var, Vorq::ISymMatrix* mat);
VORQMODEL_API Vorq::ILmiExpr* CreateLmiExpr5(Vorq::IVar* var, Vorq::ISymMatExpr* expr);
VORQMODEL_API Vorq::ISymMatExpr* CreateSymMatExpr1();
VORQMODEL_API Vorq::ISymMatExpr* CreateSymMatExpr2(Vorq::ISymMatrix* mat, double coeff);
VORQMODEL_API Vorq::IConstrBuilder* CreateConstrBuilder();
VORQMODEL_API Vorq::IQConstrBuilder* CreateQConstrBuilder();
VORQMODEL_API Vorq::IPsdConstrBuilder* CreatePsdConstrBuilder();
VORQMODEL_API Vorq::IGenConstrBuilder* CreateGenConstrBuilder();
VORQMODEL_API Vorq::ISosBuilder* CreateSosBuilder();
VORQMODEL_API Vorq::IConeBuilder* CreateConeBuilder();
VORQMODEL_API Vorq::IExpConeBuilder* CreateExpConeBuilder();
VORQMODEL_API Vorq::IAffineConeBuilder* CreateAffineConeBuilder();
VORQMODEL_API Vorq::IAffineConeBuilderArray* CreateAffineConeBuilderArray();
VORQMODEL_API Vorq::IVarArray* CreateVarArray();
VORQMODEL_API Vorq::IConstrArray* CreateConstrArray();
VORQMODEL_API Vorq::IColumnArray* CreateColumnArray();
VORQMODEL_API Vorq::IConstrBuilderArray* CreateConstrBuilderArray();
VORQMODEL_API Vorq::ISosArray* CreateSosArray();
VORQMODEL_API Vorq::ISosBuilderArray* CreateSosBuilderArray();
VORQMODEL_API Vorq::IGenConstrArray* CreateGenConstrArray();
VORQMODEL_API Vorq::IGenConstrBuilderArray* CreateGenConstrBuilderArray();
VORQMODEL_API Vorq::IConeArray* CreateConeArray();
VORQMODEL_API Vorq::IConeBuilderArray* CreateConeBuilderArray();
VORQMODEL_API Vorq::IExpConeArray* CreateExpConeArray();
VORQMODEL_API Vorq::IExpConeBuilderArray* CreateExpConeBuilderArray();
VORQMODEL_API Vorq::IAffineConeArray* CreateAffineConeArray();
VORQMODEL_API Vorq::IQConstrArray* CreateQConstrArray();
VORQMODEL_API Vorq::IQConstrBuilderArray* CreateQConstrBuilderArray();
VORQMODEL_API Vorq::IPsdVarArray* CreatePsdVarArray();
VORQMODEL_API Vorq::IPsdConstrArray* CreatePsdConstrArray();
VORQMODEL_API Vorq::IPsdConstrBuilderArray* CreatePsdConstrBuilderArray();
VORQMODEL_API Vorq::ILmiConstrArray* CreateLmiConstrArray();
VORQMODEL_API Vorq::ISymMatrixArray* CreateSymMatrixArray();
VORQMODEL_API Vorq::IMFactory* CreateMFactory();
VORQMODEL_API Vorq::IMHelper* CreateMHelper();
VORQMODEL_API Vorq::IBroadCastHelper* CreateBroadCastHelper();
// Arrays over a caller's elements, d0 times d1 times d2 of them in row-major order. The array takes over elements given
// by WithData, which must come from new[], and deletes them in the end; it borrows those given by WithExData, which
// must outlive it and all that shares its elements.
VORQMODEL_API Vorq::INdArray<double, 1>* CreateNdArrayDbl1WithData(double* data, int d0);
VORQMODEL_API Vorq::INdArray<double, 2>* CreateNdArrayDbl2WithData(double* data, int d0, int d1);
VORQMODEL_API Vorq::INdArray<double, 3>* CreateNdArrayDbl3WithData(double* data, int d0, int d1, int d2);
VORQMODEL_API Vorq::INdArray<int, 1>* CreateNdArrayInt1WithData(int* data, int d0);
VORQMODEL_API Vorq::INdArray<int, 2>* CreateNdArrayInt2WithData(int* data, int d0, int d1);
VORQMODEL_API Vorq::INdArray<int, 3>* CreateNdArrayInt3WithData(int* data, int d0, int d1, int d2);
VORQMODEL_API Vorq::INdArray<long long, 1>* CreateNdArrayInt64t1WithData(long long* data, int d0);
VORQMODEL_API Vorq::INdArray<long long, 2>* CreateNdArrayInt64t2WithData(long long* data, int d0, int d1);
VORQMODEL_API Vorq::INdArray<long long, 3>* CreateNdArrayInt64t3WithData(long long* data, int d0, int d1, int d2);
VORQMODEL_API Vorq::INdArray<double, 1>* CreateNdArrayDbl1WithExData(double* data, int d0);
VORQMODEL_API Vorq::INdArray<double, 2>* CreateNdArrayDbl2WithExData(double* data, int d0, int d1);
VORQMODEL_API Vorq::INdArray<double, 3>* CreateNdArrayDbl3WithExData(double* data, int d0, int d1, int d2);
VORQMODEL_API Vorq::INdArray<int, 1>* CreateNdArrayInt1WithExData(int* data, int d0);
VORQMODEL_API Vorq::INdArray<int, 2>* CreateNdArrayInt2WithExData(int* data, int d0, int d1);
VORQMODEL_API Vorq::INdArray<int, 3>* CreateNdArrayInt3WithExData(int* data, int d0, int d1, int d2);
VORQMODEL_API Vorq::INdArray<long long, 1>* CreateNdArrayInt64t1WithExData(long long* data, int d0);
VORQMODEL_API Vorq::INdArray<long long, 2>* CreateNdArrayInt64t2WithExData(long long* data, int d0, int d1);
VORQMODEL_API Vorq::INdArray<long long, 3>* CreateNdArrayInt64t3WithExData(long long* data, int d0, int d1, int d2);

// The products of a block with a sparse matrix A in compressed columns (Csc) or compressed rows (Csr). The name tells
// the order of the factors: MVar1MatMultCsc is x' A with the row vector x, CscMatMultMVar1 is A x with the column
// vector x, MVar1MatMultCscMVar1 is x' A y.
//
//     int beg[] = {0, 2, 3}, idx[] = {0, 2, 1};           // 3 rows and 2 columns: entries (0, 0), (2, 0) and (1, 1)
//     double val[] = {4.0, 5.0, 6.0};
//     Vorq::IMLinExpr<1>* rows = CscMatMultMVar1(3, beg, 3, idx, 3, val, 3, x);      // 4 x0, 6 x1, 5 x0
//
// `dim` is the number of rows of a Csc matrix, of columns of a Csr matrix; `beg` has `nBeg` starts, one more than there
// are columns or rows; entry k of column or row j has its place `idx[k]` and its value `val[k]`, for k from `beg[j]` up
// to `beg[j + 1]`. Entries may stand in any order and more than once, each gives a term of its own, also a zero. `nIdx`
// and `nVal` are not read. With `nBeg` 0 or 1 there are no entries; arrays of which nothing is read may be null.
//
// A block of shape (m, n) times A of n rows and k columns has shape (m, k), and so on; a vector's axis is dropped. The
// arrays stay with the caller and are not needed after the call. The result shares no cell with the block. Where sizes
// do not match it has size 1 and carries the failure, such as "(INVALID) Operand 1 has a mismatch at axis 0, size 3 !=
// 4"; likewise where an index lies outside of the matrix.
VORQMODEL_API Vorq::IMLinExpr<1>* MVar1MatMultCsc(Vorq::IMVar<1>* x, int dim, int const* beg, int nBeg, int const* idx,
                                                  int nIdx, double const* val, int nVal);
VORQMODEL_API Vorq::IMLinExpr<2>* MVar2MatMultCsc(Vorq::IMVar<2>* x, int dim, int const* beg, int nBeg, int const* idx,
                                                  int nIdx, double const* val, int nVal);
VORQMODEL_API Vorq::IMLinExpr<1>* MVar1MatMultCsr(Vorq::IMVar<1>* x, int dim, int const* beg, int nBeg, int const* idx,
                                                  int nIdx, double const* val, int nVal);
VORQMODEL_API Vorq::IMLinExpr<2>* MVar2MatMultCsr(Vorq::IMVar<2>* x, int dim, int const* beg, int nBeg, int const* idx,
                                                  int nIdx, double const* val, int nVal);
VORQMODEL_API Vorq::IMLinExpr<1>* CscMatMultMVar1(int dim, int const* beg, int nBeg, int const* idx, int nIdx,
                                                  double const* val, int nVal, Vorq::IMVar<1>* x);
VORQMODEL_API Vorq::IMLinExpr<2>* CscMatMultMVar2(int dim, int const* beg, int nBeg, int const* idx, int nIdx,
                                                  double const* val, int nVal, Vorq::IMVar<2>* x);
VORQMODEL_API Vorq::IMLinExpr<1>* CsrMatMultMVar1(int dim, int const* beg, int nBeg, int const* idx, int nIdx,
                                                  double const* val, int nVal, Vorq::IMVar<1>* x);
VORQMODEL_API Vorq::IMLinExpr<2>* CsrMatMultMVar2(int dim, int const* beg, int nBeg, int const* idx, int nIdx,
                                                  double const* val, int nVal, Vorq::IMVar<2>* x);
VORQMODEL_API Vorq::IMLinExpr<1>* MLinExpr1MatMultCsc(Vorq::IMLinExpr<1>* x, int dim, int const* beg, int nBeg,
                                                      int const* idx, int nIdx, double const* val, int nVal);
VORQMODEL_API Vorq::IMLinExpr<2>* MLinExpr2MatMultCsc(Vorq::IMLinExpr<2>* x, int dim, int const* beg, int nBeg,
                                                      int const* idx, int nIdx, double const* val, int nVal);
VORQMODEL_API Vorq::IMLinExpr<1>* MLinExpr1MatMultCsr(Vorq::IMLinExpr<1>* x, int dim, int const* beg, int nBeg,
                                                      int const* idx, int nIdx, double const* val, int nVal);
VORQMODEL_API Vorq::IMLinExpr<2>* MLinExpr2MatMultCsr(Vorq::IMLinExpr<2>* x, int dim, int const* beg, int nBeg,
                                                      int const* idx, int nIdx, double const* val, int nVal);
VORQMODEL_API Vorq::IMLinExpr<1>* CscMatMultMLinExpr1(int dim, int const* beg, int nBeg, int const* idx, int nIdx,
                                                      double const* val, int nVal, Vorq::IMLinExpr<1>* x);
VORQMODEL_API Vorq::IMLinExpr<2>* CscMatMultMLinExpr2(int dim, int const* beg, int nBeg, int const* idx, int nIdx,
                                                      double const* val, int nVal, Vorq::IMLinExpr<2>* x);
VORQMODEL_API Vorq::IMLinExpr<1>* CsrMatMultMLinExpr1(int dim, int const* beg, int nBeg, int const* idx, int nIdx,
                                                      double const* val, int nVal, Vorq::IMLinExpr<1>* x);
VORQMODEL_API Vorq::IMLinExpr<2>* CsrMatMultMLinExpr2(int dim, int const* beg, int nBeg, int const* idx, int nIdx,
                                                      double const* val, int nVal, Vorq::IMLinExpr<2>* x);
VORQMODEL_API Vorq::IMQuadExpr<1>* MQuadExpr1MatMultCsc(Vorq::IMQuadExpr<1>* x, int dim, int const* beg, int nBeg,
                                                        int const* idx, int nIdx, double const* val, int nVal);
VORQMODEL_API Vorq::IMQuadExpr<2>* MQuadExpr2MatMultCsc(Vorq::IMQuadExpr<2>* x, int dim, int const* beg, int nBeg,
                                                        int const* idx, int nIdx, double const* val, int nVal);
VORQMODEL_API Vorq::IMQuadExpr<1>* MQuadExpr1MatMultCsr(Vorq::IMQuadExpr<1>* x, int dim, int const* beg, int nBeg,
                                                        int const* idx, int nIdx, double const* val, int nVal);
VORQMODEL_API Vorq::IMQuadExpr<2>* MQuadExpr2MatMultCsr(Vorq::IMQuadExpr<2>* x, int dim, int const* beg, int nBeg,
                                                        int const* idx, int nIdx, double const* val, int nVal);
VORQMODEL_API Vorq::IMQuadExpr<1>* CscMatMultMQuadExpr1(int dim, int const* beg, int nBeg, int const* idx, int nIdx,
                                                        double const* val, int nVal, Vorq::IMQuadExpr<1>* x);
VORQMODEL_API Vorq::IMQuadExpr<2>* CscMatMultMQuadExpr2(int dim, int const* beg, int nBeg, int const* idx, int nIdx,
                                                        double const* val, int nVal, Vorq::IMQuadExpr<2>* x);
VORQMODEL_API Vorq::IMQuadExpr<1>* CsrMatMultMQuadExpr1(int dim, int const* beg, int nBeg, int const* idx, int nIdx,
                                                        double const* val, int nVal, Vorq::IMQuadExpr<1>* x);
VORQMODEL_API Vorq::IMQuadExpr<2>* CsrMatMultMQuadExpr2(int dim, int const* beg, int nBeg, int const* idx, int nIdx,
                                                        double const* val, int nVal, Vorq::IMQuadExpr<2>* x);
VORQMODEL_API Vorq::IMQuadExpr<0>* MVar1MatMultCscMVar1(Vorq::IMVar<1>* x, int dim, int const* beg, int nBeg,
                                                        int const* idx, int nIdx, double const* val, int nVal,
                                                        Vorq::IMVar<1>* y);
VORQMODEL_API Vorq::IMQuadExpr<0>* MVar1MatMultCsrMVar1(Vorq::IMVar<1>* x, int dim, int const* beg, int nBeg,
                                                        int const* idx, int nIdx, double const* val, int nVal,
                                                        Vorq::IMVar<1>* y);
VORQMODEL_API int GetVorqVersion(int selector);

}  // extern "C"

#endif
