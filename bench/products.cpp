// What the cells of products with variables cost over the same work on plain arrays, in turn: a sparse matrix of a
// million rows with ten entries each, in both forms, and a dense matrix of 2000 rows and columns, whose cells stay lazy
// or are expanded.
//
//     products [REPEATS]
//
// Prints the median processor time of each, the release of the result included, their ratio, the peak memory and the
// allocations a cell. A result that is not the plain one ends the program with 1.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <vorq>

#include "bench/measure.hpp"
#include "handles/matrix_expressions.hpp"
#include "handles/matrix_items.hpp"
#include "matrix/dense_products.hpp"

namespace {

constexpr int kRows = 1'000'000;
constexpr int kEntriesOfRow = 10;
constexpr int kEntries = kRows * kEntriesOfRow;
constexpr int kSide = 2000;
constexpr std::uint64_t kSample = 1'234;

// Keeps the compiler from dropping work whose result nobody reads.
template <class T>
void Keep(T const& value) {
  asm volatile("" : : "r"(&value) : "memory");
}

// A square matrix in compressed rows; read as compressed columns it is the transpose.
struct Sparse {
  Sparse() : beg(kRows + 1), idx(kEntries), val(kEntries) {
    std::mt19937 random(7);
    for (int i = 0; i <= kRows; ++i) beg[static_cast<std::size_t>(i)] = i * kEntriesOfRow;
    for (int& column : idx) column = static_cast<int>(random() % kRows);
    for (std::size_t k = 0; k < val.size(); ++k) val[k] = 1.0 + static_cast<double>(k % 9);
  }

  std::vector<int> beg, idx;
  std::vector<double> val;
};

// The terms of expressions in plain arrays, row behind row.
struct PlainTerms {
  PlainTerms(std::size_t rows, std::size_t terms)
      : starts(new int[rows + 1]), constants(new double[rows]), coeffs(new double[terms]), indices(new int[terms]) {
    std::fill_n(constants.get(), rows, 0.0);
  }

  std::unique_ptr<int[]> starts;
  std::unique_ptr<double[]> constants;
  std::unique_ptr<double[]> coeffs;
  std::unique_ptr<int[]> indices;
};

struct Case {
  std::string name;
  std::uint64_t cells;
  std::function<void()> plain;
  std::function<void()> vorq;
  // The text of the sample cell, as it is and as it must be.
  std::function<std::string()> sample;
  std::string expected;
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
  bool const right = work.sample() == work.expected;
  auto const cells = static_cast<double>(work.cells);
  std::printf(
      "%-24s plain %.4f s %6.1f ns/cell %6.1f MB | vorq %.4f s %6.1f ns/cell %6.1f MB | ratio %6.2f | allocations a "
      "cell %.3f%s\n",
      work.name.c_str(), plain.seconds, 1e9 * plain.seconds / cells, 1e-6 * plain.peakBytes, vorq.seconds,
      1e9 * vorq.seconds / cells, 1e-6 * vorq.peakBytes, vorq.seconds / plain.seconds,
      static_cast<double>(vorq.allocations) / cells, right ? "" : " | WRONG RESULT");
  std::fflush(stdout);
  return right;
}

class Bench {
 public:
  explicit Bench(Vorq::IModel& model) {
    x_.reset(MakeVars(model, kRows));
    y_.reset(MakeVars(model, kSide));
    dense_.resize(std::size_t{kSide} * kSide);
    for (std::size_t k = 0; k < dense_.size(); ++k) dense_[k] = 1.0 + static_cast<double>(k % 7);
    denseArray_ = Numbers(Vorq::NDim<2>({kSide, kSide}), Vorq::SharedPtr<double>(dense_.data(), 0));
  }

  bool RunAll(int repeats) {
    bool ok = true;
    for (Case const& work : Cases()) ok = Run(work, repeats) && ok;
    return ok;
  }

 private:
  using Numbers = Vorq::NdArray<double, 2>;

