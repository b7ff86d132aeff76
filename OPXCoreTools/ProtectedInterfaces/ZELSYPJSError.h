// ZELSYPJSError: what a call into the script side failed with, as the script's own error object says it.
// ZELSYPJSError error{"TypeError", "tree is undefined", "at select (tree.js:12)"};
#ifndef ZELSYPJSError_H
#define ZELSYPJSError_H

#include <string>

// All in UTF-8, all empty by default.
struct ZELSYPJSError
{
  std::string name;
  std::string message;
  // Line by line, as the script engine writes it.
  std::string stack;
};

#endif
