// ConeProblem: a whole problem with cones, PSD columns and a quadratic objective as arrays, as the solver library loads
// it.
#pragma once

namespace Vorq {

// Arrays that are not needed may be null. Matrix k has its elements at symBeg[k] to symBeg[k + 1] - 1; cone k has the
// next coneDims[k] entries of coneCols, exponential cone k the next three of expConeCols.
struct ConeProblem {
  int nCols;
  int nRows;
  int nCones;
  int nExpCones;
  int nPsdCols;
  int nSymMats;
  int nSymElems;
  int nQuad;

  int const* symDims;
  int const* symBeg;
  int const* symRows;
  int const* symCols;
  double const* symVals;

  // Columns with their terms, and the bounds of the rows.
  double const* objs;
  int const* colBeg;
  int const* colCnt;
  int const* rows;
  double const* coefs;
  char const* types;
  double const* lbs;
  double const* ubs;
  double const* lowers;
  double const* uppers;

  // The quadratic objective.
  int const* quadRows;
  int const* quadCols;
  double const* quadVals;

  int const* coneTypes;
  int const* coneDims;
  int const* coneCols;
  int const* expConeTypes;
  int const* expConeCols;

  int const* psdDims;
  int const* psdObjMats;  // the matrix of each PSD column in the objective, -1 for none
};

}  // namespace Vorq
