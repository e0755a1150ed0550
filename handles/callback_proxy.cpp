// From the solver library to the caller's callback object, and the export that makes a proxy.
#include "handles/callback_proxy.hpp"

#include "handles/set_callback.hpp"
#include "model/model.hpp"
#include "vorqmodel/exports.h"

namespace Vorq {
namespace {

// Null for an object that has no proxy, or none any more.
SharedPtr<CallbackProxy> ProxyOf(ICallback& callback) {
  ICallbackProxy* const proxy = callback.GetCallbackProxy();
  return proxy == nullptr ? SharedPtr<CallbackProxy>() : static_cast<VorqCallbackProxy*>(proxy)->Holder();
}

// What the solver library calls. The holder keeps the proxy should the callback delete its handle. An exception of the
// caller's is for the solver library to carry.
int RunCallback(VORQ_Prob*, VORQ_CallbackData* data, int context, void* user) {
  auto& callback = *static_cast<ICallback*>(user);
  SharedPtr<CallbackProxy> const proxy = ProxyOf(callback);
  if (!proxy) return kOk;
  proxy->Run(data, context, [&callback] { callback.Callback(); });
  return kOk;
}

}  // namespace

void SetCallback(Model& model, ICallback* callback, int contextMask) {
  if (callback == nullptr) {
    model.SetCallback(nullptr, 0, nullptr, nullptr);
    return;
  }
  if (callback->GetCallbackProxy() == nullptr) {
    SetStatus(model.status, kInvalid, "The callback object has no proxy");
    return;
  }
  auto attach = [callback, problem = model.Core().prob](int columnCount) {
    SharedPtr<CallbackProxy> const proxy = ProxyOf(*callback);
    return !proxy || proxy->Attach(problem, columnCount);
  };
  if (!attach(model.Count<Var>())) {
    SetStatus(model.status, kInvalid, "The callback is running for another model");
    return;
  }
  model.SetCallback(RunCallback, contextMask, callback, attach);
}

}  // namespace Vorq

extern "C" Vorq::ICallbackProxy* CreateCallbackProxy() {
  return Vorq::Wrap<Vorq::ICallbackProxy>();
}
