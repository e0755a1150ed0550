// The functions of the double: solving, files, parameters and attributes, callbacks and logging.
#include "tests/double/effects.hpp"

using namespace vorqtest;

namespace {

int Cols(VORQ_Prob const* prob) {
  return Backstage::Count(prob, kCols);
}
int Rows(VORQ_Prob const* prob) {
  return Backstage::Count(prob, kRows);
}

}  // namespace

// ---- Solving

#define PLAIN(function)            \
  int function(VORQ_Prob* prob) {  \
    return Do(__func__, prob, {}); \
  }
PLAIN(VORQ_Solve)
PLAIN(VORQ_SolveLp)
PLAIN(VORQ_ComputeIIS)
PLAIN(VORQ_Tune)
PLAIN(VORQ_Interrupt)
PLAIN(VORQ_SetSlackBasis)
#undef PLAIN

int VORQ_FeasRelax(VORQ_Prob* prob, double const* colLow, double const* colUpp, double const* rowBnd,
                   double const* rowUpp) {
  return Do(__func__, prob,
            {Optional(colLow, Cols(prob)), Optional(colUpp, Cols(prob)), Optional(rowBnd, Rows(prob)),
             Optional(rowUpp, Rows(prob))});
}

int VORQ_LoadTuneParam(VORQ_Prob* prob, int index) {
  return Do(__func__, prob, {index});
}

int VORQ_GetSolution(VORQ_Prob* prob, double* values) {
  return Do(__func__, prob, {Out("values", values, Cols(prob))});
}

int VORQ_GetLpSolution(VORQ_Prob* prob, double* values, double* slacks, double* duals, double* redCosts) {
  return Do(__func__, prob,
            {Out("values", values, Cols(prob)), Out("slacks", slacks, Rows(prob)), Out("duals", duals, Rows(prob)),
             Out("redCosts", redCosts, Cols(prob))});
}

int VORQ_SetLpSolution(VORQ_Prob* prob, double const* values, double const* slacks, double const* duals,
                       double const* redCosts) {
  return Do(__func__, prob,
            {Optional(values, Cols(prob)), Optional(slacks, Rows(prob)), Optional(duals, Rows(prob)),
             Optional(redCosts, Cols(prob))});
}

int VORQ_GetPSDSolution(VORQ_Prob* prob, double* values, double* slacks, double* duals, double* redCosts) {
  return Do(__func__, prob,
            {Out("values", values, kAsScripted), Out("slacks", slacks, kAsScripted), Out("duals", duals, kAsScripted),
             Out("redCosts", redCosts, kAsScripted)});
}

int VORQ_GetLMISolution(VORQ_Prob* prob, double* slacks, double* duals) {
  return Do(__func__, prob, {Out("slacks", slacks, kAsScripted), Out("duals", duals, kAsScripted)});
}

int VORQ_GetBasis(VORQ_Prob* prob, int* colBasis, int* rowBasis) {
  return Do(__func__, prob, {Out("colBasis", colBasis, Cols(prob)), Out("rowBasis", rowBasis, Rows(prob))});
}

int VORQ_SetBasis(VORQ_Prob* prob, int const* colBasis, int const* rowBasis) {
  return Do(__func__, prob, {Optional(colBasis, Cols(prob)), Optional(rowBasis, Rows(prob))});
}

int VORQ_GetPoolObjVal(VORQ_Prob* prob, int index, double* value) {
  return Do(__func__, prob, {index, Out("value", value)});
}

int VORQ_GetPoolSolution(VORQ_Prob* prob, int index, int count, int const* cols, double* values) {
  return Do(__func__, prob, {index, count, Optional(cols, count), Out("values", values, count)},
            ReadsItems(__func__, "", count, cols, "values"));
}

int VORQ_AddMipStart(VORQ_Prob* prob, int count, int const* cols, double const* values) {
  return Do(__func__, prob, {count, Array(cols, count), Array(values, count)});
}

// ---- Files

