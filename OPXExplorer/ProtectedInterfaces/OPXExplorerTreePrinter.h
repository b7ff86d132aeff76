// OPXExplorerTreePrinter: the first levels of a tree as indented lines for a person, asked of a session like any view.
// return OPXExplorerTreePrinter(session, output).Print();
#ifndef OPXExplorerTreePrinter_H
#define OPXExplorerTreePrinter_H

#include "OPXExplorerOutput.h"

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

class OPXTreeSession;

class OPXExplorerTreePrinter
{
public:
  // The session and the output are borrowed for the life of the printer.
  OPXExplorerTreePrinter(const OPXTreeSession& i_session, OPXExplorerOutput& io_output);

  // Two levels, ten rows a directory, for as long as the output is open. False when the directory itself could not be
  // listed to its end, or a request failed, which is told on standard error.
  bool Print();

private:
  using Path = std::vector<std::string>;

  bool PrintLevel(const Path& i_path);
  bool PrintNotReadable(const Path& i_path);
  bool PrintRow(const nlohmann::json& i_row, const Path& i_path);
  nlohmann::json RequestRows(const Path& i_path) const;
  void Write(std::string i_line);

  const OPXTreeSession& _session;
  OPXExplorerOutput& _output;
};

#endif
