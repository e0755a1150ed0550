// How the functions of the double reach its state: one road for all calls, from the log over the script to the outputs.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>

#include "tests/double/arguments.hpp"
#include "tests/double/handles.hpp"
#include "tests/double/store.hpp"

namespace vorqtest {

// What an unscripted call does to the store, and what it gives out; the result is its return code.
using Effect = std::function<int(Store&, Outputs&)>;

class Backstage {
 public:
  static int Call(char const* function, VORQ_Prob* prob, std::vector<Argument> const& arguments, Effect const& effect);

  static Argument HandleOf(void const* handle, HandleKind kind);
  static int Create(char const* function, HandleKind kind, std::vector<Argument> arguments, void const* parent,
                    void** created);
  static int Delete(char const* function, HandleKind kind, void** handle);
  static int CloseEnv(char const* function, VORQ_Env** env);
  static void CopyStore(VORQ_Prob* from, VORQ_Prob* to);

  static int Count(VORQ_Prob const* prob, Kind kind);
  static VORQ_Prob* ProblemOf(VORQ_CallbackData const* data);

  // The values scripted for a function and a name, null for none.
  static std::vector<double> const* Scripted(char const* function, std::string const& name);
  static int KindOfName(std::string const& name);
  static Value const& BannerText();
  static int CallbackType(std::string const& name, int& dim);

  static void SetCallback(VORQ_Prob* prob, VORQ_CallbackFunction function, int contextMask, void* user);
  static void SetLogFunction(VORQ_Prob* prob, VORQ_LogFunction function, void* user);
};

// A call that has a problem, which stands first in the log.
int Do(char const* function, VORQ_Prob* prob, std::vector<Argument> arguments, Effect const& effect = {});

}  // namespace vorqtest
