// The one exception that the library throws by itself.
#ifndef VORQMODEL_EXCEPTION_H
#define VORQMODEL_EXCEPTION_H

#include <stdexcept>

namespace Vorq {

// Thrown when the solver library fails to search a parameter or attribute name. All other failures are recorded in the
// object on which they happened.
class Exception : public std::runtime_error {
 public:
  explicit Exception(int retcode) : std::runtime_error("ERROR"), code(retcode) {}
  Exception(char const* message, int retcode) : std::runtime_error(message), code(retcode) {}

  // The solver library's return code.
  int code;
};

}  // namespace Vorq

#endif
