// The reader of MPS files, fixed and free format. docs/file-formats.md tells the dialect.
#pragma once

#include "solver/files/file_model.hpp"
#include "solver/files/text_source.hpp"

namespace vorqsolver {

// Fails with VORQ_FILE and the text "name:line: cause".
ReadModel ReadMps(TextSource const& source);

}  // namespace vorqsolver
