// A problem with one of each thing that IModel::LoadConeMatrix takes: three columns, a row, a cone, an exponential
// cone, a PSD variable, a symmetric matrix, a product of two columns.
#pragma once

#include <vorq>

namespace vorqtest {

inline void LoadConeProblem(Vorq::IModel& model, double const (&lbs)[3]) {
  int const symDims[] = {2};
  int const symBeg[] = {0, 1};
  int const symRows[] = {1};
  int const symCols[] = {0};
  double const symVals[] = {0.5};
  double const objs[] = {1, 2, 3};
  int const colBeg[] = {0, 1, 1};
  int const colCnt[] = {1, 0, 0};
  int const rows[] = {0};
  double const coefs[] = {4};
  double const ubs[] = {8, 9, 10};
  double const lowers[] = {11};
  double const uppers[] = {12};
  int const quadRows[] = {0};
  int const quadCols[] = {1};
  double const quadVals[] = {13};
  int const coneTypes[] = {1};
  int const coneDims[] = {2};
  int const coneCols[] = {0, 1};
  int const expConeTypes[] = {3};
  int const expConeCols[] = {2, 1, 0};
  int const psdDims[] = {2};
  int const psdObjMats[] = {0};
  model.LoadConeMatrix(3, 1, 1, 1, 1, 1, 1, 1, symDims, symBeg, symRows, symCols, symVals, objs, colBeg, colCnt, rows,
                       coefs, "CIC", lbs, ubs, lowers, uppers, quadRows, quadCols, quadVals, coneTypes, coneDims,
                       coneCols, expConeTypes, expConeCols, psdDims, psdObjMats);
}

}  // namespace vorqtest
