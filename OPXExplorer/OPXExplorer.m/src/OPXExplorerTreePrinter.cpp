#include "OPXExplorerTreePrinter.h"

#include "OPXExplorerSpinner.h"
#include "OPXTreeSession.h"
#include "ZELSysStandardStreams.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string_view>

namespace
{
constexpr std::size_t levels = 2;
constexpr int rows = 10;
constexpr std::size_t nameColumns = 44;

std::string MakeIndent(std::size_t i_level)
{
  return std::string(2 * i_level, ' ');
}

// Every byte of a character but its first one is a continuation.
bool IsFirstByte(char i_character)
{
  return (static_cast<unsigned char>(i_character) & 0xC0) != 0x80;
}

std::size_t CountCharacters(const std::string& i_text)
{
  return static_cast<std::size_t>(std::count_if(i_text.begin(), i_text.end(), IsFirstByte));
}

std::string Pad(std::string i_text)
{
  i_text.append(nameColumns - std::min(nameColumns, CountCharacters(i_text)), ' ');
  return i_text;
}

// How many bytes the first character takes.
std::size_t GetCharacterSize(std::string_view i_text)
{
  std::size_t size = 1;
  while (size < i_text.size() && !IsFirstByte(i_text[size]))
    ++size;
  return size;
}

// The controls of ASCII and of Latin-1, and those that change the direction in which a line is written (ALM, LRM and RLM,
// embeddings and overrides, isolates).
bool IsControl(std::string_view i_character)
{
  const auto isBetween = [i_character](std::string_view i_first, std::string_view i_last)
  { return i_character.size() == i_first.size() && i_character >= i_first && i_character <= i_last; };
  return isBetween(std::string_view("\0", 1), "\x1F") || i_character == "\x7F" || isBetween("\xC2\x80", "\xC2\x9F") ||
         i_character == "\xD8\x9C" || isBetween("\xE2\x80\x8E", "\xE2\x80\x8F") || isBetween("\xE2\x80\xAA", "\xE2\x80\xAE") ||
         isBetween("\xE2\x81\xA6", "\xE2\x81\xA9");
}

// A name may hold anything, a terminal's commands included. i_name: UTF-8.
std::string MakePrintable(std::string_view i_name)
{
  std::string printable;
  while (!i_name.empty())
  {
    const std::string_view character = i_name.substr(0, GetCharacterSize(i_name));
    printable += IsControl(character) ? "?" : character;
    i_name.remove_prefix(character.size());
  }
  return printable;
}

std::string MakeSize(std::uint64_t i_bytes)
{
  constexpr const char* units[] = {"B", "kB", "MB", "GB", "TB", "PB", "EB"};
  auto size = static_cast<double>(i_bytes);
  std::size_t unit = 0;
  while (size >= 999.5)
  {
    size /= 1000;
    ++unit;
  }
  char text[32];
  std::snprintf(text, sizeof text, unit > 0 && size < 9.95 ? "%7.1f %-2s" : "%7.0f %-2s", size, units[unit]);
  return text;
}

// "2026-11-20T10:11:12Z" as "2026-11-20 10:11".
std::string MakeDate(const std::string& i_modified)
{
  return i_modified.empty() ? i_modified
                            : i_modified.substr(0, i_modified.find('T')) + " " + i_modified.substr(i_modified.find('T') + 1, 5);
}

std::string MakeLine(const nlohmann::json& i_row, std::size_t i_level)
{
  const std::string kind = i_row["kind"];
  const std::string mark = kind == "directory" ? "/" : kind == "link" ? "@" : "";
  const std::string name = Pad(MakeIndent(i_level) + MakePrintable(i_row["name"].get_ref<const std::string&>()) + mark);
  const std::string size = kind == "file" ? MakeSize(i_row.value("size", std::uint64_t{0})) : std::string(10, ' ');
  return name + size + "  " + MakeDate(i_row.value("modified", ""));
}

} // namespace

OPXExplorerTreePrinter::OPXExplorerTreePrinter(const OPXTreeSession& i_session, OPXExplorerOutput& io_output)
    : _session(i_session), _output(io_output)
{
}

bool OPXExplorerTreePrinter::Print()
{
  return PrintLevel({});
}

void OPXExplorerTreePrinter::Write(std::string i_line)
{
  i_line.erase(i_line.find_last_not_of(' ') + 1);
  _output.Write(i_line + "\n");
}

bool OPXExplorerTreePrinter::PrintLevel(const Path& i_path)
{
  const nlohmann::json answer = RequestRows(i_path);
  if (answer.contains("error"))
  {
    ZELSysWriteStandardError("opx-explorer: " + answer["error"].dump() + "\n");
    return false;
  }
  if (answer["result"].contains("notFound"))
    return PrintNotReadable(i_path);
  const nlohmann::json& result = answer["result"]["groupedRequestResult"];
  bool isGood = true;
  for (const nlohmann::json& row : result["rows"][0])
    isGood = _output.IsOpen() ? PrintRow(row, i_path) && isGood : isGood;
  const int more = result["numberOfChildren"][0].get<int>() - static_cast<int>(result["rows"][0].size());
  if (more > 0)
    Write(MakeIndent(i_path.size()) + "... and " + std::to_string(more) + " more");
  return isGood;
}

// A directory in the tree has a line that says so; without the one that was asked for there is no tree.
bool OPXExplorerTreePrinter::PrintNotReadable(const Path& i_path)
{
  if (!i_path.empty())
    Write(MakeIndent(i_path.size()) + "(not readable)");
  return !i_path.empty();
}

bool OPXExplorerTreePrinter::PrintRow(const nlohmann::json& i_row, const Path& i_path)
{
  Write(MakeLine(i_row, i_path.size()));
  if (!_output.IsOpen() || !i_row["wux_group"].get<bool>() || i_path.size() + 1 == levels)
    return true;
  Path path = i_path;
  path.push_back(i_row["id"]);
  return PrintLevel(path);
}

nlohmann::json OPXExplorerTreePrinter::RequestRows(const Path& i_path) const
{
  const nlohmann::json params{{"startRow", 0}, {"endRow", rows}, {"groupKeys", i_path}};
  const nlohmann::json request{{"jsonrpc", "2.0"}, {"id", 1}, {"method", "tree/rows"}, {"params", params}};
  const OPXExplorerSpinner spinner("reading " + (i_path.empty() ? std::string("the directory") : MakePrintable(i_path.back())));
  return nlohmann::json::parse(_session.Answer(request.dump()));
}
