#include "SparseFile.h"

void MakeSparse(const std::filesystem::path& i_file, std::uint64_t i_size)
{
  std::filesystem::resize_file(i_file, i_size);
}
