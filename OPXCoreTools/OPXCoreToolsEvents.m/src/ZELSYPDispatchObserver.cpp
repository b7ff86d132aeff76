#include "ZELSYPDispatchObserver.h"

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
}

void ZELSYPDispatchObserver::Tell(void (ZELSYPDispatchObserver::*i_what)(const Step&), const Step& i_step)
{
  for (ZELSYPDispatchObserver *pObserver = s_pLast, *pNext; pObserver; pObserver = pNext)
  {
    pNext = pObserver->_pPrevious;
    (pObserver->*i_what)(i_step);
  }
}
