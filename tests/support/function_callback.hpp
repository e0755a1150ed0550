// FunctionCallback: a callback object that runs a function.
#pragma once

#include <vorq>

#include <functional>
#include <memory>
#include <utility>

namespace vorqtest {

class FunctionCallback final : public Vorq::ICallback {
 public:
  using Body = std::function<void(Vorq::ICallbackProxy& proxy)>;

  explicit FunctionCallback(Body function = {}) : body(std::move(function)) {}

  void Callback() override {
    ++calls;
    if (body) body(*proxy);
  }
  Vorq::ICallbackProxy* GetCallbackProxy() override { return proxy.get(); }

  Body body;
  int calls = 0;
  std::unique_ptr<Vorq::ICallbackProxy> proxy{CreateCallbackProxy()};
};

}  // namespace vorqtest
