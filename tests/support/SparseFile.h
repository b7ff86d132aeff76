// Sparse files: a size without the room.
// MakeSparse(path, 5000000000);
#ifndef SparseFile_H
#define SparseFile_H

#include <cstdint>
#include <filesystem>

// Gives an existing file a size in bytes. Throws std::runtime_error when it cannot.
void MakeSparse(const std::filesystem::path& i_file, std::uint64_t i_size);

#endif
