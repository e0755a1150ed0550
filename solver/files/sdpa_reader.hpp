// The reader of SDPA sparse files. docs/file-formats.md tells what becomes of their blocks.
#pragma once

#include "solver/files/file_model.hpp"
#include "solver/files/text_source.hpp"

namespace vorqsolver {

// Fails with VORQ_FILE and the text "name:line: cause".
ReadModel ReadSdpa(TextSource const& source);

}  // namespace vorqsolver
