#include "ZELSYPDispatchObserver.h"

#include <utility>

namespace
{
// One round of telling. Rounds lie within one another when an observer raises something itself.
class Round
{
public:
  explicit Round(ZELSYPDispatchObserver* i_pFirst) : _pNext(i_pFirst), _pOuter(std::exchange(s_pInnermost, this)) {}
  ~Round() { s_pInnermost = _pOuter; }
  Round(const Round&) = delete;
  Round& operator=(const Round&) = delete;

  // Every round that would come to one observer next comes to the other.
  static void Replace(const ZELSYPDispatchObserver* i_pGone, ZELSYPDispatchObserver* i_pBy)
  {
    for (Round* pRound = s_pInnermost; pRound; pRound = pRound->_pOuter)
      if (pRound->_pNext == i_pGone)
        pRound->_pNext = i_pBy;
  }

  ZELSYPDispatchObserver* _pNext;

private:
  static Round* s_pInnermost;

  Round* const _pOuter;
};

Round* Round::s_pInnermost = nullptr;
} // namespace

ZELSYPDispatchObserver* ZELSYPDispatchObserver::s_pLast = nullptr;

ZELSYPDispatchObserver::ZELSYPDispatchObserver() : _pPrevious(s_pLast)
{
  s_pLast = this;
}

ZELSYPDispatchObserver::~ZELSYPDispatchObserver()
{
  ZELSYPDispatchObserver** ppObserver = &s_pLast;
  while (*ppObserver != this)
    ppObserver = &(*ppObserver)->_pPrevious;
  *ppObserver = _pPrevious;
  Round::Replace(this, _pPrevious);
}

void ZELSYPDispatchObserver::Tell(void (ZELSYPDispatchObserver::*i_what)(const Step&), const Step& i_step)
{
  Round round(s_pLast);
  while (ZELSYPDispatchObserver* const pObserver = round._pNext)
  {
    round._pNext = pObserver->_pPrevious;
    (pObserver->*i_what)(i_step);
  }
}
