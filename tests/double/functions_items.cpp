// The functions of the double: reading items back, their names and their attributes.
#include "tests/double/effects.hpp"

using namespace vorqtest;

// ---- Reading back

int VORQ_GetCols(VORQ_Prob* prob, int count, int const* indices, int* colBeg, int* colCnt, int* rows, double* coefs,
                 int capacity, int* required) {
  return Do(__func__, prob,
            {count, Optional(indices, count), Out("colBeg", colBeg, count), Out("colCnt", colCnt, count),
             Data("rows", rows, capacity), Data("coefs", coefs, capacity), capacity,
             SizeOf("required", required, {"rows", "coefs"})});
}

int VORQ_GetRows(VORQ_Prob* prob, int count, int const* indices, int* rowBeg, int* rowCnt, int* cols, double* coefs,
                 int capacity, int* required) {
  return Do(__func__, prob,
            {count, Optional(indices, count), Out("rowBeg", rowBeg, count), Out("rowCnt", rowCnt, count),
             Data("cols", cols, capacity), Data("coefs", coefs, capacity), capacity,
             SizeOf("required", required, {"cols", "coefs"})});
}

int VORQ_GetSOSs(VORQ_Prob* prob, int count, int const* indices, int* types, int* begins, int* counts, int* cols,
                 double* weights, int capacity, int* required) {
  return Do(__func__, prob,
            {count, Optional(indices, count), Out("types", types, count), Out("begins", begins, count),
             Out("counts", counts, count), Data("cols", cols, capacity), Data("weights", weights, capacity), capacity,
             SizeOf("required", required, {"cols", "weights"})});
}

int VORQ_GetCones(VORQ_Prob* prob, int count, int const* indices, int* types, int* begins, int* counts, int* cols,
                  int capacity, int* required) {
  return Do(
      __func__, prob,
      {count, Optional(indices, count), Out("types", types, count), Out("begins", begins, count),
       Out("counts", counts, count), Data("cols", cols, capacity), capacity, SizeOf("required", required, {"cols"})});
}

int VORQ_GetExpCones(VORQ_Prob* prob, int count, int const* indices, int* types, int* cols, int capacity,
                     int* required) {
  return Do(__func__, prob,
            {count, Optional(indices, count), Out("types", types, count), Data("cols", cols, capacity), capacity,
             SizeOf("required", required, {"cols"})});
}

int VORQ_GetIndicators(VORQ_Prob* prob, int count, int const* indices, int* types, int* binCols, int* binVals,
                       int* rowBeg, int* rowCnt, int* cols, double* coefs, char* senses, double* rhss, int capacity,
                       int* required) {
  return Do(__func__, prob,
            {count, Optional(indices, count), Out("types", types, count), Out("binCols", binCols, count),
             Out("binVals", binVals, count), Out("rowBeg", rowBeg, count), Out("rowCnt", rowCnt, count),
             Data("cols", cols, capacity), Data("coefs", coefs, capacity), Out("senses", senses, count),
             Out("rhss", rhss, count), capacity, SizeOf("required", required, {"cols", "coefs"})});
}

// The arrays by expression are as long as nExprs, which the caller has from its first call.
int VORQ_GetAffineCone(VORQ_Prob* prob, int index, int* type, int* nExprs, int reserved1, int reserved2, int* psdBeg,
                       int* psdCnt, int* psdCols, int* psdMats, int psdCapacity, int* psdRequired, int* rowBeg,
                       int* rowCnt, int* cols, double* coefs, double* constants, int capacity, int* required) {
  return Do(__func__, prob,
            {index, Out("type", type), SizeOf("nExprs", nExprs, {"rowBeg", "psdBeg", "constants"}), reserved1,
             reserved2, Out("psdBeg", psdBeg, kAsScripted), Out("psdCnt", psdCnt, kAsScripted),
             Data("psdCols", psdCols, psdCapacity), Data("psdMats", psdMats, psdCapacity), psdCapacity,
             SizeOf("psdRequired", psdRequired, {"psdCols", "psdMats"}), Out("rowBeg", rowBeg, kAsScripted),
             Out("rowCnt", rowCnt, kAsScripted), Data("cols", cols, capacity), Data("coefs", coefs, capacity),
             Out("constants", constants, kAsScripted), capacity, SizeOf("required", required, {"cols", "coefs"})});
}

int VORQ_GetQConstr(VORQ_Prob* prob, int index, int* nLin, int* linIdx, double* linCoef, int* nQuad, int* qRow,
                    int* qCol, double* qCoef, char* sense, double* bound, int capacity, int* required) {
  return Do(
      __func__, prob,
      {index, SizeOf("nLin", nLin, {"linIdx"}), Data("linIdx", linIdx, capacity), Data("linCoef", linCoef, capacity),
       SizeOf("nQuad", nQuad, {"qRow"}), Data("qRow", qRow, capacity), Data("qCol", qCol, capacity),
       Data("qCoef", qCoef, capacity), Out("sense", sense, 1, 'L'), Out("bound", bound), capacity,
       SizeOf("required", required, {"linIdx", "linCoef", "qRow", "qCol", "qCoef"})});
}

