// ArgumentWorld: a model with one item of each kind, and an object of each interface, for tests that call operations
// with any arguments.
//
//     ArgumentWorld world;
//     world.Get<IVarArray*>();     // an array with a variable of the model
//     world.Get<double const*>();  // plenty of numbers
#pragma once

#include <vorq>

#include <array>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "tests/support/function_callback.hpp"
#include "tests/support/objects.hpp"

namespace vorqtest {

class ArgumentWorld {
 public:
  // What the arguments are like: as operations expect them, with numbers below zero, or with items that were removed.
  enum class Kind { kValid, kNegative, kRemoved };

  // `letter` is the sense, or the type, that stands in texts and characters.
  explicit ArgumentWorld(Kind kind = Kind::kValid, char letter = 'L') : kind_(kind), letter_(letter) {
    model_->SetIntParam("LogToConsole", 0);
    ints_.fill(Number<int>());
    numbers_.fill(Number<double>());
    texts_.fill(letter);
    for (std::size_t i = 1; i < texts_.size(); i += 2) texts_[i] = '\0';
    kept_.emplace_back(model_->AddVar(0.0, 1.0, 0.0, 'B', "first"));
  }

  // A valid argument of the type; objects live as long as the world.
  template <class T>
  T Get() {
    if constexpr (!std::is_pointer_v<T>) {
      return Number<T>();
    } else {
      using Pointee = std::remove_const_t<std::remove_pointer_t<T>>;
      if constexpr (std::is_class_v<Pointee>) {
        return Object(static_cast<Pointee*>(nullptr));
      } else if constexpr (std::is_same_v<Pointee, char>) {
        return texts_.data();
      } else if constexpr (std::is_same_v<Pointee, int>) {
        return ints_.data();
      } else {
        static_assert(std::is_same_v<Pointee, double>);
        return numbers_.data();
      }
    }
  }

  Vorq::IModel& Model() { return *model_; }

 private:
  template <class T>
  T Number() const {
    if constexpr (std::is_same_v<T, char>) {
      return letter_;
    } else if constexpr (std::is_same_v<T, std::uint64_t>) {
      return 32;  // a cell of the blocks, and the length of the names
    } else if constexpr (std::is_same_v<T, bool>) {
      return true;
    } else if constexpr (std::is_arithmetic_v<T>) {
      return static_cast<T>(kind_ == Kind::kNegative ? -1 : 1);
    } else {
      return T();  // a list
    }
  }

  template <class I>
  I* Keep(I* object) {
    kept_.emplace_back(object);
    if constexpr (requires { object->Remove(); }) {
      if (kind_ == Kind::kRemoved) object->Remove();
    }
    return object;
  }
  template <class Array, class Element>
  Array* ArrayOf(Array* array, Element* element) {
    array->PushBack(*element);
    return Keep(array);
  }