  static Vorq::IMVar<1>* MakeVars(Vorq::IModel& model, int count) {
    std::unique_ptr<Vorq::IMFactory> const factory(CreateMFactory());
    std::unique_ptr<Vorq::INDim<1>> const shape(factory->CreateNDim(static_cast<std::uint64_t>(count)));
    std::unique_ptr<Vorq::IVarArray> const vars(model.AddVars(count, 'C', "x"));
    return factory->CreateMVar(shape.get(), vars.get());
  }

  // The rows as they stand.
  void PlainRows() const {
    PlainTerms terms(kRows, kEntries);
    for (std::size_t i = 0; i < kRows; ++i) {
      terms.starts[i] = sparse_.beg[i];
      for (int k = sparse_.beg[i]; k < sparse_.beg[i + 1]; ++k) {
        terms.coeffs[static_cast<std::size_t>(k)] = sparse_.val[static_cast<std::size_t>(k)];
        terms.indices[static_cast<std::size_t>(k)] = sparse_.idx[static_cast<std::size_t>(k)];
      }
    }
    Keep(terms.coeffs[kSample]);
  }

  // The columns, counted first.
  void PlainColumns() const {
    PlainTerms terms(kRows, kEntries);
    std::fill_n(terms.starts.get(), kRows + 1, 0);
    for (int column : sparse_.idx) ++terms.starts[static_cast<std::size_t>(column) + 1];
    for (std::size_t j = 0; j < kRows; ++j) terms.starts[j + 1] += terms.starts[j];
    std::unique_ptr<int[]> const next(new int[kRows]);
    std::copy_n(terms.starts.get(), kRows, next.get());
    for (std::size_t i = 0; i < kRows; ++i) {
      for (auto k = static_cast<std::size_t>(sparse_.beg[i]); k < static_cast<std::size_t>(sparse_.beg[i + 1]); ++k) {
        auto const place = static_cast<std::size_t>(next[static_cast<std::size_t>(sparse_.idx[k])]++);
        terms.coeffs[place] = sparse_.val[k];
        terms.indices[place] = static_cast<int>(i);
      }
    }
    Keep(terms.coeffs[kSample]);
  }

  void PlainDense() const {
    PlainTerms terms(kSide, dense_.size());
    for (std::size_t i = 0; i < kSide; ++i) {
      terms.starts[i] = static_cast<int>(i) * kSide;
      for (std::size_t j = 0; j < kSide; ++j) {
        terms.coeffs[i * kSide + j] = dense_[i * kSide + j];
        terms.indices[i * kSide + j] = static_cast<int>(j);
      }
    }
    Keep(terms.coeffs[kSample]);
  }

  static void Append(std::string& text, double coefficient, std::string const& name) {
    if (!text.empty()) text += " + ";
    if (coefficient != 1.0) text += std::to_string(static_cast<int>(coefficient)) + " * ";
    text += name;
  }
  static std::string NameOf(Vorq::IMVar<1>& block, int i) {
    return std::unique_ptr<Vorq::IVar>(block.Get(static_cast<std::uint64_t>(i)))->GetName();
  }

  std::string TextOfRow() const {
    std::string text;
    for (auto k = static_cast<std::size_t>(sparse_.beg[kSample]);
         k < static_cast<std::size_t>(sparse_.beg[kSample + 1]); ++k) {
      Append(text, sparse_.val[k], NameOf(*x_, sparse_.idx[k]));
    }
    return text;
  }
  std::string TextOfColumn() const {
    std::string text;
    for (std::size_t k = 0; k < sparse_.idx.size(); ++k) {
      if (sparse_.idx[k] == kSample) Append(text, sparse_.val[k], NameOf(*x_, static_cast<int>(k) / kEntriesOfRow));
    }
    return text;
  }
  static std::string TextOf(Vorq::IMLinExpr<1>* block) {
    std::unique_ptr<Vorq::IMLinExpr<1>> const owner(block);
    return Vorq::Unwrap(block).Get(kSample).ToString(1000);
  }

