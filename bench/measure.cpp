// Clocks, a counting allocator and the forked measurement.
#include "bench/measure.hpp"

#include <malloc.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>
#include <type_traits>

namespace {

std::atomic<std::int64_t> allocations = 0;

void* Allocate(std::size_t size) {
  allocations.fetch_add(1, std::memory_order_relaxed);
  void* memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

// A line of /proc/self/status such as "VmHWM:", in bytes.
double StatusBytes(char const* key) {
  std::FILE* file = std::fopen("/proc/self/status", "r");
  if (file == nullptr) return 0.0;
  char line[256];
  double bytes = 0.0;
  while (std::fgets(line, sizeof line, file) != nullptr) {
    if (std::strncmp(line, key, std::strlen(key)) == 0) bytes = 1024.0 * std::atof(line + std::strlen(key));
  }
  std::fclose(file);
  return bytes;
}

}  // namespace

void* operator new(std::size_t size) {
  return Allocate(size);
}
void* operator new[](std::size_t size) {
  return Allocate(size);
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete[](void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
  std::free(memory);
}

namespace bench {
namespace {

double ProcessorSeconds() {
  timespec time;
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

Cost MeasureHere(std::function<void()> const& work) {
  // What the process has free would hide what the work takes.
  malloc_trim(0);
  double const bytes = StatusBytes("VmRSS:");
  std::int64_t const before = allocations.load();
  double const start = ProcessorSeconds();
  work();
  Cost cost;
  cost.seconds = ProcessorSeconds() - start;
  cost.allocations = allocations.load() - before;
  cost.peakBytes = StatusBytes("VmHWM:") - bytes;
  return cost;
}

[[noreturn]] void Fail(char const* message) {
  std::fprintf(stderr, "bench: %s\n", message);
  std::exit(1);
}

}  // namespace

Cost Measure(std::function<void()> const& work, std::function<bool()> const& check) {
  int ends[2];
  if (pipe(ends) != 0) Fail("no pipe");
  std::fflush(stdout);
  pid_t const child = fork();
  if (child < 0) Fail("no child process");
  if (child == 0) {
    Cost const cost = MeasureHere(work);
    if (check && !check()) _exit(1);
    _exit(write(ends[1], &cost, sizeof cost) == sizeof cost ? 0 : 1);
  }
  close(ends[1]);
  Cost cost;
  bool const complete = read(ends[0], &cost, sizeof cost) == sizeof cost;
  close(ends[0]);
  waitpid(child, nullptr, 0);
  if (!complete) Fail("the model that was built is not the right one");
  return cost;
}

Cost MeasurePass(std::function<void()> const& work) {
  constexpr int kPasses = 5;
  Cost pass = Measure(work);
  Cost const all = Measure([&work] {
    for (int i = 0; i <= kPasses; ++i) work();
  });
  pass.seconds = (all.seconds - pass.seconds) / kPasses;
  return pass;
}

Cost Median(std::vector<Cost> const& costs) {
  auto const middle = [&](auto Cost::*field) {
    std::vector<std::remove_cvref_t<decltype(costs[0].*field)>> values;
    for (Cost const& cost : costs) values.push_back(cost.*field);
    std::ranges::nth_element(values, values.begin() + std::ssize(values) / 2);
    return values[values.size() / 2];
  };
  return {middle(&Cost::seconds), middle(&Cost::peakBytes), middle(&Cost::allocations)};
}

}  // namespace bench
