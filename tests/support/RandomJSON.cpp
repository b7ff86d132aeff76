#include "RandomJSON.h"

#include <cstring>
#include <limits>

using nlohmann::json;

std::string RandomJSON::Text()
{
  static const std::string s_pieces[] = {"a",
                                         "name",
                                         "a plain text of more than a word",
                                         "\"",
                                         "\\",
                                         "/",
                                         "\n",
                                         "\t",
                                         "\b",
                                         "\f",
                                         "\r",
                                         std::string(1, '\0'),
                                         "\x1f",
                                         "\x01",
                                         "\x7f",
                                         "\xC2\x80",
                                         "\xDF\xBF",
                                         "\xE0\xA0\x80",
                                         "\xE2\x82\xAC",
                                         "\xED\x9F\xBF",
                                         "\xEE\x80\x80",
                                         "\xEF\xBF\xBF",
                                         "\xE2\x80\xA8",
                                         "\xF0\x90\x80\x80",
                                         "\xF0\x9F\x98\x80",
                                         "\xF4\x8F\xBF\xBF"};
  std::string text;
  for (std::uint32_t count = Below(20) == 0 ? 2000 : Below(6); count > 0; --count)
    text += s_pieces[Below(static_cast<std::uint32_t>(std::size(s_pieces)))];
  return text;
}

std::string RandomJSON::BrokenText()
{
  static const std::string s_pieces[] = {
      "\x80",         "\xBF",         "\xC0\x80",     "\xC1\xBF",         "\xC2",         "\xC3(",
      "\xE0\x9F\xBF", "\xE2\x82",     "\xE2(\xA1",    "\xE2\x82(",        "\xED\xA0\x80", "\xEF",
      "\xF0\x8F\x80", "\xF0\x9F\x98", "\xF4\x90\x80", "\xF5\x80\x80\x80", "\xFF",         "\xF0\x9F(\x80"};
  return Text() + s_pieces[Below(static_cast<std::uint32_t>(std::size(s_pieces)))] + (Below(2) == 0 ? "" : Text());
}

double RandomJSON::Number()
{
  const double few[] = {0.0,         -0.0, 0.1, 1e300, 5e-324, 1.0, 1e15, 123456789.125, -2.5e-7, std::numeric_limits<double>::infinity(),
                        std::nan("")};
  if (Below(3) == 0)
    return few[Below(static_cast<std::uint32_t>(std::size(few)))];
  if (Below(2) == 0)
    return static_cast<double>(Below(2'000'000)) / 1000 - 1000;
  const std::uint64_t bits = Bits();
  double number = 0;
  std::memcpy(&number, &bits, sizeof(number));
  return number;
}

json RandomJSON::Simple()
{
  switch (Below(9))
  {
  case 0:
    return nullptr;
  case 1:
    return Below(2) == 0;
  case 2:
    return static_cast<std::int64_t>(Bits()) >> Below(64);
  case 3:
    return Bits() >> Below(64);
  case 4:
    return Number();
  case 5:
    return json::binary({0, 7, 255});
  case 6:
    return json::binary({}, Below(200));
  case 7:
    return json(json::value_t::discarded);
  default:
    return Text();
  }
}

json RandomJSON::Value(int i_depth)
{
  const std::uint32_t kind = i_depth == 0 ? 2 : Below(6);
  if (kind == 0)
    return Object(i_depth - 1);
  if (kind != 1)
    return Simple();
  json::array_t list;
  for (std::uint32_t count = Below(5); count > 0; --count)
    list.push_back(Value(i_depth - 1));
  return list;
}

json::object_t RandomJSON::Object(int i_depth)
{
  json::object_t object;
  for (std::uint32_t count = Below(8); count > 0; --count)
    object.insert_or_assign(Text(), Value(i_depth));
  return object;
}
