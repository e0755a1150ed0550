// The binary format: all that a problem states, equal to the bit. docs/file-formats.md tells its head.
#pragma once

#include "solver/files/file_model.hpp"
#include "solver/files/text_source.hpp"

namespace vorqsolver {

// Fails with VORQ_INVALID where an item lost a column that was deleted.
WrittenFile WriteBinary(ProblemData const& data);

// Fails with VORQ_FILE and the text "name: cause" for a file that is not whole, or that states what no problem can
// hold.
ReadModel ReadBinary(TextSource const& source);

}  // namespace vorqsolver
