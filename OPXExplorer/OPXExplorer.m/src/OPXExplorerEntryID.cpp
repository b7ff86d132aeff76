#include "OPXExplorerEntryID.h"

#include "ZELUnicodeString.h"

#include <charconv>
#include <cstddef>
#include <nlohmann/json.hpp>

namespace
{
bool IsValid(std::string_view i_name)
{
  return ZELUnicodeString::FromUTF8(i_name).IsValidUTF8();
}

std::string Escape(std::string_view i_name)
{
  constexpr char digits[] = "0123456789ABCDEF";
  std::string id = "/";
  for (const char character : i_name)
  {
    const auto byte = static_cast<unsigned char>(character);
    if (byte < 0x80 && character != '%')
      id += character;
    else
      id.append({'%', digits[byte >> 4], digits[byte & 15]});
  }
  return id;
}

// Of a percent sign that is not followed by two digits nothing sensible comes; the caller compares.
std::string Unescape(std::string_view i_text)
{
  std::string name;
  for (std::size_t i = 0; i < i_text.size(); ++i)
  {
    unsigned char byte = static_cast<unsigned char>(i_text[i]);
    if (byte == '%' && i + 2 < i_text.size())
    {
      std::from_chars(&i_text[i + 1], &i_text[i + 2] + 1, byte, 16);
      i += 2;
    }
    name += static_cast<char>(byte);
  }
  return name;
}
} // namespace

std::string OPXExplorerEntryID::Make(std::string_view i_name)
{
  return IsValid(i_name) ? std::string(i_name) : Escape(i_name);
}

std::string OPXExplorerEntryID::GetName(std::string_view i_id)
{
  if (i_id.empty() || i_id[0] != '/')
    return std::string(i_id);
  const std::string name = Unescape(i_id.substr(1));
  // An entry has one id only: what could be written in another way stands for nothing.
  return Make(name) == i_id ? name : std::string();
}

std::string OPXExplorerEntryID::MakeDisplayName(std::string_view i_name)
{
  if (IsValid(i_name))
    return std::string(i_name);
  const std::string replaced = nlohmann::json(i_name).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
  return nlohmann::json::parse(replaced).get<std::string>();
}
