/* The C interface of the solver library: 193 functions over an environment and a problem.
 *
 *     VORQ_Env* env = NULL;
 *     VORQ_Prob* prob = NULL;
 *     VORQ_CreateEnvWithPath(NULL, &env);
 *     VORQ_CreateProb(env, &prob);
 *     VORQ_AddCol(prob, 1.0, 0, NULL, NULL, 'C', 0.0, 4.0, "x");
 *     VORQ_SetObjSense(prob, VORQ_MAXIMIZE);
 *     VORQ_Solve(prob);
 *     VORQ_DeleteProb(&prob);
 *     VORQ_DeleteEnv(&env);
 *
 * Every function returns a return code, VORQ_OK for success. Indices start at 0 and are
 * 32-bit; new items are appended, deleted items close their gaps. Infinite bounds are
 * VORQ_INFINITY and its negative. A null index list in a batch read means all items in order.
 *
 * Required-size protocol: where a function has `capacity` and `required` as its last two
 * arguments, a call with null data arrays, capacity 0 and the address of an int stores the
 * number of elements there; a second call with arrays, their capacity and a null `required`
 * fetches them. A name getter returns VORQ_INVALID when the buffer is too small, and stores
 * the required size, terminating zero included.
 *
 * docs/solver-library.md gives the meaning of each buffer, the signs of duals, the status
 * numbers and the basis codes. The header compiles as C and as C++.
 */
#ifndef VORQ_SOLVER_H
#define VORQ_SOLVER_H

#if defined(__GNUC__)
#define VORQ_API __attribute__((visibility("default")))
#else
#define VORQ_API
#endif

/* Infinite bounds, and the entry of a solution vector that is left open. */
#define VORQ_INFINITY 1e30
#define VORQ_UNDEFINED 1e40

/* Senses of the objective. */
#define VORQ_MINIMIZE 1
#define VORQ_MAXIMIZE (-1)

