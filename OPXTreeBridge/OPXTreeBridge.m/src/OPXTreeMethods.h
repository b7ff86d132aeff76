// OPXTreeMethods: the methods of a tree session, each from its "params" to the text of its "result".
// std::string result = OPXTreeMethods::Call(source, "tree/rows", params);
#ifndef OPXTreeMethods_H
#define OPXTreeMethods_H

#include <nlohmann/json.hpp>
#include <string>

class OPXTreeDataSource;

class OPXTreeMethods
{
public:
  // Throws an OPXTreeError when there is no such method or the parameters are wrong; lets through what the source throws.
  static std::string Call(OPXTreeDataSource& io_source, const std::string& i_method, nlohmann::json& io_params);
};

#endif
