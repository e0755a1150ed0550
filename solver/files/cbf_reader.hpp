// The reader of CBF files, versions 1 to 4. docs/file-formats.md tells what of them a problem can hold.
#pragma once

#include "solver/files/file_model.hpp"
#include "solver/files/text_source.hpp"

namespace vorqsolver {

// Fails with VORQ_FILE and the text "name:line: cause".
ReadModel ReadCbf(TextSource const& source);

}  // namespace vorqsolver