#define WITH_PATH(function)                         \
  int function(VORQ_Prob* prob, char const* path) { \
    return Do(__func__, prob, {Text(path)});        \
  }
WITH_PATH(VORQ_SetLogFile)
WITH_PATH(VORQ_ReadMps)
WITH_PATH(VORQ_ReadLp)
WITH_PATH(VORQ_ReadSDPA)
WITH_PATH(VORQ_ReadCbf)
WITH_PATH(VORQ_ReadBin)
WITH_PATH(VORQ_ReadSol)
WITH_PATH(VORQ_ReadBasis)
WITH_PATH(VORQ_ReadMst)
WITH_PATH(VORQ_ReadParam)
WITH_PATH(VORQ_ReadTune)
WITH_PATH(VORQ_WriteMps)
WITH_PATH(VORQ_WriteLp)
WITH_PATH(VORQ_WriteCbf)
WITH_PATH(VORQ_WriteBin)
WITH_PATH(VORQ_WriteNL)
WITH_PATH(VORQ_WriteIIS)
WITH_PATH(VORQ_WriteRelax)
WITH_PATH(VORQ_WriteSol)
WITH_PATH(VORQ_WriteBasis)
WITH_PATH(VORQ_WriteMst)
WITH_PATH(VORQ_WriteParam)
#undef WITH_PATH

int VORQ_WriteMpsStr(VORQ_Prob* prob, char* buffer, int capacity, int* required) {
  return Do(__func__, prob, {TextBuffer(buffer, capacity), capacity, TextSize(required)});
}

int VORQ_WritePoolSol(VORQ_Prob* prob, int index, char const* path) {
  return Do(__func__, prob, {index, Text(path)});
}

int VORQ_WriteTuneParam(VORQ_Prob* prob, int index, char const* path) {
  return Do(__func__, prob, {index, Text(path)});
}

// ---- Parameters and attributes

#define NAMED_GETTER(function, type)                                                          \
  int function(VORQ_Prob* prob, char const* name, type* value) {                              \
    return Do(__func__, prob, {Text(name), Out("value", value)}, ReadsNamed(__func__, name)); \
  }
NAMED_GETTER(VORQ_GetIntParamDef, int)
NAMED_GETTER(VORQ_GetDblParamDef, double)
NAMED_GETTER(VORQ_GetIntParamMin, int)
NAMED_GETTER(VORQ_GetDblParamMin, double)
NAMED_GETTER(VORQ_GetIntParamMax, int)
NAMED_GETTER(VORQ_GetDblParamMax, double)
NAMED_GETTER(VORQ_GetDblAttr, double)
#undef NAMED_GETTER

#define PARAMETER(kind, type)                                                              \
  int VORQ_Get##kind##Param(VORQ_Prob* prob, char const* name, type* value) {              \
    return Do(__func__, prob, {Text(name), Out("value", value)},                           \
              [name, function = __func__](Store& store, Outputs& outputs) {                \
                auto const found = store.params.find(NameOf(name));                        \
                if (found != store.params.end()) outputs.emplace("value", found->second);  \
                return ReadsNamed(function, name)(store, outputs);                         \
              });                                                                          \
  }                                                                                        \
  int VORQ_Set##kind##Param(VORQ_Prob* prob, char const* name, type value) {               \
    return Do(__func__, prob, {Text(name), value}, [name, value](Store& store, Outputs&) { \
      store.params[NameOf(name)] = value;                                                  \
      return VORQ_OK;                                                                      \
    });                                                                                    \
  }
PARAMETER(Int, int)
PARAMETER(Dbl, double)
#undef PARAMETER

int VORQ_GetIntAttr(VORQ_Prob* prob, char const* name, int* value) {
  return Do(__func__, prob, {Text(name), Out("value", value)},
            [name, function = __func__](Store& store, Outputs& outputs) {
              ReadsNamed(function, name)(store, outputs);
              for (int kind = 0; kind < kKinds; ++kind) {
                if (kCounters[static_cast<std::size_t>(kind)] == NameOf(name)) {
                  outputs.emplace("value", store.Count(static_cast<Kind>(kind)));
                }
              }
              return VORQ_OK;
            });
}

