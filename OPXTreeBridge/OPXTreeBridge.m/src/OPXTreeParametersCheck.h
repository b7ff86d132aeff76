// OPXTreeParametersCheck: whether the "params" of a call make a sound record, known before the record is built.
// OPXTreeParametersCheck::CheckRows(params); TreeNodesRequestParameters request(params);
//
// The records report a broken message as a broken precondition of the program. What a client sends is no fault of the
// program, so it is tested here and answered as an error. Each check throws an OPXTreeError for wrong parameters, and
// brings numbers that are out of range to the nearest end of it.
#ifndef OPXTreeParametersCheck_H
#define OPXTreeParametersCheck_H

#include <nlohmann/json.hpp>

class OPXTreeParametersCheck
{
public:
  static void CheckRows(nlohmann::json& io_params);
  static void CheckStructure(nlohmann::json& io_params);
  static void CheckCollapseExpand(nlohmann::json& io_params);
  static void CheckSelectionChange(nlohmann::json& io_params);
  static void CheckPointerEvent(nlohmann::json& io_params);
  static void CheckSucceeded(nlohmann::json& io_params);
};

#endif
