// The standard models of the benchmarks, generated term by term into a sink.
//
// A sink has Reserve(cols, rows, terms), Col(lower, upper, objective, isInteger), EndCols() and
// Row(lower, upper, count, cols, coefficients). Terms come as a user writes them: a column may stand twice in a row.
#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

namespace bench {

inline constexpr double kInfinity = 1e30;

struct Size {
  std::int64_t cols = 0;
  std::int64_t rows = 0;
  std::int64_t terms = 0;     // as written
  std::int64_t elements = 0;  // after merging
};

// Facility location (the linear part): n facilities anywhere in the unit square serve a grid of (n + 1)^2 customers;
// the largest distance of a customer to its facility is made small.
class Facility {
 public:
  explicit Facility(int n) : n_(n), grid_(std::int64_t{n + 1} * (n + 1)) {}

  Size GetSize() const {
    std::int64_t const pairs = n_ * grid_;
    return {1 + 2 * n_ + 4 * pairs, grid_ + 3 * pairs, 8 * pairs, 8 * pairs};
  }

  template <class Sink>
  void Generate(Sink& sink) const {
    Size const size = GetSize();
    sink.Reserve(size.cols, size.rows, size.terms);
    Columns(sink);
    sink.EndCols();
    Rows(sink);
  }

 private:
  template <class Sink>
  void Columns(Sink& sink) const {
    std::int64_t const pairs = n_ * grid_;
    sink.Col(-kInfinity, kInfinity, 1.0, false);
    for (std::int64_t k = 0; k < 2 * n_; ++k) sink.Col(0.0, 1.0, 0.0, false);
    for (std::int64_t k = 0; k < pairs; ++k) sink.Col(0.0, 1.0, 0.0, true);
    for (std::int64_t k = 0; k < pairs; ++k) sink.Col(0.0, kInfinity, 0.0, false);
    for (std::int64_t k = 0; k < 2 * pairs; ++k) sink.Col(-kInfinity, kInfinity, 0.0, false);
  }

  template <class Sink>
  void Rows(Sink& sink) const {
    int const pairs = static_cast<int>(n_ * grid_);
    int const place = 1;
    int const serves = place + 2 * n_;
    int const distance = serves + pairs;
    int const offset = distance + pairs;
    std::vector<int> cols(n_);
    std::vector<double> const ones(n_, 1.0);
    for (int customer = 0; customer < grid_; ++customer) {
      for (int f = 0; f < n_; ++f) cols[f] = serves + customer * n_ + f;
      sink.Row(1.0, 1.0, n_, cols.data(), ones.data());
    }
    double const big = 2.0 * std::sqrt(2.0);
    int pair = 0;
    for (int i = 0; i <= n_; ++i) {
      for (int j = 0; j <= n_; ++j) {
        for (int f = 0; f < n_; ++f, ++pair) {
          std::array const first = {distance + pair, 0, serves + pair};
          std::array const firstCoefs = {1.0, -1.0, big};
          sink.Row(big, big, 3, first.data(), firstCoefs.data());
          for (int axis = 0; axis < 2; ++axis) {
            std::array const second = {offset + 2 * pair + axis, place + 2 * f + axis};
            double const at = static_cast<double>(axis == 0 ? i : j) / n_;
            sink.Row(at, at, 2, second.data(), ones.data());
          }
        }
      }
    }
  }

  int n_;
  std::int64_t grid_;
};

// Linear-quadratic control of a heat equation on an n by n grid (the linear part): eight terms written a row of the
// discretised equation, six after merging.
class HeatControl {
 public:
  explicit HeatControl(int n) : n_(n) {}

  Size GetSize() const {
    std::int64_t const n = n_;
    std::int64_t const inner = n * (n - 1);
    return {(n + 1) * (n + 1) + n, inner + n + 1 + 2 * n, 8 * inner + n + 1 + 8 * n, 6 * inner + n + 1 + 7 * n};
  }

  template <class Sink>
  void Generate(Sink& sink) const {
    Size const size = GetSize();
    sink.Reserve(size.cols, size.rows, size.terms);
    double const dx = 1.0 / n_;
    for (int i = 0; i <= n_; ++i) {
      for (int j = 0; j <= n_; ++j) {
        double const target = 0.5 * (1.0 - (j * dx) * (j * dx));
        double const weight = j == 0 || j == n_ ? 1.0 : 2.0;
        sink.Col(0.0, 1.0, i == n_ ? -2.0 * target * 0.25 * dx * weight : 0.0, false);
      }
    }
    for (int i = 0; i < n_; ++i) sink.Col(-1.0, 1.0, 0.0, false);
    sink.EndCols();
    Equations(sink);
    Boundaries(sink);
  }