#ifdef __cplusplus
extern "C" {
#endif

typedef struct VORQ_Env VORQ_Env;
typedef struct VORQ_EnvConfig VORQ_EnvConfig;
typedef struct VORQ_Prob VORQ_Prob;
typedef struct VORQ_CallbackData VORQ_CallbackData;

/* Return codes. */
enum VORQ_Retcode {
  VORQ_OK = 0,
  VORQ_MEMORY = 1,
  VORQ_FILE = 2,
  VORQ_INVALID = 3,
  VORQ_INTERNAL = 5,
  VORQ_THREAD = 6,
  VORQ_SERVER = 7,
  VORQ_NONCONVEX = 8
};

/* Kinds of a parameter or attribute name, as VORQ_SearchParamAttr reports them. */
enum VORQ_NameKind {
  VORQ_UNKNOWN_NAME = -1,
  VORQ_DBL_PARAM = 0,
  VORQ_INT_PARAM = 1,
  VORQ_DBL_ATTR = 2,
  VORQ_INT_ATTR = 3
};

/* Where a MIP solve calls back; sums of them are the context mask of VORQ_SetCallback, and -1
 * stands for all. */
enum VORQ_Context {
  VORQ_CONTEXT_RELAXATION = 1, /* the relaxation of a node was solved */
  VORQ_CONTEXT_CANDIDATE = 2,  /* a solution was found that lazy constraints may cut off */
  VORQ_CONTEXT_INCUMBENT = 4   /* a solution was accepted as the best so far */
};

typedef void (*VORQ_LogFunction)(char const* line, void* user);
typedef int (*VORQ_CallbackFunction)(VORQ_Prob* prob, VORQ_CallbackData* data, int context, void* user);

/* ---------------------------------------------------------------- environment (10) */
VORQ_API int VORQ_GetBanner(char* buffer, int capacity);
VORQ_API int VORQ_CreateEnvWithPath(char const* path, VORQ_Env** env);
VORQ_API int VORQ_CreateEnvWithConfig(VORQ_EnvConfig* config, VORQ_Env** env);
VORQ_API int VORQ_CloseEnv(VORQ_Env** env);
VORQ_API int VORQ_DeleteEnv(VORQ_Env** env);
VORQ_API int VORQ_CreateEnvConfig(VORQ_EnvConfig** config);
VORQ_API int VORQ_DeleteEnvConfig(VORQ_EnvConfig** config);
VORQ_API int VORQ_SetEnvConfig(VORQ_EnvConfig* config, char const* name, char const* value);
VORQ_API int VORQ_GetRetcodeMsg(int code, char* buffer, int capacity);
VORQ_API int VORQ_SearchParamAttr(VORQ_Prob* prob, char const* name, int* type);

/* -------------------------------------------------------------------- problem (6) */
VORQ_API int VORQ_CreateProb(VORQ_Env* env, VORQ_Prob** prob);
VORQ_API int VORQ_CreateCopy(VORQ_Prob* prob, VORQ_Prob** copy);
VORQ_API int VORQ_DeleteProb(VORQ_Prob** prob);
VORQ_API int VORQ_ClearProb(VORQ_Prob* prob);
VORQ_API int VORQ_Reset(VORQ_Prob* prob, int all);
VORQ_API int VORQ_ResetParam(VORQ_Prob* prob);

/* -------------------------------------------------------------------- adding (20) */
VORQ_API int VORQ_AddCol(VORQ_Prob* prob, double obj, int n, int const* rows, double const* coefs, int type, double lb,
                         double ub, char const* name);
VORQ_API int VORQ_AddCols(VORQ_Prob* prob, int count, double const* objs, int const* colBeg, int const* colCnt,
                          int const* rows, double const* coefs, char const* types, double const* lbs, double const* ubs,
                          char const* const* names);
VORQ_API int VORQ_AddRow(VORQ_Prob* prob, int n, int const* cols, double const* coefs, int sense, double bound,
                         double upper, char const* name);
VORQ_API int VORQ_AddRows(VORQ_Prob* prob, int count, int const* rowBeg, int const* rowCnt, int const* cols,
                          double const* coefs, char const* senses, double const* lowers, double const* uppers,
                          char const* const* names);
VORQ_API int VORQ_AddUserCut(VORQ_Prob* prob, int n, int const* cols, double const* coefs, int sense, double bound,
                             double upper, char const* name);
VORQ_API int VORQ_AddUserCuts(VORQ_Prob* prob, int count, int const* rowBeg, int const* rowCnt, int const* cols,
                              double const* coefs, char const* senses, double const* lowers, double const* uppers,
                              char const* const* names);
VORQ_API int VORQ_AddLazyConstr(VORQ_Prob* prob, int n, int const* cols, double const* coefs, int sense, double bound,
                                double upper, char const* name);
VORQ_API int VORQ_AddLazyConstrs(VORQ_Prob* prob, int count, int const* rowBeg, int const* rowCnt, int const* cols,
                                 double const* coefs, char const* senses, double const* lowers, double const* uppers,
                                 char const* const* names);
VORQ_API int VORQ_AddSOSs(VORQ_Prob* prob, int count, int const* types, int const* begins, int const* counts,
                          int const* cols, double const* weights);
VORQ_API int VORQ_AddCones(VORQ_Prob* prob, int count, int const* types, int const* begins, int const* counts,
                           int const* cols);
VORQ_API int VORQ_AddExpCones(VORQ_Prob* prob, int count, int const* types, int const* cols);
VORQ_API int VORQ_AddAffineCone(VORQ_Prob* prob, int type, int nExprs, int reserved1, int reserved2, int const* psdBeg,
                                int const* psdCnt, int const* psdCols, int const* psdMats, int const* rowBeg,
                                int const* rowCnt, int const* cols, double const* coefs, double const* constants,
                                char const* name);
VORQ_API int VORQ_AddQConstr(VORQ_Prob* prob, int nLin, int const* linIdx, double const* linCoef, int nQuad,
                             int const* qRow, int const* qCol, double const* qCoef, int sense, double bound,
                             char const* name);
VORQ_API int VORQ_AddIndicators(VORQ_Prob* prob, int count, int const* types, int const* binCols, int const* binVals,
                                int const* rowBeg, int const* rowCnt, int const* cols, double const* coefs,
                                char const* senses, double const* rhss, char const* const* names);
VORQ_API int VORQ_AddPSDCol(VORQ_Prob* prob, int dim, char const* name);
VORQ_API int VORQ_AddPSDCols(VORQ_Prob* prob, int count, int const* dims, char const* const* names);
VORQ_API int VORQ_AddPSDConstr(VORQ_Prob* prob, int nLin, int const* linIdx, double const* linCoef, int nPsd,
                               int const* psdCols, int const* symMats, int sense, double bound, double upper,
                               char const* name);
VORQ_API int VORQ_AddLMIConstr(VORQ_Prob* prob, int dim, int n, int const* cols, int const* symMats, int constant,
                               char const* name);
VORQ_API int VORQ_AddSymMat(VORQ_Prob* prob, int dim, int n, int const* rows, int const* cols, double const* values);

/* ------------------------------------------------------------------ deleting (11) */
VORQ_API int VORQ_DelCols(VORQ_Prob* prob, int count, int const* indices);
VORQ_API int VORQ_DelRows(VORQ_Prob* prob, int count, int const* indices);
VORQ_API int VORQ_DelSOSs(VORQ_Prob* prob, int count, int const* indices);
VORQ_API int VORQ_DelCones(VORQ_Prob* prob, int count, int const* indices);
VORQ_API int VORQ_DelExpCones(VORQ_Prob* prob, int count, int const* indices);
VORQ_API int VORQ_DelAffineCones(VORQ_Prob* prob, int count, int const* indices);
VORQ_API int VORQ_DelIndicators(VORQ_Prob* prob, int count, int const* indices);
VORQ_API int VORQ_DelQConstrs(VORQ_Prob* prob, int count, int const* indices);
VORQ_API int VORQ_DelPSDCols(VORQ_Prob* prob, int count, int const* indices);
VORQ_API int VORQ_DelPSDConstrs(VORQ_Prob* prob, int count, int const* indices);
VORQ_API int VORQ_DelLMIConstrs(VORQ_Prob* prob, int count, int const* indices);

/* ------------------------------------------------------------- reading back (12) */
VORQ_API int VORQ_GetCols(VORQ_Prob* prob, int count, int const* indices, int* colBeg, int* colCnt, int* rows,
                          double* coefs, int capacity, int* required);
VORQ_API int VORQ_GetRows(VORQ_Prob* prob, int count, int const* indices, int* rowBeg, int* rowCnt, int* cols,
                          double* coefs, int capacity, int* required);
VORQ_API int VORQ_GetSOSs(VORQ_Prob* prob, int count, int const* indices, int* types, int* begins, int* counts,
                          int* cols, double* weights, int capacity, int* required);
VORQ_API int VORQ_GetCones(VORQ_Prob* prob, int count, int const* indices, int* types, int* begins, int* counts,
                           int* cols, int capacity, int* required);
VORQ_API int VORQ_GetExpCones(VORQ_Prob* prob, int count, int const* indices, int* types, int* cols, int capacity,
                              int* required);
VORQ_API int VORQ_GetIndicators(VORQ_Prob* prob, int count, int const* indices, int* types, int* binCols, int* binVals,
                                int* rowBeg, int* rowCnt, int* cols, double* coefs, char* senses, double* rhss,
                                int capacity, int* required);
VORQ_API int VORQ_GetAffineCone(VORQ_Prob* prob, int index, int* type, int* nExprs, int reserved1, int reserved2,
                                int* psdBeg, int* psdCnt, int* psdCols, int* psdMats, int psdCapacity, int* psdRequired,
                                int* rowBeg, int* rowCnt, int* cols, double* coefs, double* constants, int capacity,
                                int* required);
VORQ_API int VORQ_GetQConstr(VORQ_Prob* prob, int index, int* nLin, int* linIdx, double* linCoef, int* nQuad, int* qRow,
                             int* qCol, double* qCoef, char* sense, double* bound, int capacity, int* required);
VORQ_API int VORQ_GetPSDConstr(VORQ_Prob* prob, int index, int* nLin, int* linIdx, double* linCoef, int* nPsd,
                               int* psdCols, int* symMats, double* lower, double* upper, int capacity, int* required);
VORQ_API int VORQ_GetLMIConstr(VORQ_Prob* prob, int index, int* dim, int* n, int* cols, int* symMats, int* constant,
                               int capacity, int* required);
VORQ_API int VORQ_GetPSDCols(VORQ_Prob* prob, int count, int const* indices, int* dims, int* lens);
VORQ_API int VORQ_GetSymMat(VORQ_Prob* prob, int index, int* dim, int* n, int* rows, int* cols, double* values);

/* ------------------------------------------------------------ names of items (24) */
VORQ_API int VORQ_GetColIdx(VORQ_Prob* prob, char const* name, int* index);
VORQ_API int VORQ_GetRowIdx(VORQ_Prob* prob, char const* name, int* index);
VORQ_API int VORQ_GetIndicatorIdx(VORQ_Prob* prob, char const* name, int* index);
VORQ_API int VORQ_GetAffineConeIdx(VORQ_Prob* prob, char const* name, int* index);
VORQ_API int VORQ_GetQConstrIdx(VORQ_Prob* prob, char const* name, int* index);
VORQ_API int VORQ_GetPSDColIdx(VORQ_Prob* prob, char const* name, int* index);
VORQ_API int VORQ_GetPSDConstrIdx(VORQ_Prob* prob, char const* name, int* index);
VORQ_API int VORQ_GetLMIConstrIdx(VORQ_Prob* prob, char const* name, int* index);

VORQ_API int VORQ_SetColNames(VORQ_Prob* prob, int count, int const* indices, char const* const* names);
VORQ_API int VORQ_SetRowNames(VORQ_Prob* prob, int count, int const* indices, char const* const* names);
VORQ_API int VORQ_SetIndicatorNames(VORQ_Prob* prob, int count, int const* indices, char const* const* names);
VORQ_API int VORQ_SetAffineConeNames(VORQ_Prob* prob, int count, int const* indices, char const* const* names);
VORQ_API int VORQ_SetQConstrNames(VORQ_Prob* prob, int count, int const* indices, char const* const* names);
VORQ_API int VORQ_SetPSDColNames(VORQ_Prob* prob, int count, int const* indices, char const* const* names);
VORQ_API int VORQ_SetPSDConstrNames(VORQ_Prob* prob, int count, int const* indices, char const* const* names);
VORQ_API int VORQ_SetLMIConstrNames(VORQ_Prob* prob, int count, int const* indices, char const* const* names);

VORQ_API int VORQ_GetColName(VORQ_Prob* prob, int index, char* buffer, int capacity, int* required);
VORQ_API int VORQ_GetRowName(VORQ_Prob* prob, int index, char* buffer, int capacity, int* required);
VORQ_API int VORQ_GetIndicatorName(VORQ_Prob* prob, int index, char* buffer, int capacity, int* required);
VORQ_API int VORQ_GetAffineConeName(VORQ_Prob* prob, int index, char* buffer, int capacity, int* required);
VORQ_API int VORQ_GetQConstrName(VORQ_Prob* prob, int index, char* buffer, int capacity, int* required);
VORQ_API int VORQ_GetPSDColName(VORQ_Prob* prob, int index, char* buffer, int capacity, int* required);
VORQ_API int VORQ_GetPSDConstrName(VORQ_Prob* prob, int index, char* buffer, int capacity, int* required);
VORQ_API int VORQ_GetLMIConstrName(VORQ_Prob* prob, int index, char* buffer, int capacity, int* required);

/* ------------------------------------------------------- attributes of items (27) */
VORQ_API int VORQ_GetColType(VORQ_Prob* prob, int count, int const* indices, char* types);
VORQ_API int VORQ_SetColType(VORQ_Prob* prob, int count, int const* indices, char const* types);
VORQ_API int VORQ_GetColBasis(VORQ_Prob* prob, int count, int const* indices, int* basis);
VORQ_API int VORQ_GetRowBasis(VORQ_Prob* prob, int count, int const* indices, int* basis);
VORQ_API int VORQ_GetColLowerIIS(VORQ_Prob* prob, int count, int const* indices, int* flags);
VORQ_API int VORQ_GetColUpperIIS(VORQ_Prob* prob, int count, int const* indices, int* flags);
VORQ_API int VORQ_GetRowLowerIIS(VORQ_Prob* prob, int count, int const* indices, int* flags);
VORQ_API int VORQ_GetRowUpperIIS(VORQ_Prob* prob, int count, int const* indices, int* flags);
VORQ_API int VORQ_GetSOSIIS(VORQ_Prob* prob, int count, int const* indices, int* flags);
VORQ_API int VORQ_GetIndicatorIIS(VORQ_Prob* prob, int count, int const* indices, int* flags);
VORQ_API int VORQ_GetQConstrSense(VORQ_Prob* prob, int count, int const* indices, char* senses);
VORQ_API int VORQ_SetQConstrSense(VORQ_Prob* prob, int count, int const* indices, char const* senses);
VORQ_API int VORQ_GetQConstrRhs(VORQ_Prob* prob, int count, int const* indices, double* rhss);
VORQ_API int VORQ_SetQConstrRhs(VORQ_Prob* prob, int count, int const* indices, double const* rhss);

VORQ_API int VORQ_SetColLower(VORQ_Prob* prob, int count, int const* indices, double const* values);
VORQ_API int VORQ_SetColUpper(VORQ_Prob* prob, int count, int const* indices, double const* values);
VORQ_API int VORQ_SetColObj(VORQ_Prob* prob, int count, int const* indices, double const* values);
VORQ_API int VORQ_SetRowLower(VORQ_Prob* prob, int count, int const* indices, double const* values);
VORQ_API int VORQ_SetRowUpper(VORQ_Prob* prob, int count, int const* indices, double const* values);
VORQ_API int VORQ_SetPSDConstrLower(VORQ_Prob* prob, int count, int const* indices, double const* values);
VORQ_API int VORQ_SetPSDConstrUpper(VORQ_Prob* prob, int count, int const* indices, double const* values);

VORQ_API int VORQ_GetColInfo(VORQ_Prob* prob, char const* infoName, int count, int const* indices, double* values);
VORQ_API int VORQ_GetRowInfo(VORQ_Prob* prob, char const* infoName, int count, int const* indices, double* values);
VORQ_API int VORQ_GetQConstrInfo(VORQ_Prob* prob, char const* infoName, int count, int const* indices, double* values);
VORQ_API int VORQ_GetPSDColInfo(VORQ_Prob* prob, char const* infoName, int count, int const* indices, double* values);
VORQ_API int VORQ_GetPSDConstrInfo(VORQ_Prob* prob, char const* infoName, int count, int const* indices,
                                   double* values);
VORQ_API int VORQ_GetLMIConstrInfo(VORQ_Prob* prob, char const* infoName, int count, int const* indices,
                                   double* values);

/* ------------------------------------------------- coefficients and bulk loads (11) */
VORQ_API int VORQ_GetElem(VORQ_Prob* prob, int col, int row, double* value);
VORQ_API int VORQ_SetElem(VORQ_Prob* prob, int col, int row, double value);
VORQ_API int VORQ_SetElems(VORQ_Prob* prob, int count, int const* cols, int const* rows, double const* values);
VORQ_API int VORQ_GetPSDElem(VORQ_Prob* prob, int psdCol, int constr, int* symMat);
VORQ_API int VORQ_SetPSDElem(VORQ_Prob* prob, int psdCol, int constr, int symMat);
VORQ_API int VORQ_GetLMIElem(VORQ_Prob* prob, int col, int constr, int* symMat);
VORQ_API int VORQ_SetLMIElem(VORQ_Prob* prob, int col, int constr, int symMat);
VORQ_API int VORQ_GetLMIConstrRhs(VORQ_Prob* prob, int count, int const* indices, int* symMats);
VORQ_API int VORQ_SetLMIConstrRhs(VORQ_Prob* prob, int count, int const* indices, int const* symMats);
VORQ_API int VORQ_LoadProb(VORQ_Prob* prob, int nCols, int nRows, int sense, double objConst, double const* objs,
                           int const* colBeg, int const* colCnt, int const* rows, double const* coefs,
                           char const* types, double const* lbs, double const* ubs, char const* senses,
                           double const* lowers, double const* uppers, char const* const* colNames,
                           char const* const* rowNames);
/* Matrices lie behind each other: matrix k has its elements at symBeg[k] to symBeg[k + 1] - 1.
 * Cones lie behind each other in coneCols by their dimensions. psdObjMats holds the matrix of
 * each PSD column in the objective, -1 for none. */
VORQ_API int VORQ_LoadConeProb(VORQ_Prob* prob, int nCols, int nRows, int nCones, int nExpCones, int nPsdCols,
                               int nSymMats, int nSymElems, int nQuad, int const* symDims, int const* symBeg,
                               int const* symRows, int const* symCols, double const* symVals, int sense,
                               double objConst, double const* objs, int const* colBeg, int const* colCnt,
                               int const* rows, double const* coefs, char const* types, double const* lbs,
                               double const* ubs, double const* lowers, double const* uppers, int const* quadRows,
                               int const* quadCols, double const* quadVals, int const* coneTypes, int const* coneDims,
                               int const* coneCols, int const* expConeTypes, int const* expConeCols, int const* psdDims,
                               char const* const* colNames, char const* const* rowNames, char const* const* psdColNames,
                               int const* psdObjMats);

/* ------------------------------------------------------------------- objective (9) */
VORQ_API int VORQ_SetObjSense(VORQ_Prob* prob, int sense);
VORQ_API int VORQ_SetObjConst(VORQ_Prob* prob, double constant);
VORQ_API int VORQ_ReplaceColObj(VORQ_Prob* prob, int count, int const* cols, double const* values);
VORQ_API int VORQ_SetQuadObj(VORQ_Prob* prob, int count, int const* rows, int const* cols, double const* values);
VORQ_API int VORQ_GetQuadObj(VORQ_Prob* prob, int* count, int* rows, int* cols, double* values);
VORQ_API int VORQ_DelQuadObj(VORQ_Prob* prob);
VORQ_API int VORQ_ReplacePSDObj(VORQ_Prob* prob, int count, int const* psdCols, int const* symMats);
VORQ_API int VORQ_GetPSDObj(VORQ_Prob* prob, int psdCol, int* symMat);
VORQ_API int VORQ_DelPSDObj(VORQ_Prob* prob);

/* -------------------------------------------------------------------- solving (19) */
VORQ_API int VORQ_Solve(VORQ_Prob* prob);
VORQ_API int VORQ_SolveLp(VORQ_Prob* prob);
VORQ_API int VORQ_ComputeIIS(VORQ_Prob* prob);
VORQ_API int VORQ_FeasRelax(VORQ_Prob* prob, double const* colLow, double const* colUpp, double const* rowBnd,
                            double const* rowUpp);
VORQ_API int VORQ_Tune(VORQ_Prob* prob);
VORQ_API int VORQ_LoadTuneParam(VORQ_Prob* prob, int index);
VORQ_API int VORQ_Interrupt(VORQ_Prob* prob);
VORQ_API int VORQ_GetSolution(VORQ_Prob* prob, double* values);
VORQ_API int VORQ_GetLpSolution(VORQ_Prob* prob, double* values, double* slacks, double* duals, double* redCosts);
VORQ_API int VORQ_SetLpSolution(VORQ_Prob* prob, double const* values, double const* slacks, double const* duals,
                                double const* redCosts);
VORQ_API int VORQ_GetPSDSolution(VORQ_Prob* prob, double* values, double* slacks, double* duals, double* redCosts);
VORQ_API int VORQ_GetLMISolution(VORQ_Prob* prob, double* slacks, double* duals);
VORQ_API int VORQ_GetBasis(VORQ_Prob* prob, int* colBasis, int* rowBasis);
VORQ_API int VORQ_SetBasis(VORQ_Prob* prob, int const* colBasis, int const* rowBasis);
VORQ_API int VORQ_SetSlackBasis(VORQ_Prob* prob);
VORQ_API int VORQ_GetPoolObjVal(VORQ_Prob* prob, int index, double* value);
VORQ_API int VORQ_GetPoolSolution(VORQ_Prob* prob, int index, int count, int const* cols, double* values);
VORQ_API int VORQ_AddMipStart(VORQ_Prob* prob, int count, int const* cols, double const* values);
VORQ_API int VORQ_SetLogFile(VORQ_Prob* prob, char const* path);

/* ---------------------------------------------------------------------- files (24) */
VORQ_API int VORQ_ReadMps(VORQ_Prob* prob, char const* path);
VORQ_API int VORQ_ReadLp(VORQ_Prob* prob, char const* path);
VORQ_API int VORQ_ReadSDPA(VORQ_Prob* prob, char const* path);
VORQ_API int VORQ_ReadCbf(VORQ_Prob* prob, char const* path);
VORQ_API int VORQ_ReadBin(VORQ_Prob* prob, char const* path);
VORQ_API int VORQ_ReadSol(VORQ_Prob* prob, char const* path);
VORQ_API int VORQ_ReadBasis(VORQ_Prob* prob, char const* path);
VORQ_API int VORQ_ReadMst(VORQ_Prob* prob, char const* path);
VORQ_API int VORQ_ReadParam(VORQ_Prob* prob, char const* path);
VORQ_API int VORQ_ReadTune(VORQ_Prob* prob, char const* path);
VORQ_API int VORQ_WriteMps(VORQ_Prob* prob, char const* path);
VORQ_API int VORQ_WriteMpsStr(VORQ_Prob* prob, char* buffer, int capacity, int* required);
VORQ_API int VORQ_WriteLp(VORQ_Prob* prob, char const* path);
VORQ_API int VORQ_WriteCbf(VORQ_Prob* prob, char const* path);
VORQ_API int VORQ_WriteBin(VORQ_Prob* prob, char const* path);
VORQ_API int VORQ_WriteNL(VORQ_Prob* prob, char const* path);
VORQ_API int VORQ_WriteIIS(VORQ_Prob* prob, char const* path);
VORQ_API int VORQ_WriteRelax(VORQ_Prob* prob, char const* path);
VORQ_API int VORQ_WriteSol(VORQ_Prob* prob, char const* path);
VORQ_API int VORQ_WritePoolSol(VORQ_Prob* prob, int index, char const* path);
VORQ_API int VORQ_WriteBasis(VORQ_Prob* prob, char const* path);
VORQ_API int VORQ_WriteMst(VORQ_Prob* prob, char const* path);
VORQ_API int VORQ_WriteParam(VORQ_Prob* prob, char const* path);
VORQ_API int VORQ_WriteTuneParam(VORQ_Prob* prob, int index, char const* path);

/* --------------------------------------------------- parameters and attributes (12) */
VORQ_API int VORQ_GetIntParam(VORQ_Prob* prob, char const* name, int* value);
VORQ_API int VORQ_GetDblParam(VORQ_Prob* prob, char const* name, double* value);
VORQ_API int VORQ_SetIntParam(VORQ_Prob* prob, char const* name, int value);
VORQ_API int VORQ_SetDblParam(VORQ_Prob* prob, char const* name, double value);
VORQ_API int VORQ_GetIntParamDef(VORQ_Prob* prob, char const* name, int* value);
VORQ_API int VORQ_GetDblParamDef(VORQ_Prob* prob, char const* name, double* value);
VORQ_API int VORQ_GetIntParamMin(VORQ_Prob* prob, char const* name, int* value);
VORQ_API int VORQ_GetDblParamMin(VORQ_Prob* prob, char const* name, double* value);
VORQ_API int VORQ_GetIntParamMax(VORQ_Prob* prob, char const* name, int* value);
VORQ_API int VORQ_GetDblParamMax(VORQ_Prob* prob, char const* name, double* value);
VORQ_API int VORQ_GetIntAttr(VORQ_Prob* prob, char const* name, int* value);
VORQ_API int VORQ_GetDblAttr(VORQ_Prob* prob, char const* name, double* value);

/* ------------------------------------------------------- callbacks and logging (9) */
VORQ_API int VORQ_SetLogCallback(VORQ_Prob* prob, VORQ_LogFunction function, void* user);
VORQ_API int VORQ_SetCallback(VORQ_Prob* prob, VORQ_CallbackFunction function, int contextMask, void* user);
VORQ_API int VORQ_GetCallbackInfo(VORQ_CallbackData* data, char const* name, void* value);
VORQ_API int VORQ_SearchCallbackInfo(VORQ_Prob* prob, char const* name, int* type, int* dim);
VORQ_API int VORQ_AddCallbackSolution(VORQ_CallbackData* data, double const* values, double* objective);
VORQ_API int VORQ_AddCallbackUserCut(VORQ_CallbackData* data, int n, int const* cols, double const* coefs, int sense,
                                     double rhs);
VORQ_API int VORQ_AddCallbackUserCuts(VORQ_CallbackData* data, int count, int const* rowBeg, int const* rowCnt,
                                      int const* cols, double const* coefs, char const* senses, double const* rhss);
VORQ_API int VORQ_AddCallbackLazyConstr(VORQ_CallbackData* data, int n, int const* cols, double const* coefs, int sense,
                                        double rhs);
VORQ_API int VORQ_AddCallbackLazyConstrs(VORQ_CallbackData* data, int count, int const* rowBeg, int const* rowCnt,
                                         int const* cols, double const* coefs, char const* senses, double const* rhss);

#ifdef __cplusplus
}
#endif

#endif