  template <int N>
  Vorq::INDim<N>* Object(Vorq::INDim<N>*) {
    if constexpr (N == 0) return Keep(factory_->CreateNDim());
    if constexpr (N == 1) return Keep(factory_->CreateNDim(64));
    if constexpr (N == 2) return Keep(factory_->CreateNDim(8, 8));
    if constexpr (N == 3) return Keep(factory_->CreateNDim(4, 4, 4));
  }
  template <class T, int N>
  Vorq::INdArray<T, N>* Object(Vorq::INdArray<T, N>*) {
    return Keep(factory_->CreateNdArray(Get<Vorq::INDim<N>*>(), T(1)));
  }
  template <int N>
  Vorq::IMVar<N>* Object(Vorq::IMVar<N>*) {
    return Keep(factory_->CreateMVar(Get<Vorq::INDim<N>*>(), Get<Vorq::IVar*>()));
  }
  template <int N>
  Vorq::IMConstr<N>* Object(Vorq::IMConstr<N>*) {
    return Keep(factory_->CreateMConstr(Get<Vorq::INDim<N>*>(), Get<Vorq::IConstraint*>()));
  }
  template <int N>
  Vorq::IMQConstr<N>* Object(Vorq::IMQConstr<N>*) {
    return Keep(factory_->CreateMQConstr(Get<Vorq::INDim<N>*>(), Get<Vorq::IQConstraint*>()));
  }
  template <int N>
  Vorq::IMPsdConstr<N>* Object(Vorq::IMPsdConstr<N>*) {
    return Keep(factory_->CreateMPsdConstr(Get<Vorq::INDim<N>*>(), Get<Vorq::IPsdConstraint*>()));
  }
  template <int N>
  Vorq::IMLinExpr<N>* Object(Vorq::IMLinExpr<N>*) {
    return Keep(factory_->CreateMLinExpr(Get<Vorq::INDim<N>*>(), Get<Vorq::IExpr*>()));
  }
  template <int N>
  Vorq::IMQuadExpr<N>* Object(Vorq::IMQuadExpr<N>*) {
    return Keep(factory_->CreateMQuadExpr(Get<Vorq::INDim<N>*>(), Get<Vorq::IQuadExpr*>()));
  }
  template <int N>
  Vorq::IMPsdExpr<N>* Object(Vorq::IMPsdExpr<N>*) {
    return Keep(factory_->CreateMPsdExpr(Get<Vorq::INDim<N>*>(), Get<Vorq::IPsdExpr*>()));
  }
  template <int N>
  Vorq::IMConstrBuilder<N>* Object(Vorq::IMConstrBuilder<N>*) {
    auto* builder = Keep(factory_->CreateMConstrBuilder(Get<Vorq::INDim<N>*>()));
    builder->Set(Get<Vorq::IMLinExpr<N>*>(), 'L', 1.0);
    return builder;
  }
  template <int N>
  Vorq::IMQConstrBuilder<N>* Object(Vorq::IMQConstrBuilder<N>*) {
    auto* builder = Keep(factory_->CreateMQConstrBuilder(Get<Vorq::INDim<N>*>()));
    builder->Set(Get<Vorq::IMQuadExpr<N>*>(), 'L', 1.0);
    return builder;
  }
  template <int N>
  Vorq::IMPsdConstrBuilder<N>* Object(Vorq::IMPsdConstrBuilder<N>*) {
    auto* builder = Keep(factory_->CreateMPsdConstrBuilder(Get<Vorq::INDim<N>*>()));
    builder->Set(Get<Vorq::IMPsdExpr<N>*>(), 'L', 1.0);
    return builder;
  }

  Vorq::IEnvr* Object(Vorq::IEnvr*) { return envr_.get(); }
  Vorq::IEnvrConfig* Object(Vorq::IEnvrConfig*) { return Keep(CreateEnvrConfig()); }
  Vorq::IModel* Object(Vorq::IModel*) { return model_.get(); }
  Vorq::ILogSink* Object(Vorq::ILogSink*) { return &sink_; }
  Vorq::ICallback* Object(Vorq::ICallback*) { return &callback_; }
  Vorq::ICallbackProxy* Object(Vorq::ICallbackProxy*) { return callback_.GetCallbackProxy(); }
  Vorq::IView* Object(Vorq::IView*) {
    auto* view = Keep(factory_->CreateView());
    Keep(view->Full());
    return view;
  }

