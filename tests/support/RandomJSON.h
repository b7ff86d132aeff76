// Draws JSON values of every kind that a program can hold, the odd ones included.
// RandomJSON random(7); json value = random.Value(3); std::string text = random.Text();
//
// The same seed draws the same values on every platform. Not for two threads at a time.
#ifndef RandomJSON_H
#define RandomJSON_H

#include <nlohmann/json.hpp>

#include <cstdint>
#include <random>
#include <string>

class RandomJSON
{
public:
  explicit RandomJSON(std::uint32_t i_seed) : _engine(i_seed) {}

  // From 0 to i_count - 1.
  std::uint32_t Below(std::uint32_t i_count) { return static_cast<std::uint32_t>(_engine()) % i_count; }
  // Valid UTF-8: plain, quotes, control characters, characters of two to four bytes, short and long.
  std::string Text();
  // One that dump() refuses: broken, cut off, too long a form, a surrogate, beyond Unicode.
  std::string BrokenText();
  // Any value of at most i_depth levels of arrays and objects.
  nlohmann::json Value(int i_depth);
  nlohmann::json::object_t Object(int i_depth);

private:
  std::uint64_t Bits() { return (static_cast<std::uint64_t>(_engine()) << 32) | _engine(); }
  double Number();
  nlohmann::json Simple();

  std::mt19937 _engine;
};

#endif