  // Cells with views, and cells with terms of their own.
  Vorq::MLinExpr<1> LazyProduct() const { return Vorq::MatMult(denseArray_, Vorq::Unwrap(y_.get())); }
  Vorq::MLinExpr<1> ExpandedProduct() const {
    Vorq::MLinExpr<1> expanded(Vorq::NDim<1>({kSide}), Vorq::MExpression());
    expanded.AddBlock(LazyProduct(), 1.0);
    return expanded;
  }
  // What the cell of the dense product prints: no explicit part, then one term for each 8 characters.
  std::string TextOfLazy() const {
    std::string text = "0";
    for (std::size_t j = 0; j < (1000 - 1) / 8; ++j) {
      text += " + " + std::to_string(static_cast<int>(dense_[kSample * kSide + j])) + " * " +
              NameOf(*y_, static_cast<int>(j));
    }
    return text + " ... ";
  }
  // Half of the characters are for the explicit part, again one term for each 8.
  std::string TextOfExpanded() const {
    std::string text;
    for (std::size_t j = 0; j < 500 / 8; ++j) {
      Append(text, dense_[kSample * kSide + j], NameOf(*y_, static_cast<int>(j)));
    }
    return text + " ... ";
  }

  // A case of a sparse product, made by one of the exported functions.
  template <class Make>
  static Case SparseCase(std::string name, std::function<void()> plain, Make make, std::string expected) {
    return {std::move(name),    kRows, std::move(plain), [make] { delete make(); }, [make] { return TextOf(make()); },
            std::move(expected)};
  }

  std::vector<Case> Cases() const {
    std::string const row = TextOfRow();
    std::string const column = TextOfColumn();
    auto const& [beg, idx, val] = sparse_;
    auto const starts = static_cast<int>(beg.size());
    return {
        SparseCase(
            "sparse rows times x", [this] { PlainRows(); },
            [&, starts, this] {
              return CsrMatMultMVar1(kRows, beg.data(), starts, idx.data(), kEntries, val.data(), kEntries, x_.get());
            },
            row),
        SparseCase(
            "x times sparse columns", [this] { PlainRows(); },
            [&, starts, this] {
              return MVar1MatMultCsc(x_.get(), kRows, beg.data(), starts, idx.data(), kEntries, val.data(), kEntries);
            },
            row),
        SparseCase(
            "sparse columns times x", [this] { PlainColumns(); },
            [&, starts, this] {
              return CscMatMultMVar1(kRows, beg.data(), starts, idx.data(), kEntries, val.data(), kEntries, x_.get());
            },
            column),
        SparseCase(
            "x times sparse rows", [this] { PlainColumns(); },
            [&, starts, this] {
              return MVar1MatMultCsr(x_.get(), kRows, beg.data(), starts, idx.data(), kEntries, val.data(), kEntries);
            },
            column),
        {"dense rows times x", kSide, [this] { PlainDense(); }, [this] { Keep(LazyProduct()); },
         [this] { return LazyProduct().Get(kSample).ToString(1000); }, TextOfLazy()},
        {"dense, expanded", kSide, [this] { PlainDense(); }, [this] { Keep(ExpandedProduct()); },
         [this] { return ExpandedProduct().Get(kSample).ToString(1000); }, TextOfExpanded()},
    };
  }

  Sparse const sparse_;
  std::unique_ptr<Vorq::IMVar<1>> x_, y_;
  std::vector<double> dense_;
  Numbers denseArray_;
};

}  // namespace

int main(int argc, char** argv) {
  int const repeats = argc > 1 ? std::max(1, std::atoi(argv[1])) : 5;
  std::unique_ptr<Vorq::IEnvr> const envr(CreateEnvr(nullptr));
  std::unique_ptr<Vorq::IModel> const model(CreateModel(envr.get(), "products"));
  return Bench(*model).RunAll(repeats) ? 0 : 1;
}
