// The operations of the logical items.
#include "items/logical_items.hpp"

namespace Vorq {
namespace {

constexpr ItemQuery<int> kIndicatorIIS{VORQ_GetIndicatorIIS, "Fail to get IIS status of general constraint", 0};
constexpr ItemQuery<int> kSosIIS{VORQ_GetSOSIIS, "Fail to get IIS status of SOS constraint", 0};

}  // namespace

int GenConstr::GetIIS() {
  return Query(kGenConstrKind, kIndicatorIIS);
}
int Sos::GetIIS() {
  return Query(kSosKind, kSosIIS);
}

}  // namespace Vorq
