// What the scalar interfaces cost over raw arrays: the standard models built both ways in turn, in one process.
//
//     build_scalar [REPEATS]
//
// Prints the median processor time of each, their ratio, the time a nonzero, the ratio of peak memory and the
// allocations a row. The built models are compared with the raw ones; a difference ends the program with 1.
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

#include <vorq>

#include "bench/fingerprint.hpp"
#include "bench/generators.hpp"
#include "bench/measure.hpp"
#include "bench/raw_model.hpp"
#include "bench/scalar_sink.hpp"

namespace {

// The raw model is the one that the scalar one must equal.
struct Expected {
  bench::Size size;
  double fingerprint = 0.0;

  bool Matches(Vorq::IModel& model) const {
    return model.GetIntAttr("Rows") == size.rows && model.GetIntAttr("Cols") == size.cols &&
           model.GetIntAttr("Elems") == size.elements &&
           std::abs(bench::Fingerprint(model) - fingerprint) <= 1e-9 * std::abs(fingerprint);
  }
};

template <class Generator>
void Run(char const* name, Generator const& generator, Vorq::IEnvr& envr, int repeats) {
  bench::RawSink reference;
  generator.Generate(reference);
  Expected const expected{generator.GetSize(), bench::Fingerprint(reference.Arrays())};

  std::vector<bench::Cost> rawCosts, scalarCosts;
  for (int repeat = 0; repeat < repeats; ++repeat) {
    bench::RawSink rawSink;
    bench::RawArrays handedOver;
    rawCosts.push_back(bench::Measure(
        [&] {
          generator.Generate(rawSink);
          handedOver = rawSink.Arrays().View().Copy();
        },
        [&] { return bench::Fingerprint(handedOver) == expected.fingerprint; }));
    std::unique_ptr<Vorq::IModel> model;
    std::unique_ptr<bench::ScalarSink> sink;
    scalarCosts.push_back(bench::Measure(
        [&] {
          model.reset(CreateModel(&envr, name));
          sink = std::make_unique<bench::ScalarSink>(*model);
          generator.Generate(*sink);
        },
        [&] { return expected.Matches(*model); }));
  }
  bench::Cost const raw = bench::Median(rawCosts);
  bench::Cost const scalar = bench::Median(scalarCosts);
  double const elements = static_cast<double>(expected.size.elements);
  std::printf(
      "%-10s raw %.4f s %5.1f ns/nz | scalar %.4f s %5.1f ns/nz | time ratio %5.2f | memory ratio %5.2f | "
      "allocations a row %.3f\n",
      name, raw.seconds, 1e9 * raw.seconds / elements, scalar.seconds, 1e9 * scalar.seconds / elements,
      scalar.seconds / raw.seconds, scalar.peakBytes / raw.peakBytes,
      static_cast<double>(scalar.allocations) / static_cast<double>(expected.size.rows));
}

}  // namespace

int main(int argc, char** argv) {
  int const repeats = argc > 1 ? std::max(1, std::atoi(argv[1])) : 5;
  std::unique_ptr<Vorq::IEnvr> const envr(CreateEnvr(nullptr));
  Run("fac-50", bench::Facility(50), *envr, repeats);
  Run("lqcp-500", bench::HeatControl(500), *envr, repeats);
  Run("lqcp-1000", bench::HeatControl(1000), *envr, repeats);
  Run("block-200k", bench::RandomBlock(200'000), *envr, repeats);
  Run("dense-1000", bench::Dense(1000), *envr, repeats);
}
