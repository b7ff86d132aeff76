#include "ZELSYPEventPath.h"

#include "ZELSYPCheck.h"

// From the last to the first: of a long route the last stops are those still at hand.
ZELSYPEventPath::~ZELSYPEventPath()
{
  for (ZELSYPEventPathElt* const* pEach = _elements.end(); pEach != _elements.begin(); --pEach)
  {
    const ZELSYPEventPathElt* const pElt = pEach[-1];
    if (ZELSYP_CHECK_POINTER(pElt))
      delete pElt;
  }
}

// The length is read again each time: a handler may add a stop.
void ZELSYPEventPath::Dispatch(ZELSYPEventArgs* i_pArgs)
{
  if (!ZELSYP_CHECK_POINTER(i_pArgs))
    return;
  for (int index = 0; index < _elements.GetLength(); ++index)
  {
    const ZELSYPEventPathElt* const pElt = _elements.begin()[index];
    if (!ZELSYP_CHECK_POINTER(pElt))
      return;
    pElt->Dispatch(i_pArgs);
  }
}
