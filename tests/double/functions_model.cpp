// The functions of the double: environment, problem, adding, deleting, coefficients, bulk loads and the objective.
#include <numeric>

#include "tests/double/effects.hpp"

using namespace vorqtest;

// ---- Environment

int VORQ_GetBanner(char* buffer, int capacity) {
  return Backstage::Call(__func__, nullptr, {TextBuffer(buffer, capacity), capacity}, [](Store&, Outputs& outputs) {
    outputs.emplace("buffer", Backstage::BannerText());
    return VORQ_OK;
  });
}

int VORQ_CreateEnvWithPath(char const* path, VORQ_Env** env) {
  return Backstage::Create(__func__, HandleKind::kEnv, {Text(path)}, nullptr, reinterpret_cast<void**>(env));
}

int VORQ_CreateEnvWithConfig(VORQ_EnvConfig* config, VORQ_Env** env) {
  return Backstage::Create(__func__, HandleKind::kEnv, {Backstage::HandleOf(config, HandleKind::kConfig)}, nullptr,
                           reinterpret_cast<void**>(env));
}

int VORQ_CloseEnv(VORQ_Env** env) {
  return Backstage::CloseEnv(__func__, env);
}

int VORQ_DeleteEnv(VORQ_Env** env) {
  return Backstage::Delete(__func__, HandleKind::kEnv, reinterpret_cast<void**>(env));
}

int VORQ_CreateEnvConfig(VORQ_EnvConfig** config) {
  return Backstage::Create(__func__, HandleKind::kConfig, {}, nullptr, reinterpret_cast<void**>(config));
}

int VORQ_DeleteEnvConfig(VORQ_EnvConfig** config) {
  return Backstage::Delete(__func__, HandleKind::kConfig, reinterpret_cast<void**>(config));
}

int VORQ_SetEnvConfig(VORQ_EnvConfig* config, char const* name, char const* value) {
  return Backstage::Call(__func__, nullptr, {Backstage::HandleOf(config, HandleKind::kConfig), Text(name), Text(value)},
                         {});
}

int VORQ_GetRetcodeMsg(int code, char* buffer, int capacity) {
  return Backstage::Call(__func__, nullptr, {code, TextBuffer(buffer, capacity), capacity},
                         [code](Store&, Outputs& outputs) {
                           outputs.emplace("buffer", "double message " + std::to_string(code));
                           return VORQ_OK;
                         });
}

int VORQ_SearchParamAttr(VORQ_Prob* prob, char const* name, int* type) {
  Argument const problem = prob == nullptr ? Argument("null") : Backstage::HandleOf(prob, HandleKind::kProb);
  return Backstage::Call(__func__, prob, {problem, Text(name), Out("type", type)}, [name](Store&, Outputs& outputs) {
    outputs.emplace("type", Backstage::KindOfName(NameOf(name)));
    return VORQ_OK;
  });
}

// ---- Problem

int VORQ_CreateProb(VORQ_Env* env, VORQ_Prob** prob) {
  return Backstage::Create(__func__, HandleKind::kProb, {Backstage::HandleOf(env, HandleKind::kEnv)}, env,
                           reinterpret_cast<void**>(prob));
}

int VORQ_CreateCopy(VORQ_Prob* prob, VORQ_Prob** copy) {
  int const code = Backstage::Create(__func__, HandleKind::kProb, {Backstage::HandleOf(prob, HandleKind::kProb)},
                                     nullptr, reinterpret_cast<void**>(copy));
  if (code == VORQ_OK) Backstage::CopyStore(prob, *copy);
  return code;
}

int VORQ_DeleteProb(VORQ_Prob** prob) {
  return Backstage::Delete(__func__, HandleKind::kProb, reinterpret_cast<void**>(prob));
}

int VORQ_ClearProb(VORQ_Prob* prob) {
  return Do(__func__, prob, {}, [](Store& store, Outputs&) {
    store.items = {};
    return VORQ_OK;
  });
}

int VORQ_Reset(VORQ_Prob* prob, int all) {
  return Do(__func__, prob, {all});
}

