#include "ZELProcess.h"

#include <cstdlib>
#include <cstring>

const char* ZELGetEnv(const char* i_name)
{
  return i_name ? std::getenv(i_name) : nullptr;
}

int ZELDevelopmentStage(int)
{
  const char* stage = ZELGetEnv("ZELDevelopmentStage");
  return stage && std::strcmp(stage, "1") == 0 ? 1 : 0;
}

void ZELExit(int i_code)
{
  std::exit(i_code);
}
