// ZELSYPDefaultCheckFailureHandler: prints a failure, lets the user continue or hide the check, and otherwise breaks into
// the debugger or ends the process. Only while the host's development stage is active.
// ZELSYPCheckFailureHandler* pHandler = new (std::nothrow) ZELSYPDefaultCheckFailureHandler;
//
// Made by the first failure that finds no handler installed.
#ifndef ZELSYPDefaultCheckFailureHandler_H
#define ZELSYPDefaultCheckFailureHandler_H

#include "ZELSYPCheckFailureHandler.h"
#include "ZELSYPCheckKey.h"
#include "ZELSysSimpleHashTable.h"

class ZELSYPDefaultCheckFailureHandler : public ZELSYPCheckFailureHandler
{
public:
  void HandleFailure(const char* i_message, const char* i_file, int i_line, const char* i_details) override;

protected:
  ~ZELSYPDefaultCheckFailureHandler() override;

private:
  bool IsHidden(const char* i_file, int i_line);
  void Hide(const char* i_file, int i_line);
  // Null: a key that found no memory, which the table refuses.
  int Insert(ZELSYPCheckKey* i_pKey);
  bool HasUserDecided(const char* i_message, const char* i_file, int i_line, const char* i_details);

  ZELMutex _hiddenChecksLock{0, 0, 1};
  ZELSysSimpleHashTable _hiddenChecks{0, &ZELSYPCheckKey::Hash, &ZELSYPCheckKey::Compare}; // owns the keys in it
};

#endif
