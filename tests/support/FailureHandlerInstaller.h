// FailureHandlerInstaller: what code that replaces the handler of failed checks may do, in the open.
// FailureHandlerInstaller::SetFailureHandler(pHandler);
#ifndef FailureHandlerInstaller_H
#define FailureHandlerInstaller_H

#include "ZELSYPCheckFailureHandlerSetter.h"

class FailureHandlerInstaller : public ZELSYPCheckFailureHandlerSetter
{
public:
  using ZELSYPCheckFailureHandlerSetter::ResetExpectFailuresAndCheck;
  using ZELSYPCheckFailureHandlerSetter::ResetExpectFailuresAndCheckMsg;
  using ZELSYPCheckFailureHandlerSetter::SetExpectFailures;
  using ZELSYPCheckFailureHandlerSetter::SetFailureHandler;
};

#endif
