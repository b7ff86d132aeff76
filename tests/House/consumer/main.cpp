// A user of the installed library: one call into each of its two floors, and a JSON value.
#include "ZELProcess.h"
#include "ZELSYPCheck.h"

#include <nlohmann/json.hpp>

#include <iostream>

int main(int argc, char** argv)
{
  const char* nothing = argc > 1 ? argv[1] : nullptr;
  const nlohmann::json answer = {{"checkHolds", ZELSYP_CHECK_POINTER(nothing)}, {"developmentStage", ZELDevelopmentStage(0)}};
  std::cout << answer.dump() << '\n';
}
