// A model that goes through a file: for the examples of models that no engine of this version solves.
#pragma once

#include <cstdio>
#include <memory>

#include <vorq>

template <class T>
std::unique_ptr<T> Own(T* object) {
  return std::unique_ptr<T>(object);
}

inline bool Failed(Vorq::IModel& model, char const* step) {
  if (model.GetLastError() == 0) return false;
  std::fprintf(stderr, "%s: %s\n", step, model.GetErrorMessage());
  return true;
}

// Makes a model with `state`, writes it to the file and reads it back, printing both. Null after a failure, which is
// told.
template <class State, class Print>
std::unique_ptr<Vorq::IModel> StateAndReadBack(char const* path, State state, Print print) {
  auto envr = Own(CreateEnvr(nullptr));
  auto model = Own(CreateModel(envr.get(), "stated"));
  model->SetIntParam("LogToConsole", 0);
  state(*model);
  if (Failed(*model, "stating the model")) return nullptr;
  print("stated", *model);

  model->Write(path);
  if (Failed(*model, "writing")) return nullptr;
  auto copy = Own(CreateModel(envr.get(), "copy"));
  copy->SetIntParam("LogToConsole", 0);
  copy->Read(path);
  if (Failed(*copy, "reading")) return nullptr;
  print("read back", *copy);
  return copy;
}