  // Items of the model.
  Vorq::IVar* Object(Vorq::IVar*) { return Keep(model_->AddVar(0.0, 1.0, 0.0, 'B', "x")); }
  Vorq::IConstraint* Object(Vorq::IConstraint*) { return Keep(model_->AddConstr(Get<Vorq::IExpr*>(), 'L', 1.0, "c")); }
  Vorq::IQConstraint* Object(Vorq::IQConstraint*) {
    return Keep(model_->AddQConstr(Get<Vorq::IQuadExpr*>(), 'L', 1.0, "q"));
  }
  Vorq::IPsdVar* Object(Vorq::IPsdVar*) { return Keep(model_->AddPsdVar(2, "X")); }
  Vorq::IPsdConstraint* Object(Vorq::IPsdConstraint*) {
    return Keep(model_->AddPsdConstr(Get<Vorq::IPsdExpr*>(), 'L', 1.0, "p"));
  }
  Vorq::ILmiConstraint* Object(Vorq::ILmiConstraint*) {
    return Keep(model_->AddLmiConstr(Get<Vorq::ILmiExpr*>(), "l"));
  }
  Vorq::IGenConstr* Object(Vorq::IGenConstr*) {
    return Keep(model_->AddGenConstrIndicator(Get<Vorq::IGenConstrBuilder*>(), "g"));
  }
  Vorq::ISos* Object(Vorq::ISos*) { return Keep(model_->AddSos(Get<Vorq::ISosBuilder*>())); }
  Vorq::ICone* Object(Vorq::ICone*) { return Keep(model_->AddCone(3, 1, nullptr, "k")); }
  Vorq::IExpCone* Object(Vorq::IExpCone*) { return Keep(model_->AddExpCone(3, nullptr, "e")); }
  Vorq::IAffineCone* Object(Vorq::IAffineCone*) {
    return Keep(model_->AddAffineCone(Get<Vorq::IAffineConeBuilder*>(), "a"));
  }
  Vorq::ISymMatrix* Object(Vorq::ISymMatrix*) { return Keep(model_->AddEyeMat(2)); }

  // Expressions and builders.
  Vorq::IExpr* Object(Vorq::IExpr*) { return Keep(CreateLinExpr(Get<Vorq::IVar*>(), 1.0)); }
  Vorq::IColumn* Object(Vorq::IColumn*) {
    auto* column = Keep(CreateColumn());
    column->AddTerm(Get<Vorq::IConstraint*>(), 1.0);
    return column;
  }
  Vorq::IQuadExpr* Object(Vorq::IQuadExpr*) { return Keep(CreateQuadExpr4(Get<Vorq::IExpr*>(), Get<Vorq::IVar*>())); }
  Vorq::IPsdExpr* Object(Vorq::IPsdExpr*) {
    return Keep(CreatePsdExpr4(Get<Vorq::IPsdVar*>(), Get<Vorq::ISymMatrix*>()));
  }
  Vorq::ILmiExpr* Object(Vorq::ILmiExpr*) { return Keep(CreateLmiExpr4(Get<Vorq::IVar*>(), Get<Vorq::ISymMatrix*>())); }
  Vorq::ISymMatExpr* Object(Vorq::ISymMatExpr*) { return Keep(CreateSymMatExpr2(Get<Vorq::ISymMatrix*>(), 1.0)); }
  Vorq::IMExpression* Object(Vorq::IMExpression*) { return Keep(factory_->CreateMExpression(Get<Vorq::IExpr*>())); }
  Vorq::IMQExpression* Object(Vorq::IMQExpression*) {
    return Keep(factory_->CreateMQExpression(Get<Vorq::IQuadExpr*>()));
  }
  Vorq::IConstrBuilder* Object(Vorq::IConstrBuilder*) {
    auto* builder = Keep(CreateConstrBuilder());
    builder->Set(Get<Vorq::IExpr*>(), 'L', 1.0);
    return builder;
  }
  Vorq::IQConstrBuilder* Object(Vorq::IQConstrBuilder*) {
    auto* builder = Keep(CreateQConstrBuilder());
    builder->Set(Get<Vorq::IQuadExpr*>(), 'L', 1.0);
    return builder;
  }
  Vorq::IPsdConstrBuilder* Object(Vorq::IPsdConstrBuilder*) {
    auto* builder = Keep(CreatePsdConstrBuilder());
    builder->Set(Get<Vorq::IPsdExpr*>(), 'L', 1.0);
    return builder;
  }
  Vorq::IGenConstrBuilder* Object(Vorq::IGenConstrBuilder*) {
    auto* builder = Keep(CreateGenConstrBuilder());
    builder->Set(Get<Vorq::IVar*>(), 1, Get<Vorq::IExpr*>(), 'L', 0);
    return builder;
  }
  Vorq::ISosBuilder* Object(Vorq::ISosBuilder*) {
    auto* builder = Keep(CreateSosBuilder());
    builder->Set(Get<Vorq::IVarArray*>(), numbers_.data(), 1);
    return builder;
  }
  Vorq::IConeBuilder* Object(Vorq::IConeBuilder*) {
    auto* builder = Keep(CreateConeBuilder());
    builder->Set(Get<Vorq::IVarArray*>(), 1);
    return builder;
  }
  Vorq::IExpConeBuilder* Object(Vorq::IExpConeBuilder*) {
    auto* builder = Keep(CreateExpConeBuilder());
    builder->Set(Get<Vorq::IVarArray*>(), 3);
    return builder;
  }
  Vorq::IAffineConeBuilder* Object(Vorq::IAffineConeBuilder*) {
    auto* builder = Keep(CreateAffineConeBuilder());
    builder->Set(Get<Vorq::IMLinExpr<1>*>(), 1);
    return builder;
  }

