// The exported factories of expressions and columns.
#include "handles/expressions.hpp"

#include "vorqmodel/exports.h"

using Vorq::Unwrap;
using Vorq::Wrap;

extern "C" {

Vorq::IColumn* CreateColumn() {
  return Wrap<Vorq::IColumn>();
}

Vorq::IExpr* CreateExpr(double constant) {
  return Wrap<Vorq::IExpr>(constant);
}
Vorq::IExpr* CreateLinExpr(Vorq::IVar* var, double coeff) {
  return Wrap<Vorq::IExpr>(Unwrap(var), coeff);
}

Vorq::IQuadExpr* CreateQuadExpr1(double constant) {
  return Wrap<Vorq::IQuadExpr>(constant);
}
Vorq::IQuadExpr* CreateQuadExpr2(Vorq::IVar* var, double coeff) {
  return Wrap<Vorq::IQuadExpr>(Unwrap(var), coeff);
}
Vorq::IQuadExpr* CreateQuadExpr3(Vorq::IExpr* expr) {
  return Wrap<Vorq::IQuadExpr>(Unwrap(expr));
}
Vorq::IQuadExpr* CreateQuadExpr4(Vorq::IExpr* expr, Vorq::IVar* var) {
  return Wrap<Vorq::IQuadExpr>(Unwrap(expr), Unwrap(var));
}
Vorq::IQuadExpr* CreateQuadExpr5(Vorq::IExpr* a, Vorq::IExpr* b) {
  return Wrap<Vorq::IQuadExpr>(Unwrap(a), Unwrap(b));
}

Vorq::IPsdExpr* CreatePsdExpr1(double constant) {
  return Wrap<Vorq::IPsdExpr>(constant);
}
Vorq::IPsdExpr* CreatePsdExpr2(Vorq::IVar* var, double coeff) {
  return Wrap<Vorq::IPsdExpr>(Unwrap(var), coeff);
}
Vorq::IPsdExpr* CreatePsdExpr3(Vorq::IExpr* expr) {
  return Wrap<Vorq::IPsdExpr>(Unwrap(expr));
}
Vorq::IPsdExpr* CreatePsdExpr4(Vorq::IPsdVar* var, Vorq::ISymMatrix* mat) {
  return Wrap<Vorq::IPsdExpr>(Unwrap(var), Unwrap(mat));
}
Vorq::IPsdExpr* CreatePsdExpr5(Vorq::IPsdVar* var, Vorq::ISymMatExpr* expr) {
  return Wrap<Vorq::IPsdExpr>(Unwrap(var), Unwrap(expr));
}

Vorq::ILmiExpr* CreateLmiExpr1() {
  return Wrap<Vorq::ILmiExpr>();
}
Vorq::ILmiExpr* CreateLmiExpr2(Vorq::ISymMatrix* mat) {
  return Wrap<Vorq::ILmiExpr>(Unwrap(mat));
}
Vorq::ILmiExpr* CreateLmiExpr3(Vorq::ISymMatExpr* expr) {
  return Wrap<Vorq::ILmiExpr>(Unwrap(expr));
}
Vorq::ILmiExpr* CreateLmiExpr4(Vorq::IVar* var, Vorq::ISymMatrix* mat) {
  return Wrap<Vorq::ILmiExpr>(Unwrap(var), Unwrap(mat));
}
Vorq::ILmiExpr* CreateLmiExpr5(Vorq::IVar* var, Vorq::ISymMatExpr* expr) {
  return Wrap<Vorq::ILmiExpr>(Unwrap(var), Unwrap(expr));
}

Vorq::ISymMatExpr* CreateSymMatExpr1() {
  return Wrap<Vorq::ISymMatExpr>();
}
Vorq::ISymMatExpr* CreateSymMatExpr2(Vorq::ISymMatrix* mat, double coeff) {
  return Wrap<Vorq::ISymMatExpr>(Unwrap(mat), coeff);
}

}  // extern "C"
