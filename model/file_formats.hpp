// The file formats, as records of what a read or write of one does. The texts differ on purpose.
#pragma once

#include "frame/vorq_solver.h"

namespace Vorq {

struct FileFormat {
  char const* extension;
  int (*transfer)(VORQ_Prob* prob, char const* path);
  char const* failed;
  bool flushes = false;  // removals are carried out first
  bool reloads = false;  // the tables are rebuilt after a success, and the file may be compressed
};

inline constexpr FileFormat kReadMps{
    .extension = ".mps", .transfer = VORQ_ReadMps, .failed = "Failed to read MPS file", .reloads = true};
inline constexpr FileFormat kReadLp{
    .extension = ".lp", .transfer = VORQ_ReadLp, .failed = "Failed to read LP file", .reloads = true};
inline constexpr FileFormat kReadSdpa{
    .extension = ".dat-s", .transfer = VORQ_ReadSDPA, .failed = "Failed to read SDPA file", .reloads = true};
inline constexpr FileFormat kReadCbf{
    .extension = ".cbf", .transfer = VORQ_ReadCbf, .failed = "Failed to read CBF file", .reloads = true};
inline constexpr FileFormat kReadBin{
    .extension = ".bin", .transfer = VORQ_ReadBin, .failed = "Failed to read VORQ binary file", .reloads = true};
inline constexpr FileFormat kReadSol{
    .extension = ".sol", .transfer = VORQ_ReadSol, .failed = "Failed to read solution file", .flushes = true};
inline constexpr FileFormat kReadBasis{
    .extension = ".bas", .transfer = VORQ_ReadBasis, .failed = "Failed to read basis file", .flushes = true};
inline constexpr FileFormat kReadMst{
    .extension = ".mst", .transfer = VORQ_ReadMst, .failed = "Failed to read MIP start file", .flushes = true};
inline constexpr FileFormat kReadParam{
    .extension = ".par", .transfer = VORQ_ReadParam, .failed = "Failed to read parameter file"};
inline constexpr FileFormat kReadTune{
    .extension = ".tune", .transfer = VORQ_ReadTune, .failed = "Failed to read tune file"};

inline constexpr FileFormat kWriteMps{
    .extension = ".mps", .transfer = VORQ_WriteMps, .failed = "Fail to write to MPS file", .flushes = true};
inline constexpr FileFormat kWriteLp{
    .extension = ".lp", .transfer = VORQ_WriteLp, .failed = "Fail to write to LP file", .flushes = true};
inline constexpr FileFormat kWriteCbf{
    .extension = ".cbf", .transfer = VORQ_WriteCbf, .failed = "Fail to write to CBF file", .flushes = true};
inline constexpr FileFormat kWriteBin{
    .extension = ".bin", .transfer = VORQ_WriteBin, .failed = "Fail to write to VORQ binary file", .flushes = true};
inline constexpr FileFormat kWriteNL{
    .extension = ".nl", .transfer = VORQ_WriteNL, .failed = "Fail to write to NL file", .flushes = true};
inline constexpr FileFormat kWriteIIS{
    .extension = ".iis", .transfer = VORQ_WriteIIS, .failed = "Fail to write to IIS file", .flushes = true};
inline constexpr FileFormat kWriteRelax{.extension = ".relax",
                                        .transfer = VORQ_WriteRelax,
                                        .failed = "Fail to write to feasibility relaxation problem file",
                                        .flushes = true};
inline constexpr FileFormat kWriteSol{
    .extension = ".sol", .transfer = VORQ_WriteSol, .failed = "Fail to write to solution file", .flushes = true};
inline constexpr FileFormat kWriteBasis{
    .extension = ".bas", .transfer = VORQ_WriteBasis, .failed = "Fail to write to basis file", .flushes = true};
inline constexpr FileFormat kWriteMst{
    .extension = ".mst", .transfer = VORQ_WriteMst, .failed = "Fail to write to MIP start file", .flushes = true};
inline constexpr FileFormat kWriteParam{
    .extension = ".par", .transfer = VORQ_WriteParam, .failed = "Fail to write to Param file"};

// Files that are chosen by an index: a solution of the pool, a tuned set of parameters.
struct IndexedFileFormat {
  int (*transfer)(VORQ_Prob* prob, int index, char const* path);
  char const* failed;
};

inline constexpr IndexedFileFormat kWritePoolSol{.transfer = VORQ_WritePoolSol,
                                                 .failed = "Fail to write to solution file"};
inline constexpr IndexedFileFormat kWriteTuneParam{.transfer = VORQ_WriteTuneParam,
                                                   .failed = "Fail to write tuned parameters to file"};

// The order in which Read and Write look at the ending of a path.
inline constexpr FileFormat const* kReadDispatch[] = {&kReadMps, &kReadLp,    &kReadBin, &kReadSdpa,  &kReadCbf,
                                                      &kReadSol, &kReadBasis, &kReadMst, &kReadParam, &kReadTune};
inline constexpr FileFormat const* kWriteDispatch[] = {&kWriteMps,   &kWriteLp,  &kWriteCbf,   &kWriteBin,
                                                       &kWriteNL,    &kWriteIIS, &kWriteRelax, &kWriteSol,
                                                       &kWriteBasis, &kWriteMst, &kWriteParam};

}  // namespace Vorq
