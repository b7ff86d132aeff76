// ZELSYPDispatchObserver: while one lives, it is told of every handler that a dispatch comes to.
// class Log : public ZELSYPDispatchObserver { void HandlerRuns(const Step& i_step) override { ... } ... };
//
// Several may live at once; the one made last is told first. What is told to one may destroy it or any other, which is
// then told nothing more, and make another, which is told from the next step on; what it throws goes through the dispatch.
// None lives: one predicted branch a handler is all it costs. UI thread only.
#ifndef ZELSYPDispatchObserver_H
#define ZELSYPDispatchObserver_H

#include "OPXCoreToolsExport.h"

class ZELSYPEventArgs;
class ZELSYPEventHandlerInfo;
class ZELSYPEventPathElt;

class OPXCORETOOLS_EXPORT ZELSYPDispatchObserver
{
public:
  // All borrowed, and valid during the call.
  struct Step
  {
    const ZELSYPEventPathElt& _stop;
    // Which of the stop's lists, and which of its registrations, from 0.
    int _list;
    int _index;
    ZELSYPEventHandlerInfo& _info;
    ZELSYPEventArgs& _args;
    // Before the handler ran.
    bool _wasConsumed;
  };

  ZELSYPDispatchObserver(const ZELSYPDispatchObserver&) = delete;
  ZELSYPDispatchObserver& operator=(const ZELSYPDispatchObserver&) = delete;

protected:
  ZELSYPDispatchObserver();
  virtual ~ZELSYPDispatchObserver();

private:
  friend class ZELSYPEventPathElt;

  // The handler is about to run; it has run (not told when it throws); it is passed over, since the arguments are consumed.
  virtual void HandlerRuns(const Step&) {}
  virtual void HandlerRan(const Step&) {}
  virtual void HandlerSkipped(const Step&) {}

  static bool AnyLives() noexcept { return s_pLast != nullptr; }
  static void Tell(void (ZELSYPDispatchObserver::*i_what)(const Step&), const Step& i_step);

  OPXCORETOOLS_NO_EXPORT static ZELSYPDispatchObserver* s_pLast;
  ZELSYPDispatchObserver* _pPrevious;
};

#endif
