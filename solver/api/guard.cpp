// The one place where exceptions become return codes.
#include "solver/api/guard.hpp"

#include <exception>
#include <new>
#include <string>
#include <system_error>

namespace vorqsolver {

namespace {

// Writing the report must not fail the call a second time.
void Tell(Problem* problem, char const* text) noexcept {
  if (problem == nullptr) return;
  try {
    problem->lastMessage = text;
    problem->log.Line(Text("Error: ", text));
  } catch (...) {
    return;
  }
}

}  // namespace

int ReportFailure(Problem* problem) noexcept {
  try {
    throw;
  } catch (Failure const& failure) {
    Tell(problem, failure.what());
    return failure.code;
  } catch (std::bad_alloc const&) {
    Tell(problem, "Out of memory");
    return VORQ_MEMORY;
  } catch (std::length_error const&) {
    Tell(problem, "Out of memory");
    return VORQ_MEMORY;
  } catch (std::system_error const& error) {
    bool const isThread = error.code() == std::errc::resource_unavailable_try_again;
    Tell(problem, isThread ? "A thread could not be started" : error.what());
    return isThread ? VORQ_THREAD : VORQ_INTERNAL;
  } catch (std::exception const& exception) {
    Tell(problem, exception.what());
    return VORQ_INTERNAL;
  } catch (...) {
    Tell(problem, "Unknown error");
    return VORQ_INTERNAL;
  }
}

}  // namespace vorqsolver