// ---- Callbacks and logging

int VORQ_SetLogCallback(VORQ_Prob* prob, VORQ_LogFunction function, void* user) {
  return Do(__func__, prob, {Pointer(function, "function"), Pointer(user, "user")}, [=](Store&, Outputs&) {
    Backstage::SetLogFunction(prob, function, user);
    return VORQ_OK;
  });
}

int VORQ_SetCallback(VORQ_Prob* prob, VORQ_CallbackFunction function, int contextMask, void* user) {
  return Do(__func__, prob, {Pointer(function, "function"), contextMask, Pointer(user, "user")}, [=](Store&, Outputs&) {
    Backstage::SetCallback(prob, function, contextMask, user);
    return VORQ_OK;
  });
}

int VORQ_GetCallbackInfo(VORQ_CallbackData* data, char const* name, void* value) {
  int dim = -1;
  bool const isInt = Backstage::CallbackType(NameOf(name), dim) == 0;
  Argument const output = isInt ? Out("value", static_cast<int*>(value), kAsScripted)
                                : Out("value", static_cast<double*>(value), kAsScripted);
  return Backstage::Call(__func__, nullptr, {Backstage::HandleOf(data, HandleKind::kData), Text(name), output},
                         [name, function = __func__](Store& store, Outputs& outputs) -> int {
                           ReadsList(function, name, "value")(store, outputs);
                           return outputs.empty() ? VORQ_INVALID : VORQ_OK;
                         });
}

int VORQ_SearchCallbackInfo(VORQ_Prob* prob, char const* name, int* type, int* dim) {
  return Do(__func__, prob, {Text(name), Out("type", type), Out("dim", dim)}, [name](Store&, Outputs& outputs) {
    int knownDim = -1;
    outputs.emplace("type", Backstage::CallbackType(NameOf(name), knownDim));
    outputs.emplace("dim", knownDim);
    return VORQ_OK;
  });
}

int VORQ_AddCallbackSolution(VORQ_CallbackData* data, double const* values, double* objective) {
  return Backstage::Call(__func__, nullptr,
                         {Backstage::HandleOf(data, HandleKind::kData), Array(values, Cols(Backstage::ProblemOf(data))),
                          Out("objective", objective)},
                         {});
}

#define CALLBACK_ROW_ADDER(function)                                                                               \
  int function(VORQ_CallbackData* data, int n, int const* cols, double const* coefs, int sense, double rhs) {      \
    return Backstage::Call(                                                                                        \
        __func__, nullptr,                                                                                         \
        {Backstage::HandleOf(data, HandleKind::kData), n, Array(cols, n), Array(coefs, n), Char(sense), rhs}, {}); \
  }
CALLBACK_ROW_ADDER(VORQ_AddCallbackUserCut)
CALLBACK_ROW_ADDER(VORQ_AddCallbackLazyConstr)
#undef CALLBACK_ROW_ADDER

#define CALLBACK_ROWS_ADDER(function)                                                                             \
  int function(VORQ_CallbackData* data, int count, int const* rowBeg, int const* rowCnt, int const* cols,         \
               double const* coefs, char const* senses, double const* rhss) {                                     \
    Ragged const rows{count, rowBeg, rowCnt};                                                                     \
    return Backstage::Call(__func__, nullptr,                                                                     \
                           {Backstage::HandleOf(data, HandleKind::kData), count, rows.Begins(), rows.Lengths(),   \
                            rows.Elements(cols), rows.Elements(coefs), Array(senses, count), Array(rhss, count)}, \
                           {});                                                                                   \
  }
CALLBACK_ROWS_ADDER(VORQ_AddCallbackUserCuts)
CALLBACK_ROWS_ADDER(VORQ_AddCallbackLazyConstrs)
#undef CALLBACK_ROWS_ADDER
