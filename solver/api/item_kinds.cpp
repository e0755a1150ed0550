// The table of kinds. A further kind is one more record here.
#include "solver/api/item_kinds.hpp"

#include "solver/problem/deletion.hpp"
#include "solver/problem/remaining.hpp"

namespace vorqsolver {

namespace {

template <auto items>
int CountOf(ProblemData const& data) {
  return static_cast<int>((data.*items).size());
}

template <auto names>
NameList& NamesOf(ProblemData& data) {
  return data.*names;
}

template <auto items>
void Erase(Problem& problem, std::span<int const> deleted) {
  KeepRemaining(problem.data.*items, deleted);
}

template <auto items, auto names>
void EraseNamed(Problem& problem, std::span<int const> deleted) {
  KeepRemaining(problem.data.*items, deleted);
  (problem.data.*names).Delete(deleted);
}

template <auto items>
constexpr ItemKind Unnamed(char const* title) {
  return {title, CountOf<items>, nullptr, Erase<items>};
}

template <auto items, auto names>
constexpr ItemKind Named(char const* title) {
  return {title, CountOf<items>, NamesOf<names>, EraseNamed<items, names>};
}

void EraseColumns(Problem& problem, std::span<int const> deleted) {
  DeleteColumns(problem.data, deleted);
  problem.ColumnsDeleted(deleted);
}

void EraseRows(Problem& problem, std::span<int const> deleted) {
  DeleteRows(problem.data, deleted);
  problem.RowsDeleted();
}

void ErasePsdColumns(Problem& problem, std::span<int const> deleted) {
  DeletePsdColumns(problem.data, deleted);
}

}  // namespace

constinit ItemKind const kColumnKind = {"Column", [](ProblemData const& data) { return data.columns.Count(); },
                                        [](ProblemData& data) -> NameList& { return data.columns.names; },
                                        EraseColumns};
constinit ItemKind const kRowKind = {"Row", [](ProblemData const& data) { return data.rows.Count(); },
                                     [](ProblemData& data) -> NameList& { return data.rows.names; }, EraseRows};
constinit ItemKind const kSosKind = Unnamed<&ProblemData::soss>("SOS constraint");
constinit ItemKind const kIndicatorKind =
    Named<&ProblemData::indicators, &ProblemData::indicatorNames>("Indicator constraint");
constinit ItemKind const kConeKind = Unnamed<&ProblemData::cones>("Cone");
constinit ItemKind const kExpConeKind = Unnamed<&ProblemData::expCones>("Exponential cone");
constinit ItemKind const kAffineConeKind =
    Named<&ProblemData::affineCones, &ProblemData::affineConeNames>("Affine cone");
constinit ItemKind const kQuadConstraintKind =
    Named<&ProblemData::quadConstraints, &ProblemData::quadConstraintNames>("Quadratic constraint");
constinit ItemKind const kPsdColumnKind = {"PSD column", CountOf<&ProblemData::psdDims>,
                                           NamesOf<&ProblemData::psdColNames>, ErasePsdColumns};
constinit ItemKind const kPsdConstraintKind =
    Named<&ProblemData::psdConstraints, &ProblemData::psdConstraintNames>("PSD constraint");
constinit ItemKind const kLmiConstraintKind =
    Named<&ProblemData::lmiConstraints, &ProblemData::lmiConstraintNames>("LMI constraint");

}  // namespace vorqsolver