int VORQ_GetPSDConstr(VORQ_Prob* prob, int index, int* nLin, int* linIdx, double* linCoef, int* nPsd, int* psdCols,
                      int* symMats, double* lower, double* upper, int capacity, int* required) {
  return Do(__func__, prob,
            {index, SizeOf("nLin", nLin, {"linIdx"}), Data("linIdx", linIdx, capacity),
             Data("linCoef", linCoef, capacity), SizeOf("nPsd", nPsd, {"psdCols"}), Data("psdCols", psdCols, capacity),
             Data("symMats", symMats, capacity), Out("lower", lower), Out("upper", upper), capacity,
             SizeOf("required", required, {"linIdx", "linCoef", "psdCols", "symMats"})});
}

int VORQ_GetLMIConstr(VORQ_Prob* prob, int index, int* dim, int* n, int* cols, int* symMats, int* constant,
                      int capacity, int* required) {
  return Do(__func__, prob,
            {index, Out("dim", dim), SizeOf("n", n, {"cols"}), Data("cols", cols, capacity),
             Data("symMats", symMats, capacity), Out("constant", constant, 1, -1), capacity,
             SizeOf("required", required, {"cols", "symMats"})},
            [index](Store& store, Outputs& outputs) {
              if (Item const* item = store.Find(kLmiConstrs, index)) outputs.emplace("dim", item->dim);
              return VORQ_OK;
            });
}

int VORQ_GetPSDCols(VORQ_Prob* prob, int count, int const* indices, int* dims, int* lens) {
  return Do(__func__, prob, {count, Optional(indices, count), Out("dims", dims, count), Out("lens", lens, count)},
            [=](Store& store, Outputs& outputs) {
              std::vector<double> itemDims, itemLens;
              for (int k = 0; k < count; ++k) {
                Item const* item = store.Find(kPsdCols, indices == nullptr ? k : indices[k]);
                int const dim = item == nullptr ? kGarbage<int> : item->dim;
                itemDims.push_back(dim);
                itemLens.push_back(item == nullptr ? dim : dim * dim);
              }
              outputs.emplace("dims", std::move(itemDims));
              outputs.emplace("lens", std::move(itemLens));
              return VORQ_OK;
            });
}

int VORQ_GetSymMat(VORQ_Prob* prob, int index, int* dim, int* n, int* rows, int* cols, double* values) {
  return Do(
      __func__, prob,
      {index, Out("dim", dim), SizeOf("n", n, {"rows"}), Out("rows", rows, kAsScripted), Out("cols", cols, kAsScripted),
       Out("values", values, kAsScripted)},
      [index](Store& store, Outputs& outputs) {
        if (Item const* item = store.Find(kSymMats, index)) {
          outputs.insert({{"dim", item->dim}, {"rows", item->rows}, {"cols", item->cols}, {"values", item->values}});
        }
        return VORQ_OK;
      });
}

// ---- Names of items

namespace {

int SearchName(char const* function, VORQ_Prob* prob, Kind kind, char const* name, int* index) {
  return Do(function, prob, {Text(name), Out("index", index)}, [=](Store& store, Outputs& outputs) -> int {
    int const found = store.Search(kind, NameOf(name));
    if (found < 0) return VORQ_INVALID;
    outputs.emplace("index", found);
    return VORQ_OK;
  });
}

int SetNames(char const* function, VORQ_Prob* prob, Kind kind, int count, int const* indices,
             char const* const* names) {
  return Do(function, prob, {count, Array(indices, count), Array(names, count)}, [=](Store& store, Outputs&) {
    for (int k = 0; k < count; ++k) {
      if (Item* item = store.Find(kind, indices[k])) item->name = NameOf(names[k]);
    }
    return VORQ_OK;
  });
}

int GetName(char const* function, VORQ_Prob* prob, Kind kind, int index, char* buffer, int capacity, int* required) {
  return Do(function, prob, {index, TextBuffer(buffer, capacity), capacity, TextSize(required)},
            [=](Store& store, Outputs& outputs) {
              Item const* item = store.Find(kind, index);
              outputs.emplace("buffer", item == nullptr ? "" : item->name);
              return VORQ_OK;
            });
}

}  // namespace

#define NAME_FUNCTIONS(item, kind)                                                                      \
  int VORQ_Get##item##Idx(VORQ_Prob* prob, char const* name, int* index) {                              \
    return SearchName(__func__, prob, kind, name, index);                                               \
  }                                                                                                     \
  int VORQ_Set##item##Names(VORQ_Prob* prob, int count, int const* indices, char const* const* names) { \
    return SetNames(__func__, prob, kind, count, indices, names);                                       \
  }                                                                                                     \
  int VORQ_Get##item##Name(VORQ_Prob* prob, int index, char* buffer, int capacity, int* required) {     \
    return GetName(__func__, prob, kind, index, buffer, capacity, required);                            \
  }
