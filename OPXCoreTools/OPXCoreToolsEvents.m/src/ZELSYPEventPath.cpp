#include "ZELSYPEventPath.h"

#include "ZELSYPCheck.h"

ZELSYPEventPath::~ZELSYPEventPath()
{
  for (ZELSYPEventPathElt* const pElt : _elements)
    if (ZELSYP_CHECK_POINTER(pElt))
      delete pElt;
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
