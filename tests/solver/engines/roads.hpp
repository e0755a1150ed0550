// The roads by which a MIP can be solved: by which engine, and with what help.
#pragma once

#include <gtest/gtest.h>

#include "frame/vorq_solver.h"

enum class Road { kDefault, kNoPresolve, kPlain, kOwn, kOwnPlain };
inline constexpr Road kRoads[] = {Road::kDefault, Road::kNoPresolve, Road::kPlain, Road::kOwn, Road::kOwnPlain};

// With a callback, our own branch and cut is the engine.
inline void TakeRoad(VORQ_Prob* prob, Road road) {
  bool const isOwn = road == Road::kOwn || road == Road::kOwnPlain;
  if (isOwn) {
    EXPECT_EQ(VORQ_SetCallback(
                  prob, [](VORQ_Prob*, VORQ_CallbackData*, int, void*) { return 0; }, -1, nullptr),
              VORQ_OK);
  } else if (road != Road::kDefault) {
    EXPECT_EQ(VORQ_SetIntParam(prob, "Presolve", 0), VORQ_OK);
  }
  if (road != Road::kPlain && road != Road::kOwnPlain) return;
  EXPECT_EQ(VORQ_SetIntParam(prob, "CutLevel", 0), VORQ_OK);
  EXPECT_EQ(VORQ_SetIntParam(prob, "HeurLevel", 0), VORQ_OK);
}