  // Arrays with one element.
  Vorq::IVarArray* Object(Vorq::IVarArray*) { return ArrayOf(CreateVarArray(), Get<Vorq::IVar*>()); }
  Vorq::IConstrArray* Object(Vorq::IConstrArray*) { return ArrayOf(CreateConstrArray(), Get<Vorq::IConstraint*>()); }
  Vorq::IColumnArray* Object(Vorq::IColumnArray*) { return ArrayOf(CreateColumnArray(), Get<Vorq::IColumn*>()); }
  Vorq::ISosArray* Object(Vorq::ISosArray*) { return ArrayOf(CreateSosArray(), Get<Vorq::ISos*>()); }
  Vorq::IGenConstrArray* Object(Vorq::IGenConstrArray*) {
    return ArrayOf(CreateGenConstrArray(), Get<Vorq::IGenConstr*>());
  }
  Vorq::IConeArray* Object(Vorq::IConeArray*) { return ArrayOf(CreateConeArray(), Get<Vorq::ICone*>()); }
  Vorq::IExpConeArray* Object(Vorq::IExpConeArray*) { return ArrayOf(CreateExpConeArray(), Get<Vorq::IExpCone*>()); }
  Vorq::IAffineConeArray* Object(Vorq::IAffineConeArray*) {
    return ArrayOf(CreateAffineConeArray(), Get<Vorq::IAffineCone*>());
  }
  Vorq::IQConstrArray* Object(Vorq::IQConstrArray*) {
    return ArrayOf(CreateQConstrArray(), Get<Vorq::IQConstraint*>());
  }
  Vorq::IPsdVarArray* Object(Vorq::IPsdVarArray*) { return ArrayOf(CreatePsdVarArray(), Get<Vorq::IPsdVar*>()); }
  Vorq::IPsdConstrArray* Object(Vorq::IPsdConstrArray*) {
    return ArrayOf(CreatePsdConstrArray(), Get<Vorq::IPsdConstraint*>());
  }
  Vorq::ILmiConstrArray* Object(Vorq::ILmiConstrArray*) {
    return ArrayOf(CreateLmiConstrArray(), Get<Vorq::ILmiConstraint*>());
  }
  Vorq::ISymMatrixArray* Object(Vorq::ISymMatrixArray*) {
    return ArrayOf(CreateSymMatrixArray(), Get<Vorq::ISymMatrix*>());
  }
  Vorq::IConstrBuilderArray* Object(Vorq::IConstrBuilderArray*) {
    return ArrayOf(CreateConstrBuilderArray(), Get<Vorq::IConstrBuilder*>());
  }
  Vorq::IGenConstrBuilderArray* Object(Vorq::IGenConstrBuilderArray*) {
    return ArrayOf(CreateGenConstrBuilderArray(), Get<Vorq::IGenConstrBuilder*>());
  }

  Kind kind_;
  char letter_;
  static constexpr std::size_t kRoom = 1024;
  std::array<int, kRoom> ints_;
  std::array<double, kRoom> numbers_;
  std::array<char, kRoom> texts_;
  SilentSink sink_;
  FunctionCallback callback_;
  std::unique_ptr<Vorq::IMFactory> factory_{CreateMFactory()};
  std::unique_ptr<Vorq::IEnvr> envr_{CreateEnvr(&sink_)};
  std::unique_ptr<Vorq::IModel> model_{envr_->CreateModel("world")};
  std::vector<std::shared_ptr<void>> kept_;
};

}  // namespace vorqtest
