#include "EventsCases.h"

void RegisterProject(const std::string&) {}
