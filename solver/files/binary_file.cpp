// Writing and reading the binary format: a head, the records in the order of FieldsOf, a checksum over both.
#include "solver/files/binary_file.hpp"

#include <zlib.h>

#include <cstdint>
#include <cstring>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "solver/files/binary_fields.hpp"
#include "solver/problem/consistency.hpp"
#include "solver/problem/deletion.hpp"
#include "solver/problem/failure.hpp"

namespace vorqsolver {
namespace {

// The first byte is no text, and the line ends show a transfer that changed them.
constexpr char kMagic[] = "\x89VORQ\r\n\x1A";
constexpr std::uint32_t kByteOrder = 0x01020304;
constexpr std::uint32_t kForeignByteOrder = 0x04030201;
constexpr std::uint32_t kVersion = 1;

struct Head {
  char magic[8];
  std::uint32_t byteOrder;
  std::uint32_t version;
  std::uint64_t size;  // of the whole file
};
static_assert(sizeof(Head) == 24);

using Checksum = std::uint32_t;

Checksum ChecksumOf(std::string_view bytes) {
  return static_cast<Checksum>(
      crc32_z(0, reinterpret_cast<unsigned char const*>(bytes.data()), static_cast<z_size_t>(bytes.size())));
}

// --------------------------------------------------------------------- writing
class ByteWriter {
 public:
  std::string bytes;

  template <typename T>
  requires std::is_arithmetic_v<T>
  void Put(T value) { bytes.append(reinterpret_cast<char const*>(&value), sizeof value); }

  void Put(std::string_view text) {
    PutCount(text.size());
    bytes += text;
  }
  void Put(std::string const& text) { Put(std::string_view(text)); }

  template <typename T>
  void Put(std::vector<T> const& list) {
    PutCount(list.size());
    if constexpr (std::is_arithmetic_v<T>) {
      PutAll<T>(list);
    } else {
      for (T const& item : list) Put(item);
    }
  }

  template <typename T>
  void Put(FlatList<T> const& list) {
    PutCount(list.size());
    PutAll<T>(list);
  }

  void Put(NameList const& names) {
    PutCount(static_cast<std::size_t>(names.End()));
    for (int k = 0; k < names.End(); ++k) Put(names.Get(k));
  }

  void Put(SparseMatrix const& matrix) {
    Put(matrix.ColCount());
    PutCount(static_cast<std::size_t>(matrix.RowCount()));
    for (int i = 0; i < matrix.RowCount(); ++i) {
      auto const row = matrix.Row(i);
      PutCount(row.indices.size());
      PutAll(row.indices);
      PutAll(row.values);
    }
  }

  template <typename Record>
  requires std::is_class_v<Record>
  void Put(Record const& record) {
    std::apply([this](auto const&... fields) { (this->Put(fields), ...); }, FieldsOf(record));
  }

 private:
  void PutCount(std::size_t count) { Put(static_cast<std::uint64_t>(count)); }

  template <typename T>
  void PutAll(std::span<T const> values) {
    if (!values.empty()) bytes.append(reinterpret_cast<char const*>(values.data()), values.size_bytes());
  }
};

// --------------------------------------------------------------------- reading
// Nothing is made larger than the bytes that are there.
class ByteReader {
 public:
  explicit ByteReader(std::string_view bytes) : rest_(bytes), size_(bytes.size()) {}

  bool AtEnd() const { return rest_.empty(); }
  std::size_t Position() const { return size_ - rest_.size(); }

  template <typename T>
  requires std::is_arithmetic_v<T>
  void Take(T& value) {
    auto const bytes = TakeBytes(sizeof value);
    std::memcpy(&value, bytes.data(), sizeof value);
  }

  void Take(std::string& text) { text = TakeText(); }

  template <typename T>
  void Take(std::vector<T>& list) {
    if constexpr (std::is_arithmetic_v<T>) {
      TakeAll(list, TakeCount(sizeof(T)));
    } else {
      for (auto count = TakeCount(1); count > 0; --count) Take(list.emplace_back());
    }
  }

  template <typename T>
  void Take(FlatList<T>& list) {
    TakeAll(list, TakeCount(sizeof(T)));
  }

  void Take(NameList& names) {
    auto const count = static_cast<int>(TakeCount(sizeof(std::uint64_t)));
    for (int k = 0; k < count; ++k) names.Set(k, TakeText());
  }