int VORQ_ResetParam(VORQ_Prob* prob) {
  return Do(__func__, prob, {}, [](Store& store, Outputs&) {
    store.params.clear();
    return VORQ_OK;
  });
}

// ---- Adding

int VORQ_AddCol(VORQ_Prob* prob, double obj, int n, int const* rows, double const* coefs, int type, double lb,
                double ub, char const* name) {
  return Do(__func__, prob, {obj, n, Array(rows, n), Array(coefs, n), Char(type), lb, ub, Text(name)},
            AddsOne(kCols, name, type));
}

int VORQ_AddCols(VORQ_Prob* prob, int count, double const* objs, int const* colBeg, int const* colCnt, int const* rows,
                 double const* coefs, char const* types, double const* lbs, double const* ubs,
                 char const* const* names) {
  Ragged const cols{count, colBeg, colCnt};
  return Do(__func__, prob,
            {count, Optional(objs, count), cols.Begins(), cols.Lengths(), cols.Elements(rows), cols.Elements(coefs),
             Optional(types, count), Optional(lbs, count), Optional(ubs, count), Names(names, count)},
            AddsMany(kCols, count, names, types));
}

// User cuts and lazy constraints are no items.
#define ROW_ADDER(function, effect)                                                                                 \
  int function(VORQ_Prob* prob, int n, int const* cols, double const* coefs, int sense, double bound, double upper, \
               char const* name) {                                                                                  \
    return Do(__func__, prob, {n, Array(cols, n), Array(coefs, n), Char(sense), bound, upper, Text(name)}, effect); \
  }
ROW_ADDER(VORQ_AddRow, AddsOne(kRows, name))
ROW_ADDER(VORQ_AddUserCut, {})
ROW_ADDER(VORQ_AddLazyConstr, {})
#undef ROW_ADDER

#define ROWS_ADDER(function, effect)                                                                                   \
  int function(VORQ_Prob* prob, int count, int const* rowBeg, int const* rowCnt, int const* cols, double const* coefs, \
               char const* senses, double const* lowers, double const* uppers, char const* const* names) {             \
    Ragged const rows{count, rowBeg, rowCnt};                                                                          \
    return Do(__func__, prob,                                                                                          \
              {count, rows.Begins(), rows.Lengths(), rows.Elements(cols), rows.Elements(coefs),                        \
               Optional(senses, count), Optional(lowers, count), Optional(uppers, count), Names(names, count)},        \
              effect);                                                                                                 \
  }
ROWS_ADDER(VORQ_AddRows, AddsMany(kRows, count, names))
ROWS_ADDER(VORQ_AddUserCuts, {})
ROWS_ADDER(VORQ_AddLazyConstrs, {})
#undef ROWS_ADDER

int VORQ_AddSOSs(VORQ_Prob* prob, int count, int const* types, int const* begins, int const* counts, int const* cols,
                 double const* weights) {
  Ragged const soss{count, begins, counts};
  return Do(__func__, prob,
            {count, Optional(types, count), soss.Begins(), soss.Lengths(), soss.Elements(cols),
             Optional(weights, soss.Used())},
            AddsMany(kSoss, count));
}

int VORQ_AddCones(VORQ_Prob* prob, int count, int const* types, int const* begins, int const* counts, int const* cols) {
  Ragged const cones{count, begins, counts};
  return Do(__func__, prob, {count, Optional(types, count), cones.Begins(), cones.Lengths(), cones.Elements(cols)},
            AddsMany(kCones, count));
}

int VORQ_AddExpCones(VORQ_Prob* prob, int count, int const* types, int const* cols) {
  return Do(__func__, prob, {count, Optional(types, count), Array(cols, 3 * count)}, AddsMany(kExpCones, count));
}

