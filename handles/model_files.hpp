// Operations of the model's handle on files, parameters and attributes.
#pragma once

#include "handles/model_handle.hpp"
#include "handles/problem_buffer.hpp"

class VorqModelFiles : public Vorq::ModelHandle {
 public:
  using ModelHandle::ModelHandle;

  // Files, by extension or by format.
  void Read(char const* path) override { Impl().Read(path); }
  void ReadMps(char const* path) override { Impl().Transfer(Vorq::kReadMps, path); }
  void ReadLp(char const* path) override { Impl().Transfer(Vorq::kReadLp, path); }
  void ReadSdpa(char const* path) override { Impl().Transfer(Vorq::kReadSdpa, path); }
  void ReadCbf(char const* path) override { Impl().Transfer(Vorq::kReadCbf, path); }
  void ReadBin(char const* path) override { Impl().Transfer(Vorq::kReadBin, path); }
  void ReadSol(char const* path) override { Impl().Transfer(Vorq::kReadSol, path); }
  void ReadBasis(char const* path) override { Impl().Transfer(Vorq::kReadBasis, path); }
  void ReadMst(char const* path) override { Impl().Transfer(Vorq::kReadMst, path); }
  void ReadParam(char const* path) override { Impl().Transfer(Vorq::kReadParam, path); }
  void ReadTune(char const* path) override { Impl().Transfer(Vorq::kReadTune, path); }

  // Parameters by name, in any case.
  void GetParamInfo(char const* name, int* current, int* def, int* min, int* max) override {
    Impl().GetParamInfo(name, current, def, min, max);
  }
  void GetParamInfo(char const* name, double* current, double* def, double* min, double* max) override {
    Impl().GetParamInfo(name, current, def, min, max);
  }
  int GetIntParam(char const* name) override { return Impl().GetIntParam(name); }
  double GetDblParam(char const* name) override { return Impl().GetDblParam(name); }
  void SetIntParam(char const* name, int value) override { Impl().SetIntParam(name, value); }
  void SetDblParam(char const* name, double value) override { Impl().SetDblParam(name, value); }

  // Writing files.
  void Write(char const* path) override { Impl().Write(path); }
  void WriteMps(char const* path) override { Impl().Transfer(Vorq::kWriteMps, path); }
  Vorq::IProbBuffer* WriteMpsStr() override { return Vorq::Wrap<Vorq::IProbBuffer>(Impl().WriteMpsStr()); }
  void WriteLp(char const* path) override { Impl().Transfer(Vorq::kWriteLp, path); }
  void WriteCbf(char const* path) override { Impl().Transfer(Vorq::kWriteCbf, path); }
  void WriteBin(char const* path) override { Impl().Transfer(Vorq::kWriteBin, path); }
  void WriteNL(char const* path) override { Impl().Transfer(Vorq::kWriteNL, path); }
  void WriteIIS(char const* path) override { Impl().Transfer(Vorq::kWriteIIS, path); }
  void WriteRelax(char const* path) override { Impl().Transfer(Vorq::kWriteRelax, path); }
  void WriteSol(char const* path) override { Impl().Transfer(Vorq::kWriteSol, path); }
  void WritePoolSol(int index, char const* path) override { Impl().Transfer(Vorq::kWritePoolSol, index, path); }
  void WriteBasis(char const* path) override { Impl().Transfer(Vorq::kWriteBasis, path); }
  void WriteMst(char const* path) override { Impl().Transfer(Vorq::kWriteMst, path); }
  void WriteParam(char const* path) override { Impl().Transfer(Vorq::kWriteParam, path); }
  void WriteTuneParam(int index, char const* path) override { Impl().Transfer(Vorq::kWriteTuneParam, index, path); }

  // Attributes by name, in any case.
  int GetIntAttr(char const* name) override { return Impl().GetIntAttr(name); }
  double GetDblAttr(char const* name) override { return Impl().GetDblAttr(name); }
  int SearchParamAttr(char const* name) override { return Impl().SearchParamAttr(name); }
};
