// ZELTextHash: the hash of some bytes, as the strings compute it.
// int hash = ZELTextHash("file"); hash == ZELString("file").ComputeHashKey();
//
// Inline, because a look-up in a hash table waits for it. Any thread.
#ifndef ZELTextHash_H
#define ZELTextHash_H

#include <cstdint>
#include <cstring>
#include <string_view>

namespace ZELTextHashSteps
{
__extension__ typedef unsigned __int128 Product;
constexpr std::uint64_t FirstKey = 0x9E3779B97F4A7C15u;
constexpr std::uint64_t SecondKey = 0xD6E8FEB86659FD93u;

template <class Word>
std::uint64_t Load(const char* i_bytes) noexcept
{
  Word word;
  std::memcpy(&word, i_bytes, sizeof word);
  return word;
}

// Every bit of the product's middle depends on every bit of both; folding brings the middle to both ends.
inline std::uint64_t Mix(std::uint64_t i_left, std::uint64_t i_right) noexcept
{
  const Product product = static_cast<Product>(i_left) * i_right;
  return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
}

inline std::uint64_t MixSixteen(std::uint64_t i_hash, const char* i_first, const char* i_second) noexcept
{
  return Mix(Load<std::uint64_t>(i_first) ^ FirstKey, Load<std::uint64_t>(i_second) ^ i_hash);
}

// At most seven bytes as one word, which with the length tells them all apart.
inline std::uint64_t LoadFew(std::string_view i_bytes) noexcept
{
  const char* const first = i_bytes.data();
  const char* const end = first + i_bytes.size();
  if (i_bytes.size() >= 4)
    return Load<std::uint32_t>(first) << 32 | Load<std::uint32_t>(end - 4);
  if (i_bytes.empty())
    return 0;
  return Load<std::uint8_t>(first) << 16 | Load<std::uint8_t>(first + i_bytes.size() / 2) << 8 | Load<std::uint8_t>(end - 1);
}

// Sixteen bytes a step; the last step looks back over bytes already seen instead of handling a remainder.
inline std::uint64_t MixAll(std::string_view i_bytes) noexcept
{
  const char* const end = i_bytes.data() + i_bytes.size();
  if (i_bytes.size() < 8)
    return Mix(LoadFew(i_bytes) ^ FirstKey, SecondKey);
  if (i_bytes.size() <= 16)
    return MixSixteen(SecondKey, i_bytes.data(), end - 8);
  std::uint64_t hash = SecondKey;
  for (const char* here = i_bytes.data(); end - here > 16; here += 16)
    hash = MixSixteen(hash, here, here + 8);
  return MixSixteen(hash, end - 16, end - 8);
}
} // namespace ZELTextHashSteps

// Equal bytes have equal hashes in one process. Spread over all 32 bits.
inline int ZELTextHash(std::string_view i_bytes) noexcept
{
  const std::uint64_t hash =
      ZELTextHashSteps::Mix(ZELTextHashSteps::MixAll(i_bytes) ^ ZELTextHashSteps::FirstKey, i_bytes.size() ^ ZELTextHashSteps::SecondKey);
  return static_cast<int>(static_cast<std::uint32_t>(hash));
}

#endif