int VORQ_AddAffineCone(VORQ_Prob* prob, int type, int nExprs, int reserved1, int reserved2, int const* psdBeg,
                       int const* psdCnt, int const* psdCols, int const* psdMats, int const* rowBeg, int const* rowCnt,
                       int const* cols, double const* coefs, double const* constants, char const* name) {
  Ragged const psd{nExprs, psdBeg, psdCnt};
  Ragged const rows{nExprs, rowBeg, rowCnt};
  return Do(__func__, prob,
            {type, nExprs, reserved1, reserved2, psd.Begins(), psd.Lengths(), psd.Elements(psdCols),
             psd.Elements(psdMats), rows.Begins(), rows.Lengths(), rows.Elements(cols), rows.Elements(coefs),
             Optional(constants, nExprs), Text(name)},
            AddsOne(kAffineCones, name));
}

int VORQ_AddQConstr(VORQ_Prob* prob, int nLin, int const* linIdx, double const* linCoef, int nQuad, int const* qRow,
                    int const* qCol, double const* qCoef, int sense, double bound, char const* name) {
  return Do(__func__, prob,
            {nLin, Array(linIdx, nLin), Array(linCoef, nLin), nQuad, Array(qRow, nQuad), Array(qCol, nQuad),
             Array(qCoef, nQuad), Char(sense), bound, Text(name)},
            AddsOne(kQConstrs, name));
}

int VORQ_AddIndicators(VORQ_Prob* prob, int count, int const* types, int const* binCols, int const* binVals,
                       int const* rowBeg, int const* rowCnt, int const* cols, double const* coefs, char const* senses,
                       double const* rhss, char const* const* names) {
  Ragged const rows{count, rowBeg, rowCnt};
  return Do(
      __func__, prob,
      {count, Optional(types, count), Array(binCols, count), Optional(binVals, count), rows.Begins(), rows.Lengths(),
       rows.Elements(cols), rows.Elements(coefs), Optional(senses, count), Optional(rhss, count), Names(names, count)},
      AddsMany(kIndicators, count, names));
}

int VORQ_AddPSDCol(VORQ_Prob* prob, int dim, char const* name) {
  return Do(__func__, prob, {dim, Text(name)}, AddsOne(kPsdCols, name, 'C', dim));
}

int VORQ_AddPSDCols(VORQ_Prob* prob, int count, int const* dims, char const* const* names) {
  return Do(__func__, prob, {count, Array(dims, count), Names(names, count)},
            AddsMany(kPsdCols, count, names, nullptr, dims));
}

int VORQ_AddPSDConstr(VORQ_Prob* prob, int nLin, int const* linIdx, double const* linCoef, int nPsd, int const* psdCols,
                      int const* symMats, int sense, double bound, double upper, char const* name) {
  return Do(__func__, prob,
            {nLin, Array(linIdx, nLin), Array(linCoef, nLin), nPsd, Array(psdCols, nPsd), Array(symMats, nPsd),
             Char(sense), bound, upper, Text(name)},
            AddsOne(kPsdConstrs, name));
}

int VORQ_AddLMIConstr(VORQ_Prob* prob, int dim, int n, int const* cols, int const* symMats, int constant,
                      char const* name) {
  return Do(__func__, prob, {dim, n, Array(cols, n), Array(symMats, n), constant, Text(name)},
            AddsOne(kLmiConstrs, name, 'C', dim));
}

int VORQ_AddSymMat(VORQ_Prob* prob, int dim, int n, int const* rows, int const* cols, double const* values) {
  return Do(__func__, prob, {dim, n, Array(rows, n), Array(cols, n), Array(values, n)}, [=](Store& store, Outputs&) {
    store.items[kSymMats].push_back(
        {.dim = dim, .rows = {rows, rows + n}, .cols = {cols, cols + n}, .values = {values, values + n}});
    return VORQ_OK;
  });
}

// ---- Deleting

#define DELETER(function, kind)                                                               \
  int function(VORQ_Prob* prob, int count, int const* indices) {                              \
    return Do(__func__, prob, {count, Array(indices, count)}, Deletes(kind, count, indices)); \
  }