  void Take(SparseMatrix& matrix) {
    int cols = 0;
    Take(cols);
    if (cols < 0 || static_cast<std::size_t>(cols) > size_) Refuse("a matrix of ", cols, " columns cannot be there");
    std::vector<int> indices;
    std::vector<double> values;
    matrix.AppendEmptyCols(cols);
    for (auto count = TakeCount(sizeof(std::uint64_t)); count > 0; --count) {
      auto const length = TakeCount(sizeof(int) + sizeof(double));
      TakeAll(indices, length);
      TakeAll(values, length);
      for (int const col : indices) {
        if (col < 0 || col >= cols) Refuse("column ", col, " of a row does not exist (there are ", cols, ")");
      }
      matrix.AppendRow(indices, values);
    }
  }

  template <typename Record>
  requires std::is_class_v<Record>
  void Take(Record& record) {
    std::apply([this](auto&... fields) { (this->Take(fields), ...); }, FieldsOf(record));
  }

 private:
  std::string_view TakeBytes(std::size_t count) {
    if (count > rest_.size()) Refuse("the records end too early");
    auto const bytes = rest_.substr(0, count);
    rest_.remove_prefix(count);
    return bytes;
  }

  std::string_view TakeText() { return TakeBytes(TakeCount(1)); }

  // A number of items that take at least so many bytes each.
  std::size_t TakeCount(std::size_t bytesEach) {
    std::uint64_t count = 0;
    Take(count);
    if (count > rest_.size() / bytesEach || count > std::numeric_limits<int>::max()) {
      Refuse("a list of ", count, " entries cannot be there");
    }
    return static_cast<std::size_t>(count);
  }

  template <typename List>
  void TakeAll(List& list, std::size_t count) {
    auto const bytes = TakeBytes(count * sizeof(list[0]));
    list.resize(count);
    if (count > 0) std::memcpy(list.data(), bytes.data(), bytes.size());
  }

  std::string_view rest_;
  std::size_t size_;
};

// The records of a file that is whole.
std::string_view CheckedRecords(std::string_view bytes) {
  Head head;
  constexpr std::size_t kMagicSize = sizeof head.magic;
  if (bytes.substr(0, kMagicSize) != std::string_view(kMagic, kMagicSize)) Refuse("this is no binary file of vorq");
  if (bytes.size() < sizeof head) Refuse("the file is cut off behind ", bytes.size(), " bytes");
  std::memcpy(&head, bytes.data(), sizeof head);
  if (head.byteOrder == kForeignByteOrder) Refuse("the file comes from a machine of the other byte order");
  if (head.byteOrder != kByteOrder) Refuse("the mark of the byte order is damaged");
  if (head.version != kVersion) Refuse("version ", head.version, " of the format is not known, only ", kVersion);
  if (bytes.size() < head.size) Refuse("the file is cut off: ", bytes.size(), " of ", head.size, " bytes are there");
  if (bytes.size() > head.size) Refuse("there are ", bytes.size() - head.size, " bytes behind the end");
  if (bytes.size() < sizeof head + sizeof(Checksum)) Refuse("the size in the head is damaged");
  auto const checked = bytes.substr(0, bytes.size() - sizeof(Checksum));
  Checksum stated = 0;
  std::memcpy(&stated, bytes.data() + checked.size(), sizeof stated);
  if (stated != ChecksumOf(checked)) Refuse("the checksum does not hold: the file is damaged");
  return checked.substr(sizeof head);
}

}  // namespace

WrittenFile WriteBinary(ProblemData const& data) {
  CheckNoLostColumns(data);
  Head head{{}, kByteOrder, kVersion, 0};
  std::memcpy(head.magic, kMagic, sizeof head.magic);
  ByteWriter writer;
  writer.bytes.resize(sizeof head);
  writer.Put(data);
  head.size = writer.bytes.size() + sizeof(Checksum);
  std::memcpy(writer.bytes.data(), &head, sizeof head);
  writer.Put(ChecksumOf(writer.bytes));
  return {std::move(writer.bytes), {}};
}

ReadModel ReadBinary(TextSource const& source) {
  try {
    ReadModel model;
    ByteReader reader(CheckedRecords(source.text));
    reader.Take(model.data);
    if (!reader.AtEnd()) Refuse("there is more behind the records, from byte ", reader.Position(), " of them on");
    CheckConsistent(model.data);
    return model;
  } catch (Failure const& failure) {
    throw Failure(VORQ_FILE, Text(source.name, ": ", failure.what()));
  }
}

}  // namespace vorqsolver
