// Parameters and attributes by name: the kind of the name is looked up first, in any case of its letters.
#include "model/model.hpp"
#include "vocabulary/param_attr_index.hpp"

namespace Vorq {

// What a name must be, and what is said when it is not.
struct NameRule {
  int kind;
  char const* unknown;
  char const* otherKind;
  bool flushes = false;  // removals are carried out before the read
};

namespace {

constexpr char const* kUnknownParam = "Unknown VORQ parameter";
constexpr char const* kUnknownAttr = "Unknown VORQ attribute";

constexpr NameRule kIntParam{VORQ_INT_PARAM, kUnknownParam, "Not VORQ int parameter"};
constexpr NameRule kDblParam{VORQ_DBL_PARAM, kUnknownParam, "Not VORQ double parameter"};
constexpr NameRule kIntAttr{VORQ_INT_ATTR, kUnknownAttr, "Not VORQ int attribute", true};
constexpr NameRule kDblAttr{VORQ_DBL_ATTR, kUnknownAttr, "Not VORQ double attribute", true};

}  // namespace

bool Model::ResolveName(char const* name, NameRule const& rule, std::string& canonical) {
  int const kind = SearchParamAttrName(name, canonical);
  if (kind < 0) return Refuse(rule.unknown);
  if (kind != rule.kind) return Refuse(rule.otherKind);
  Record(kOk, "");
  return !rule.flushes || ApplyRemovals();
}

template <class T>
T Model::ReadNamed(char const* name, NameRule const& rule, int (*read)(VORQ_Prob*, char const*, T*), char const* text,
                   T otherwise) {
  std::string canonical;
  T value = otherwise;
  bool const done = ResolveName(name, rule, canonical) && Record(read(Prob(), canonical.c_str(), &value), text);
  return done ? value : otherwise;
}

template <class T>
void Model::ReadAllNamed(char const* name, NameRule const& rule, NamedRead<T> const (&reads)[4], char const* text) {
  std::string canonical;
  if (!ResolveName(name, rule, canonical)) return;
  int code = kOk;
  for (NamedRead<T> const& entry : reads) {
    if (code == kOk) code = entry.read(Prob(), canonical.c_str(), entry.out);
  }
  Record(code, text);
}

void Model::GetParamInfo(char const* name, int* current, int* def, int* min, int* max) {
  ReadAllNamed<int>(
      name, kIntParam,
      {{VORQ_GetIntParam, current}, {VORQ_GetIntParamDef, def}, {VORQ_GetIntParamMin, min}, {VORQ_GetIntParamMax, max}},
      "Failed to get int param info");
}

void Model::GetParamInfo(char const* name, double* current, double* def, double* min, double* max) {
  ReadAllNamed<double>(
      name, kDblParam,
      {{VORQ_GetDblParam, current}, {VORQ_GetDblParamDef, def}, {VORQ_GetDblParamMin, min}, {VORQ_GetDblParamMax, max}},
      "Failed to get double param info");
}

int Model::GetIntParam(char const* name) {
  return ReadNamed(name, kIntParam, VORQ_GetIntParam, "Failed to get int param value", kNoInt);
}

double Model::GetDblParam(char const* name) {
  return ReadNamed(name, kDblParam, VORQ_GetDblParam, "Failed to get double param value", kNoDouble);
}

void Model::SetIntParam(char const* name, int value) {
  std::string canonical;
  if (!ResolveName(name, kIntParam, canonical)) return;
  Record(VORQ_SetIntParam(Prob(), canonical.c_str(), value), "Failed to set int param");
}

void Model::SetDblParam(char const* name, double value) {
  std::string canonical;
  if (!ResolveName(name, kDblParam, canonical)) return;
  Record(VORQ_SetDblParam(Prob(), canonical.c_str(), value), "Failed to set double param");
}

int Model::GetIntAttr(char const* name) {
  return ReadNamed(name, kIntAttr, VORQ_GetIntAttr, "Failed to get int attribute", kNoInt);
}

double Model::GetDblAttr(char const* name) {
  return ReadNamed(name, kDblAttr, VORQ_GetDblAttr, "Fail to get double attribute", kNoDouble);
}

int Model::SearchParamAttr(char const* name) {
  std::string canonical;
  return SearchParamAttrName(name, canonical);
}

}  // namespace Vorq
