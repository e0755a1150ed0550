// What the element-wise operators cost over the same work on plain arrays, on a million cells, in turn.
//
//     elementwise [REPEATS]
//
// Prints the median processor time of each, the release of the result included, their ratio, the time, the
// allocations a cell and the growth of the peak memory. A result that is not the plain one ends the program with 1.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <vorq>

#include "bench/measure.hpp"

namespace {

constexpr std::uint64_t kSide = 1000;
constexpr std::uint64_t kCells = kSide * kSide;
constexpr std::uint64_t kSample = 654'321;

// The terms of a million expressions in plain arrays.
struct PlainTerms {
  explicit PlainTerms(std::uint64_t termsPerCell, bool areProducts = false)
      : constants(new double[kCells]),
        coeffs(new double[kCells * termsPerCell]),
        indices(new int[kCells * termsPerCell * (areProducts ? 2 : 1)]) {}

  std::unique_ptr<double[]> constants;
  std::unique_ptr<double[]> coeffs;
  std::unique_ptr<int[]> indices;
};

using PlainNumbers = std::unique_ptr<double[]>;

// Keeps the compiler from dropping work whose result nobody reads.
template <class T>
void Keep(T const& value) {
  asm volatile("" : : "r"(&value) : "memory");
}

struct Case {
  std::string name;
  std::function<void()> plain;
  std::function<void()> vorq;
  // Whether the result of `vorq` is right.
  std::function<bool()> check;
};

// False for a wrong result.
bool Run(Case const& work, int repeats) {
  std::vector<bench::Cost> plainCosts, vorqCosts;
  for (int repeat = 0; repeat < repeats; ++repeat) {
    plainCosts.push_back(bench::MeasurePass(work.plain));
    vorqCosts.push_back(bench::MeasurePass(work.vorq));
  }
  bench::Cost const plain = bench::Median(plainCosts);
  bench::Cost const vorq = bench::Median(vorqCosts);
  bool const right = work.check();
  std::printf(
      "%-22s plain %.4f s %6.2f ns/cell %3.0f bytes/cell | vorq %.4f s %6.2f ns/cell %3.0f bytes/cell | ratio %6.2f | "
      "allocations a cell %.3f%s\n",
      work.name.c_str(), plain.seconds, 1e9 * plain.seconds / kCells, plain.peakBytes / kCells, vorq.seconds,
      1e9 * vorq.seconds / kCells, vorq.peakBytes / kCells, vorq.seconds / plain.seconds,
      static_cast<double>(vorq.allocations) / kCells, right ? "" : " | WRONG RESULT");
  std::fflush(stdout);
  return right;
}

class Bench {
 public:
  explicit Bench(Vorq::IModel& model) {
    std::unique_ptr<Vorq::INDim<2>> const shape(factory_->CreateNDim(kSide, kSide));
    std::unique_ptr<Vorq::INDim<1>> const rowShape(factory_->CreateNDim(kSide));
    std::unique_ptr<Vorq::IVarArray> const vars(model.AddVars(static_cast<int>(kCells), 'C', "x"));
    x_.reset(factory_->CreateMVar(shape.get(), vars.get()));
    Vorq::FillFunction<double> const fill = [](std::uint64_t i) { return 1.0 + static_cast<double>(i % 7); };
    a_.reset(factory_->CreateNdArray(shape.get(), fill));
    b_.reset(factory_->CreateNdArray(shape.get(), 0.5));
    row_.reset(factory_->CreateNdArray(rowShape.get(), fill));
    sum_.reset(helper_->Add(x_.get(), x_.get()));
    for (std::uint64_t i = 0; i < kCells; ++i) plainA_[i] = fill(i);
    std::fill_n(plainB_.get(), kCells, 0.5);
    for (std::uint64_t i = 0; i < kCells; ++i) plainX_[i] = static_cast<int>(i);
  }

  bool RunAll(int repeats) {
    bool ok = true;
    for (Case const& work : Cases()) ok = Run(work, repeats) && ok;
    return ok;
  }

 private:
  template <class Function>
  PlainNumbers PlainMap(Function function) const {
    PlainNumbers result(new double[kCells]);
    for (std::uint64_t i = 0; i < kCells; ++i) result[i] = function(i);
    Keep(result[kSample]);
    return result;
  }

  // Two terms a cell.
  void PlainSums() const {
    PlainTerms terms(2);
    for (std::uint64_t i = 0; i < kCells; ++i) {
      terms.constants[i] = 0.0;
      for (std::uint64_t k = 2 * i; k < 2 * i + 2; ++k) {
        terms.coeffs[k] = 1.0;
        terms.indices[k] = plainX_[i];
      }
    }
    Keep(terms.coeffs[kSample]);
  }

  template <class Result>
  static std::string SampleText(std::unique_ptr<Result> const& result) {
    auto* cell = result->Get(kSample);
    std::string const text = cell->ToString(1000);
    delete cell;
    return text;
  }

  std::string NameOfSample() const { return std::unique_ptr<Vorq::IVar>(x_->Get(kSample))->GetName(); }

  template <class Make>
  Case NumberCase(std::string name, std::function<double(std::uint64_t)> expected, std::function<void()> plain,
                  Make make) const {
    auto const vorq = [make] { delete make(); };
    return {std::move(name), std::move(plain), vorq, [make, expected = std::move(expected)] {
              std::unique_ptr<std::remove_pointer_t<decltype(make())>> const result(make());
              return result->GetSize() == kCells && result->Get(kSample) == expected(kSample);
            }};
  }

