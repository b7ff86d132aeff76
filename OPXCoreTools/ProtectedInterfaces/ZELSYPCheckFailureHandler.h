// ZELSYPCheckFailureHandler: what happens when a check fails; the library reports every failure to the installed one.
// class Counter : public ZELSYPCheckFailureHandler { void HandleFailure(...) override { ++_failures; } };
//
// It counts references: a new handler has one, its creator's. It also counts the reports that run through it (marks),
// so that a thread can wait until none does. A report holds a reference, hence no handler goes away under one.
// Every operation may be called from any thread. Install one through ZELSYPCheckFailureHandlerSetter.
#ifndef ZELSYPCheckFailureHandler_H
#define ZELSYPCheckFailureHandler_H

#include "OPXCoreToolsExport.h"
#include "ZELMutex.h"

#include <cstdint>

class ZELEvent;

class OPXCORETOOLS_EXPORT ZELSYPCheckFailureHandler
{
protected:
  // Prints "** INTERNAL ERROR in %s %d, Failed to create the event" on the standard error stream when the host has no
  // event to give; the handler then serves without one, and each operation that needs it prints
  // "** INTERNAL ERROR in %s %d, NULL event?".
  ZELSYPCheckFailureHandler();
  virtual ~ZELSYPCheckFailureHandler();

public:
  ZELSYPCheckFailureHandler(const ZELSYPCheckFailureHandler&) = delete;
  ZELSYPCheckFailureHandler& operator=(const ZELSYPCheckFailureHandler&) = delete;

  // Reports one failure. No lock of the library is held: it may itself fail checks, or install another handler. It must
  // not throw. i_details may be null.
  virtual void HandleFailure(const char* i_message, const char* i_file, int i_line, const char* i_details) = 0;
  // Failures are expected from now on. The base version does nothing.
  virtual void SetExpectFailures();
  // Ends the stretch of expected failures and checks it. The base version reports "This handler does not support
  // ExpectFailures flag" to its own HandleFailure.
  virtual void ResetExpectFailuresAndCheck(const char* i_file, int i_line);
  // The same for a stretch of which the number of failures and two texts are known. Both texts must be given, empty
  // where there is nothing to say. The base version reports as above, and then, unless the count is 0 and both texts
  // are empty, "This handler does not support advance functionalities of ExpectFailures".
  virtual void ResetExpectFailuresAndCheckMsg(const char* i_file, int i_line, int i_expectedCount, const char* i_expectedText1,
                                              const char* i_expectedText2);

  void AddRef();
  // Destroys the handler with the last reference.
  void Release();
  // AddRef, and one more report runs through this handler: it is busy.
  void AddRefAndMark();
  // One report less; the last one makes the handler free. Then Release.
  void ReleaseAndUnmark();
  // Waits, without a limit, until no report runs through this handler. The caller holds a reference.
  void WaitForFreeEvent();

private:
  bool DropReference();
  void Destroy();

  std::int32_t _refcount = 1;
  ZELMutex _refLock{0, 0, 1};
  ZELEvent* _pFreeEvent; // owned; signalled while no report runs
  std::int32_t _markCount = 0;
  ZELMutex _markLock{0, 0, 1}; // taken before _refLock where both are held
};

#endif