DELETER(VORQ_DelCols, kCols)
DELETER(VORQ_DelRows, kRows)
DELETER(VORQ_DelSOSs, kSoss)
DELETER(VORQ_DelCones, kCones)
DELETER(VORQ_DelExpCones, kExpCones)
DELETER(VORQ_DelAffineCones, kAffineCones)
DELETER(VORQ_DelIndicators, kIndicators)
DELETER(VORQ_DelQConstrs, kQConstrs)
DELETER(VORQ_DelPSDCols, kPsdCols)
DELETER(VORQ_DelPSDConstrs, kPsdConstrs)
DELETER(VORQ_DelLMIConstrs, kLmiConstrs)
#undef DELETER

// ---- Coefficients and bulk loads

int VORQ_GetElem(VORQ_Prob* prob, int col, int row, double* value) {
  return Do(__func__, prob, {col, row, Out("value", value)});
}

int VORQ_SetElem(VORQ_Prob* prob, int col, int row, double value) {
  return Do(__func__, prob, {col, row, value});
}

int VORQ_SetElems(VORQ_Prob* prob, int count, int const* cols, int const* rows, double const* values) {
  return Do(__func__, prob, {count, Array(cols, count), Array(rows, count), Array(values, count)});
}

int VORQ_GetPSDElem(VORQ_Prob* prob, int psdCol, int constr, int* symMat) {
  return Do(__func__, prob, {psdCol, constr, Out("symMat", symMat, 1, -1)});
}

int VORQ_SetPSDElem(VORQ_Prob* prob, int psdCol, int constr, int symMat) {
  return Do(__func__, prob, {psdCol, constr, symMat});
}

int VORQ_GetLMIElem(VORQ_Prob* prob, int col, int constr, int* symMat) {
  return Do(__func__, prob, {col, constr, Out("symMat", symMat, 1, -1)});
}

int VORQ_SetLMIElem(VORQ_Prob* prob, int col, int constr, int symMat) {
  return Do(__func__, prob, {col, constr, symMat});
}

int VORQ_GetLMIConstrRhs(VORQ_Prob* prob, int count, int const* indices, int* symMats) {
  return Do(__func__, prob, {count, Optional(indices, count), Out("symMats", symMats, count, -1)},
            ReadsItems(__func__, "", count, indices, "symMats"));
}

int VORQ_SetLMIConstrRhs(VORQ_Prob* prob, int count, int const* indices, int const* symMats) {
  return Do(__func__, prob, {count, Array(indices, count), Array(symMats, count)});
}

int VORQ_LoadProb(VORQ_Prob* prob, int nCols, int nRows, int sense, double objConst, double const* objs,
                  int const* colBeg, int const* colCnt, int const* rows, double const* coefs, char const* types,
                  double const* lbs, double const* ubs, char const* senses, double const* lowers, double const* uppers,
                  char const* const* colNames, char const* const* rowNames) {
  Ragged const cols{nCols, colBeg, colCnt};
  return Do(__func__, prob,
            {nCols, nRows, sense, objConst, Optional(objs, nCols), cols.Begins(), cols.Lengths(), cols.Elements(rows),
             cols.Elements(coefs), Optional(types, nCols), Optional(lbs, nCols), Optional(ubs, nCols),
             Optional(senses, nRows), Optional(lowers, nRows), Optional(uppers, nRows), Names(colNames, nCols),
             Names(rowNames, nRows)},
            [=](Store& store, Outputs& outputs) {
              store.items = {};
              AddsMany(kCols, nCols, colNames, types)(store, outputs);
              return AddsMany(kRows, nRows, rowNames)(store, outputs);
            });
}