  template <class Make>
  Case CellCase(std::string name, std::string expected, std::uint64_t cells, std::function<void()> plain,
                Make make) const {
    auto const vorq = [make] { delete make(); };
    return {std::move(name), std::move(plain), vorq, [make, expected = std::move(expected), cells] {
              std::unique_ptr<std::remove_pointer_t<decltype(make())>> const result(make());
              return result->GetSize() == cells && (cells == 1 || SampleText(result) == expected);
            }};
  }

  std::vector<Case> Cases() const {
    std::string const x = NameOfSample();
    auto const a = [this](std::uint64_t i) { return plainA_[i]; };
    auto const b = [this](std::uint64_t i) { return plainB_[i]; };
    return {
        NumberCase(
            "numbers: Add", [=](std::uint64_t i) { return a(i) + b(i); },
            [=, this] { PlainMap([=](std::uint64_t i) { return a(i) + b(i); }); },
            [this] { return helper_->Add(a_.get(), b_.get()); }),
        NumberCase(
            "numbers: Mul", [=](std::uint64_t i) { return a(i) * b(i); },
            [=, this] { PlainMap([=](std::uint64_t i) { return a(i) * b(i); }); },
            [this] { return helper_->Mul(a_.get(), b_.get()); }),
        NumberCase(
            "numbers: Add a row", [=](std::uint64_t i) { return a(i) + a(i % kSide); },
            [=, this] {
              PlainNumbers result(new double[kCells]);
              for (std::uint64_t i = 0; i < kCells; i += kSide) {
                for (std::uint64_t j = 0; j < kSide; ++j) result[i + j] = plainA_[i + j] + plainA_[j];
              }
              Keep(result[kSample]);
            },
            [this] { return helper_->Add(a_.get(), row_.get()); }),
        {"numbers: Sum",
         [this] {
           double sum = 0.0;
           for (std::uint64_t i = 0; i < kCells; ++i) sum += plainA_[i];
           Keep(sum);
         },
         [this] { delete a_->Sum(); },
         [this] {
           double sum = 0.0;
           for (std::uint64_t i = 0; i < kCells; ++i) sum += plainA_[i];
           return std::unique_ptr<Vorq::INdArray<double, 0>>(a_->Sum())->Get(0) == sum;
         }},
        CellCase(
            "variables: Add", x + " + " + x, kCells, [this] { PlainSums(); },
            [this] { return helper_->Add(x_.get(), x_.get()); }),
        CellCase(
            "variables: Mul number", "0.5 * " + x, kCells,
            [this] {
              PlainTerms terms(1);
              for (std::uint64_t i = 0; i < kCells; ++i) {
                terms.constants[i] = 0.0;
                terms.coeffs[i] = plainB_[i];
                terms.indices[i] = plainX_[i];
              }
              Keep(terms.coeffs[kSample]);
            },
            [this] { return helper_->Mul(b_.get(), x_.get()); }),
        CellCase(
            "variables: Mul", "0 + " + x + " * " + x, kCells,
            [this] {
              PlainTerms terms(1, true);
              for (std::uint64_t i = 0; i < kCells; ++i) {
                terms.constants[i] = 0.0;
                terms.coeffs[i] = 1.0;
                terms.indices[2 * i] = plainX_[i];
                terms.indices[2 * i + 1] = plainX_[i];
              }
              Keep(terms.coeffs[kSample]);
            },
            [this] { return helper_->Mul(x_.get(), x_.get()); }),
        CellCase(
            "variables: Sum", "", 1,
            [this] {
              std::unique_ptr<double[]> const coeffs(new double[kCells]);
              std::unique_ptr<int[]> const indices(new int[kCells]);
              std::fill_n(coeffs.get(), kCells, 1.0);
              std::copy_n(plainX_.get(), kCells, indices.get());
              Keep(coeffs[kSample]);
              Keep(indices[kSample]);
            },
            [this] { return x_->Sum(); }),
        CellCase(
            "expressions: Add", x + " + " + x + " + " + x, kCells,
            [this] {
              PlainTerms terms(3);
              for (std::uint64_t i = 0; i < kCells; ++i) {
                terms.constants[i] = 0.0;
                for (std::uint64_t k = 3 * i; k < 3 * i + 3; ++k) {
                  terms.coeffs[k] = 1.0;
                  terms.indices[k] = plainX_[i];
                }
              }
              Keep(terms.coeffs[kSample]);
            },
            [this] { return helper_->Add(sum_.get(), x_.get()); }),
    };
  }

  std::unique_ptr<Vorq::IMFactory> factory_{CreateMFactory()};
  std::unique_ptr<Vorq::IBroadCastHelper> helper_{CreateBroadCastHelper()};
  std::unique_ptr<Vorq::IMVar<2>> x_;
  std::unique_ptr<Vorq::INdArray<double, 2>> a_, b_;
  std::unique_ptr<Vorq::INdArray<double, 1>> row_;
  std::unique_ptr<Vorq::IMLinExpr<2>> sum_;
  PlainNumbers plainA_{new double[kCells]};
  PlainNumbers plainB_{new double[kCells]};
  std::unique_ptr<int[]> plainX_{new int[kCells]};
};

}  // namespace

int main(int argc, char** argv) {
  int const repeats = argc > 1 ? std::max(1, std::atoi(argv[1])) : 5;
  std::unique_ptr<Vorq::IEnvr> const envr(CreateEnvr(nullptr));
  std::unique_ptr<Vorq::IModel> const model(CreateModel(envr.get(), "elementwise"));
  return Bench(*model).RunAll(repeats) ? 0 : 1;
}
