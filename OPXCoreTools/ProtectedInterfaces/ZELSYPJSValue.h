// ZELSYPJSValue: what a call into the script side gave, as JSON.
// ZELSYPJSValue answer{{{"selected", 3}}}; int count = answer.value["selected"];
#ifndef ZELSYPJSValue_H
#define ZELSYPJSValue_H

#include <nlohmann/json.hpp>

struct ZELSYPJSValue
{
  // Null by default, and for a call that gave nothing.
  nlohmann::json value;
};

#endif
