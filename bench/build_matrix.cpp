// What blocks cost over the hand-over of finished arrays: A x <= b with a dense and with a sparse matrix, from the
// matrix in memory to the model in the solver library.
//
//     build_matrix [REPEATS [MODEL]]        one of dense-2000, block-1000k; both without
//
// Prints the median processor time of each, their ratio, the time a nonzero and the ratio of peak memory. The matrix
// itself lies in memory before either begins. The models are compared with the raw ones; a difference ends the program
// with 1.
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <vector>

#include <vorq>

#include "bench/fingerprint.hpp"
#include "bench/generators.hpp"
#include "bench/measure.hpp"
#include "bench/raw_model.hpp"
#include "matrix/dense_products.hpp"
#include "matrix/matrix_constr_builder.hpp"
#include "matrix/sparse_products.hpp"
#include "model/model.hpp"

namespace {

// Columns of a model whose rows are all bounded above.
struct Columns {
  explicit Columns(int n)
      : zeros(std::size_t(n), 0.0),
        ones(std::size_t(n), 1.0),
        lowers(std::size_t(n), -bench::kInfinity),
        types(std::size_t(n), 'C') {}

  std::vector<double> zeros, ones, lowers;
  std::vector<char> types;
};

bench::RawArrays HandOver(int n, std::vector<double> const& bounds, int const* begins, int const* indices,
                          double const* values) {
  Columns const columns(n);
  bench::RawView const view = {.colLower = columns.zeros.data(),
                               .colUpper = columns.ones.data(),
                               .objective = columns.ones.data(),
                               .rowLower = columns.lowers.data(),
                               .rowUpper = bounds.data(),
                               .values = values,
                               .types = columns.types.data(),
                               .begins = begins,
                               .indices = indices,
                               .cols = n,
                               .rows = n,
                               .elements = begins[n]};
  return view.Copy();
}

class DenseProduct {
 public:
  explicit DenseProduct(int n)
      : n_(n),
        matrix_(Vorq::NdArray<double, 2>::Generated(Vorq::NDim<2>({std::uint64_t(n), std::uint64_t(n)}),
                                                    [](std::uint64_t i) { return 0.5 + double(i * 7 % 13) / 13.0; })),
        bounds_(std::size_t(n)) {
    for (int i = 0; i < n; ++i) bounds_[std::size_t(i)] = n * (1.0 + i % 5);
  }

  bench::RawArrays Raw() const {
    std::size_t const n = std::size_t(n_);
    std::vector<int> begins(n + 1);
    std::unique_ptr<int[]> const indices(new int[n * n]);
    for (std::size_t i = 0; i < n; ++i) {
      begins[i + 1] = int((i + 1) * n);
      for (std::size_t j = 0; j < n; ++j) indices[i * n + j] = int(j);
    }
    return HandOver(n_, bounds_, begins.data(), indices.get(), matrix_.Store().Get());
  }

  Vorq::MConstr<1> Build(Vorq::Model& model) const {
    Vorq::NDim<1> const shape({std::uint64_t(n_)});
    Vorq::MVar<1> const x = model.AddMVar(shape, 0.0, 1.0, 1.0, 'C', nullptr);
    Vorq::MLinExpr<1> const product = MatMult(matrix_, x);
    Vorq::MConstrBuilder<1> builder;
    builder.Set(product, 'L', Vorq::NdArray<double, 1>(shape, Vorq::SharedPtr<double>(bounds_.data(), 0)));
    return model.AddMConstr(builder, nullptr);
  }

 private:
  int n_;
  Vorq::NdArray<double, 2> matrix_;
  mutable std::vector<double> bounds_;
};

class SparseProduct {
 public:
  explicit SparseProduct(int n) : n_(n), block_(n), begins_(std::size_t(n) + 1), bounds_(block_.Bounds()) {
    for (int i = 0; i <= n; ++i) begins_[std::size_t(i)] = 10 * i;
  }

  bench::RawArrays Raw() const {
    return HandOver(n_, block_.Bounds(), begins_.data(), block_.Cols().data(), block_.Coefs().data());
  }

  Vorq::MConstr<1> Build(Vorq::Model& model) const {
    Vorq::NDim<1> const shape({std::uint64_t(n_)});
    Vorq::MVar<1> const x = model.AddMVar(shape, 0.0, 1.0, 1.0, 'C', nullptr);
    Vorq::SparseMatrix const matrix{Vorq::SparseOrder::kRows, n_, begins_.data(), n_ + 1, block_.Cols().data(),
                                    block_.Coefs().data()};
    Vorq::MLinExpr<1> product = MatMult(matrix, x);
    product.SubConstants(Vorq::NdArray<double, 1>(shape, Vorq::SharedPtr<double>(bounds_.data(), 0)));
    return model.AddMConstr(product, 'L', 0.0, nullptr);
  }

 private:
  int n_;
  bench::RandomBlock block_;
  std::vector<int> begins_;
  mutable std::vector<double> bounds_;
};

template <class Product>
void Run(char const* name, Product const& product, Vorq::Envr& envr, int repeats) {
  bench::RawArrays const reference = product.Raw();
  double const expected = bench::Fingerprint(reference);
  std::vector<bench::Cost> rawCosts, blockCosts;
  for (int repeat = 0; repeat < repeats; ++repeat) {
    bench::RawArrays handedOver;
    rawCosts.push_back(bench::Measure([&] { handedOver = product.Raw(); },
                                      [&] { return bench::Fingerprint(handedOver) == expected; }));
    std::unique_ptr<Vorq::Model> model;
    Vorq::MConstr<1> rows;
    blockCosts.push_back(bench::Measure(
        [&] {
          model = std::make_unique<Vorq::Model>(envr, name);
          rows = product.Build(*model);
        },
        [&] {
          return rows.GetSize() == std::uint64_t(reference.rows) &&
                 std::abs(bench::Fingerprint(*model) - expected) <= 1e-9 * std::abs(expected);
        }));
  }
  bench::Cost const raw = bench::Median(rawCosts);
  bench::Cost const block = bench::Median(blockCosts);
  double const elements = double(reference.elements);
  std::printf("%-10s raw %.4f s %5.1f ns/nz | block %.4f s %5.1f ns/nz | time ratio %5.2f | memory ratio %5.2f\n", name,
              raw.seconds, 1e9 * raw.seconds / elements, block.seconds, 1e9 * block.seconds / elements,
              block.seconds / raw.seconds, block.peakBytes / raw.peakBytes);
}

}  // namespace

int main(int argc, char** argv) {
  int const repeats = argc > 1 ? std::max(1, std::atoi(argv[1])) : 5;
  Vorq::Envr envr(nullptr);
  std::string_view const only = argc > 2 ? argv[2] : "";
  if (only.empty() || only == "dense-2000") Run("dense-2000", DenseProduct(2000), envr, repeats);
  if (only.empty() || only == "block-1000k") Run("block-1000k", SparseProduct(1'000'000), envr, repeats);
}
