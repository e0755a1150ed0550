// The reader of LP files. docs/file-formats.md tells the dialect.
#pragma once

#include "solver/files/file_model.hpp"
#include "solver/files/text_source.hpp"

namespace vorqsolver {

// Fails with VORQ_FILE and the text "name:line: cause".
ReadModel ReadLp(TextSource const& source);

}  // namespace vorqsolver
