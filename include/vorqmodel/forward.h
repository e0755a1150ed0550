// Forward declarations of all interfaces, so that each header names any of them.
#ifndef VORQMODEL_FORWARD_H
#define VORQMODEL_FORWARD_H

namespace Vorq {

class ILogSink;
class IEnvr;
class IEnvrConfig;
class IProbBuffer;
class ICallback;
class ICallbackProxy;
class IModel;
class IVar;
class IConstraint;
class IQConstraint;
class IPsdVar;
class IPsdConstraint;
class ILmiConstraint;
class IGenConstr;
class ISos;
class ICone;
class IExpCone;
class IAffineCone;
class IVarArray;
class IConstrArray;
class IColumnArray;
class ISosArray;
class IGenConstrArray;
class IConeArray;
class IExpConeArray;
class IAffineConeArray;
class IQConstrArray;
class IPsdVarArray;
class IPsdConstrArray;
class ILmiConstrArray;
class ISymMatrixArray;
class IConstrBuilderArray;
class IQConstrBuilderArray;
class IPsdConstrBuilderArray;
class ISosBuilderArray;
class IGenConstrBuilderArray;
class IConeBuilderArray;
class IExpConeBuilderArray;
class IAffineConeBuilderArray;
class IConstrBuilder;
class IQConstrBuilder;
class IPsdConstrBuilder;
class ISosBuilder;
class IConeBuilder;
class IExpConeBuilder;
class IGenConstrBuilder;
class IAffineConeBuilder;
class IExpr;
class IColumn;
class IQuadExpr;
class IPsdExpr;
class ISymMatrix;
class ISymMatExpr;
class ILmiExpr;
class IView;
class IMExpression;
class IMQExpression;
class IMFactory;
class IMHelper;
class IBroadCastHelper;

class Indexing;

template <int N>
class INDim;
template <class T, int N>
class INdArray;
template <int N>
class IMVar;
template <int N>
class IMLinExpr;
template <int N>
class IMQuadExpr;
template <int N>
class IMPsdExpr;
template <int N>
class IMConstr;
template <int N>
class IMQConstr;
template <int N>
class IMPsdConstr;
template <int N>
class IMConstrBuilder;
template <int N>
class IMPsdConstrBuilder;
template <int N>
class IMQConstrBuilder;

}  // namespace Vorq

#endif