NAME_FUNCTIONS(Col, kCols)
NAME_FUNCTIONS(Row, kRows)
NAME_FUNCTIONS(Indicator, kIndicators)
NAME_FUNCTIONS(AffineCone, kAffineCones)
NAME_FUNCTIONS(QConstr, kQConstrs)
NAME_FUNCTIONS(PSDCol, kPsdCols)
NAME_FUNCTIONS(PSDConstr, kPsdConstrs)
NAME_FUNCTIONS(LMIConstr, kLmiConstrs)
#undef NAME_FUNCTIONS

// ---- Attributes of items

#define ITEM_GETTER(function, type, values)                                                   \
  int function(VORQ_Prob* prob, int count, int const* indices, type* values) {                \
    return Do(__func__, prob, {count, Optional(indices, count), Out(#values, values, count)}, \
              ReadsItems(__func__, "", count, indices, #values));                             \
  }
ITEM_GETTER(VORQ_GetColBasis, int, basis)
ITEM_GETTER(VORQ_GetRowBasis, int, basis)
ITEM_GETTER(VORQ_GetColLowerIIS, int, flags)
ITEM_GETTER(VORQ_GetColUpperIIS, int, flags)
ITEM_GETTER(VORQ_GetRowLowerIIS, int, flags)
ITEM_GETTER(VORQ_GetRowUpperIIS, int, flags)
ITEM_GETTER(VORQ_GetSOSIIS, int, flags)
ITEM_GETTER(VORQ_GetIndicatorIIS, int, flags)
ITEM_GETTER(VORQ_GetQConstrSense, char, senses)
ITEM_GETTER(VORQ_GetQConstrRhs, double, rhss)
#undef ITEM_GETTER

int VORQ_GetColType(VORQ_Prob* prob, int count, int const* indices, char* types) {
  return Do(__func__, prob, {count, Optional(indices, count), Out("types", types, count)},
            [=, function = __func__](Store& store, Outputs& outputs) {
              ReadsItems(function, "", count, indices, "types")(store, outputs);
              std::vector<double> stored;
              for (int k = 0; k < count; ++k) {
                Item const* item = store.Find(kCols, indices == nullptr ? k : indices[k]);
                stored.push_back(item == nullptr ? kGarbage<char> : item->type);
              }
              outputs.emplace("types", std::move(stored));
              return VORQ_OK;
            });
}

int VORQ_SetColType(VORQ_Prob* prob, int count, int const* indices, char const* types) {
  return Do(__func__, prob, {count, Array(indices, count), Array(types, count)}, [=](Store& store, Outputs&) {
    for (int k = 0; k < count; ++k) {
      if (Item* item = store.Find(kCols, indices[k])) item->type = types[k];
    }
    return VORQ_OK;
  });
}

#define ITEM_SETTER(function, type)                                                  \
  int function(VORQ_Prob* prob, int count, int const* indices, type const* values) { \
    return Do(__func__, prob, {count, Array(indices, count), Array(values, count)}); \
  }
ITEM_SETTER(VORQ_SetQConstrSense, char)
ITEM_SETTER(VORQ_SetQConstrRhs, double)
ITEM_SETTER(VORQ_SetColLower, double)
ITEM_SETTER(VORQ_SetColUpper, double)
ITEM_SETTER(VORQ_SetColObj, double)
ITEM_SETTER(VORQ_SetRowLower, double)
ITEM_SETTER(VORQ_SetRowUpper, double)
ITEM_SETTER(VORQ_SetPSDConstrLower, double)
ITEM_SETTER(VORQ_SetPSDConstrUpper, double)
#undef ITEM_SETTER

#define INFO_GETTER(function)                                                                                  \
  int function(VORQ_Prob* prob, char const* infoName, int count, int const* indices, double* values) {         \
    return Do(__func__, prob, {Text(infoName), count, Optional(indices, count), Out("values", values, count)}, \
              ReadsItems(__func__, infoName, count, indices, "values"));                                       \
  }
INFO_GETTER(VORQ_GetColInfo)
INFO_GETTER(VORQ_GetRowInfo)
INFO_GETTER(VORQ_GetQConstrInfo)
INFO_GETTER(VORQ_GetPSDConstrInfo)
#undef INFO_GETTER

// Matrices: the scripted values whole, as long as the matrices are.
#define MATRIX_INFO_GETTER(function)                                                                                 \
  int function(VORQ_Prob* prob, char const* infoName, int count, int const* indices, double* values) {               \
    return Do(__func__, prob, {Text(infoName), count, Optional(indices, count), Out("values", values, kAsScripted)}, \
              ReadsList(__func__, infoName, "values"));                                                              \
  }
MATRIX_INFO_GETTER(VORQ_GetPSDColInfo)
MATRIX_INFO_GETTER(VORQ_GetLMIConstrInfo)
#undef MATRIX_INFO_GETTER
