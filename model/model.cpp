// Making, resetting and clearing a model; the scratch arrays; names buffers.
#include "model/model.hpp"

#include "model/names.hpp"

namespace Vorq {
namespace {

constexpr char const* kResetAllFailed = "Fail to reset solution and additional information";
constexpr char const* kResetParamFailed = "Fail to reset parameter settings";

}  // namespace

Model::Model(Envr const& envr, char const* name) : core_(MakeShared<ModelCore>()) {
  core_->env = envr.Handle();
  core_->name = name == nullptr ? "" : name;
  core_->prob = MakeShared<ProbHandle>(envr.Handle()->env);
  if (name == nullptr) Refuse("The name of the model is null");
  if (Prob() == nullptr) Record(kMemory, "Critical: fail to create problem");
}

void Model::EnsureDense(int size) {
  auto const wanted = static_cast<std::size_t>(std::max(size, 0));
  if (denseVal_.size() >= wanted) return;
  denseVal_.resize(wanted);
  denseIdx_.resize(wanted);
  EnsureMarks(size);
}

void Model::EnsureMarks(int size) {
  auto const wanted = static_cast<std::size_t>(std::max(size, 0));
  if (denseFlag_.size() < wanted) denseFlag_.resize(wanted);
}

bool Model::TakeNames(char const* names, std::size_t length, int count, std::vector<char const*>& result) {
  return SplitNames(names, length, count, result) || Refuse("Invalid size of input names");
}

void Model::Reset() {
  Record(VORQ_Reset(Prob(), 0), "Fail to reset solution");
}

void Model::ResetAll() {
  Record(VORQ_Reset(Prob(), 1), kResetAllFailed);
}

void Model::ResetParam() {
  Record(VORQ_ResetParam(Prob()), kResetParamFailed);
}

void Model::Clear() {
  if (!Record(VORQ_Reset(Prob(), 1), kResetAllFailed)) return;
  if (!Record(VORQ_ResetParam(Prob()), kResetParamFailed)) return;
  if (!SetCallback(nullptr, 0, nullptr, nullptr)) return;
  if (!Record(VORQ_ClearProb(Prob()), "Fail to clear problem")) return;
  ForEachKind(AllKinds(), [this]<class Item>() {
    core_->Table<Item>() = {};
    return true;
  });
  core_->mipStart.clear();
  denseVal_.clear();
  denseFlag_.clear();
  denseIdx_.clear();
}

}  // namespace Vorq