 private:
  template <class Sink>
  void Equations(Sink& sink) const {
    double const h2 = 1.0 / n_ / n_;
    double const e = 0.5 * 1.58 / n_;
    int const width = n_ + 1;
    for (int i = 0; i < n_; ++i) {
      for (int j = 1; j < n_; ++j) {
        int const now = i * width + j;
        int const next = now + width;
        std::array const cols = {next, now, now - 1, now, now + 1, next - 1, next, next + 1};
        std::array const coefs = {h2, -h2, -e, 2.0 * e, -e, -e, 2.0 * e, -e};
        sink.Row(0.0, 0.0, 8, cols.data(), coefs.data());
      }
    }
  }

  template <class Sink>
  void Boundaries(Sink& sink) const {
    double const dx = 1.0 / n_;
    int const width = n_ + 1;
    int const control = width * width;
    double const one = 1.0;
    for (int j = 0; j <= n_; ++j) sink.Row(0.0, 0.0, 1, &j, &one);
    for (int i = 1; i <= n_; ++i) {
      int const row = i * width;
      std::array const left = {row + 2, row + 1, row};
      std::array const leftCoefs = {1.0, -4.0, 3.0};
      sink.Row(0.0, 0.0, 3, left.data(), leftCoefs.data());
      std::array const right = {row + n_ - 2, row + n_ - 1, row + n_, control + i - 1, row + n_};
      std::array const rightCoefs = {1.0, -4.0, 3.0, -2.0 * dx, 2.0 * dx};
      sink.Row(0.0, 0.0, 5, right.data(), rightCoefs.data());
    }
  }

  int n_;
};

// A x <= b with n rows and columns and ten random elements a row.
class RandomBlock {
 public:
  explicit RandomBlock(int n) : n_(n), cols_(10 * std::size_t(n)), coefs_(10 * std::size_t(n)), bounds_(n) {
    for (int i = 0; i < n; ++i) {
      for (int k = 0; k < 10; ++k) {
        cols_[10 * std::size_t(i) + k] = FreshColumn(i, k);
        coefs_[10 * std::size_t(i) + k] = Real();
      }
      bounds_[i] = 10.0 * Real();
    }
  }

  Size GetSize() const { return {n_, n_, 10 * std::int64_t{n_}, 10 * std::int64_t{n_}}; }

  // The matrix by rows, each with its ten elements, and the right sides.
  std::vector<int> const& Cols() const { return cols_; }
  std::vector<double> const& Coefs() const { return coefs_; }
  std::vector<double> const& Bounds() const { return bounds_; }

  template <class Sink>
  void Generate(Sink& sink) const {
    sink.Reserve(n_, n_, 10 * std::int64_t{n_});
    for (int j = 0; j < n_; ++j) sink.Col(0.0, 1.0, 1.0, false);
    sink.EndCols();
    for (int i = 0; i < n_; ++i) {
      sink.Row(-kInfinity, bounds_[i], 10, cols_.data() + 10 * std::size_t(i), coefs_.data() + 10 * std::size_t(i));
    }
  }

 private:
  // The generator splitmix64 (Steele, Lea, Flood 2014).
  std::uint64_t Next() {
    std::uint64_t x = state_ += 0x9E3779B97F4A7C15u;
    x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9u;
    x = (x ^ (x >> 27)) * 0x94D049BB133111EBu;
    return x ^ (x >> 31);
  }
  double Real() { return 0.5 + static_cast<double>(Next() >> 11) * 0x1p-53; }

  int FreshColumn(int row, int count) {
    for (;;) {
      int const col = static_cast<int>(Next() % static_cast<std::uint64_t>(n_));
      bool taken = false;
      for (int k = 0; k < count; ++k) taken |= cols_[10 * std::size_t(row) + k] == col;
      if (!taken) return col;
    }
  }

  int n_;
  std::uint64_t state_ = 12345;
  std::vector<int> cols_;
  std::vector<double> coefs_;
  std::vector<double> bounds_;
};

// A x <= b with a full n by n matrix.
class Dense {
 public:
  explicit Dense(int n) : n_(n), cols_(n), coefs_(n) {
    for (int j = 0; j < n; ++j) {
      cols_[j] = j;
      coefs_[j] = 0.5 + (j * 7 % 13) / 13.0;
    }
  }

  Size GetSize() const { return {n_, n_, std::int64_t{n_} * n_, std::int64_t{n_} * n_}; }

  template <class Sink>
  void Generate(Sink& sink) const {
    sink.Reserve(n_, n_, std::int64_t{n_} * n_);
    for (int j = 0; j < n_; ++j) sink.Col(0.0, 1.0, 1.0, false);
    sink.EndCols();
    for (int i = 0; i < n_; ++i) sink.Row(-kInfinity, n_ * (1.0 + i % 5), n_, cols_.data(), coefs_.data());
  }

 private:
  int n_;
  std::vector<int> cols_;
  std::vector<double> coefs_;
};

}  // namespace bench