int VORQ_LoadConeProb(VORQ_Prob* prob, int nCols, int nRows, int nCones, int nExpCones, int nPsdCols, int nSymMats,
                      int nSymElems, int nQuad, int const* symDims, int const* symBeg, int const* symRows,
                      int const* symCols, double const* symVals, int sense, double objConst, double const* objs,
                      int const* colBeg, int const* colCnt, int const* rows, double const* coefs, char const* types,
                      double const* lbs, double const* ubs, double const* lowers, double const* uppers,
                      int const* quadRows, int const* quadCols, double const* quadVals, int const* coneTypes,
                      int const* coneDims, int const* coneCols, int const* expConeTypes, int const* expConeCols,
                      int const* psdDims, char const* const* colNames, char const* const* rowNames,
                      char const* const* psdColNames, int const* psdObjMats) {
  Ragged const cols{nCols, colBeg, colCnt};
  int const coneLength = coneDims == nullptr ? 0 : std::accumulate(coneDims, coneDims + std::max(nCones, 0), 0);
  return Do(__func__, prob,
            {nCols,
             nRows,
             nCones,
             nExpCones,
             nPsdCols,
             nSymMats,
             nSymElems,
             nQuad,
             Optional(symDims, nSymMats),
             Optional(symBeg, nSymMats > 0 ? nSymMats + 1 : nSymMats),
             Optional(symRows, nSymElems),
             Optional(symCols, nSymElems),
             Optional(symVals, nSymElems),
             sense,
             objConst,
             Optional(objs, nCols),
             cols.Begins(),
             cols.Lengths(),
             cols.Elements(rows),
             cols.Elements(coefs),
             Optional(types, nCols),
             Optional(lbs, nCols),
             Optional(ubs, nCols),
             Optional(lowers, nRows),
             Optional(uppers, nRows),
             Optional(quadRows, nQuad),
             Optional(quadCols, nQuad),
             Optional(quadVals, nQuad),
             Optional(coneTypes, nCones),
             Optional(coneDims, nCones),
             Optional(coneCols, coneLength),
             Optional(expConeTypes, nExpCones),
             Optional(expConeCols, 3 * nExpCones),
             Optional(psdDims, nPsdCols),
             Names(colNames, nCols),
             Names(rowNames, nRows),
             Names(psdColNames, nPsdCols),
             Optional(psdObjMats, nPsdCols)},
            [=](Store& store, Outputs& outputs) {
              store.items = {};
              AddsMany(kCols, nCols, colNames, types)(store, outputs);
              AddsMany(kRows, nRows, rowNames)(store, outputs);
              AddsMany(kCones, nCones)(store, outputs);
              AddsMany(kExpCones, nExpCones)(store, outputs);
              AddsMany(kPsdCols, nPsdCols, psdColNames, nullptr, psdDims)(store, outputs);
              return AddsMany(kSymMats, nSymMats, nullptr, nullptr, symDims)(store, outputs);
            });
}

// ---- Objective

int VORQ_SetObjSense(VORQ_Prob* prob, int sense) {
  return Do(__func__, prob, {sense});
}

int VORQ_SetObjConst(VORQ_Prob* prob, double constant) {
  return Do(__func__, prob, {constant});
}

int VORQ_ReplaceColObj(VORQ_Prob* prob, int count, int const* cols, double const* values) {
  return Do(__func__, prob, {count, Array(cols, count), Array(values, count)});
}

int VORQ_SetQuadObj(VORQ_Prob* prob, int count, int const* rows, int const* cols, double const* values) {
  return Do(__func__, prob, {count, Array(rows, count), Array(cols, count), Array(values, count)});
}

int VORQ_GetQuadObj(VORQ_Prob* prob, int* count, int* rows, int* cols, double* values) {
  return Do(__func__, prob,
            {SizeOf("count", count, {"rows"}), Out("rows", rows, kAsScripted), Out("cols", cols, kAsScripted),
             Out("values", values, kAsScripted)});
}

int VORQ_DelQuadObj(VORQ_Prob* prob) {
  return Do(__func__, prob, {});
}

int VORQ_ReplacePSDObj(VORQ_Prob* prob, int count, int const* psdCols, int const* symMats) {
  return Do(__func__, prob, {count, Array(psdCols, count), Array(symMats, count)});
}

int VORQ_GetPSDObj(VORQ_Prob* prob, int psdCol, int* symMat) {
  return Do(__func__, prob, {psdCol, Out("symMat", symMat, 1, -1)});
}

int VORQ_DelPSDObj(VORQ_Prob* prob) {
  return Do(__func__, prob, {});
}
