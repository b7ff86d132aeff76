#include "ZELSYPClassEventHandlersSupport.h"

#include "ZELMetaClass.h"
#include "ZELSYPArray.h"
#include "ZELSYPCheck.h"
#include "ZELSYPEventHandlersSupport.h"

#include <memory>

ZELSYPClassEventHandlersSupport::ZELSYPClassEventHandlersSupport() = default;

ZELSYPClassEventHandlersSupport::~ZELSYPClassEventHandlersSupport()
{
  _isGoing = true;
  Clear();
}

int ZELSYPClassEventHandlersSupport::AddClassHandler(ZELMetaClass* i_pClass, ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler,
                                                     int i_handleConsumedEvents)
{
  if (!ZELSYP_CHECK_POINTER(i_pClass) || !ZELSYP_CHECK_POINTER(i_pEvent) || !ZELSYP_CHECK_POINTER(i_pHandler))
    return 0;
  ZELSYPEventHandlersSupport* const pSupport = FindOrAddSupport(i_pClass);
  return ZELSYP_CHECK_POINTER(pSupport) ? pSupport->AddHandler(i_pEvent, i_pHandler, i_handleConsumedEvents) : 0;
}

int ZELSYPClassEventHandlersSupport::RemoveClassHandler(ZELMetaClass* i_pClass, ZELSYPEvent* i_pEvent, ZELSYPEventHandler* i_pHandler)
{
  if (!ZELSYP_CHECK_POINTER(i_pClass) || !ZELSYP_CHECK_POINTER(i_pEvent) || !ZELSYP_CHECK_POINTER(i_pHandler))
    return 0;
  ZELSYPEventHandlersSupport* const pSupport = GetClassHandlersSupport(i_pClass);
  return pSupport ? pSupport->RemoveHandler(i_pEvent, i_pHandler) : 0;
}

ZELSYPEventHandlersSupport* ZELSYPClassEventHandlersSupport::GetClassHandlersSupport(ZELMetaClass* i_pClass)
{
  if (!ZELSYP_CHECK_POINTER(i_pClass))
    return nullptr;
  ZELSYPEventHandlersSupport* const* const pEntry = _supports.Locate(i_pClass);
  if (!pEntry)
    return nullptr;
  ZELSYPEventHandlersSupport* const pSupport = *pEntry;
  return ZELSYP_CHECK_POINTER(pSupport) ? pSupport : nullptr;
}

// Null for an entry without a store, when there is no memory for a new one, or when all of them go.
ZELSYPEventHandlersSupport* ZELSYPClassEventHandlersSupport::FindOrAddSupport(ZELMetaClass* i_pClass)
{
  if (ZELSYPEventHandlersSupport* const* const pEntry = _supports.Locate(i_pClass))
    return *pEntry;
  if (_isGoing)
    return nullptr;
  std::unique_ptr<ZELSYPEventHandlersSupport> pSupport(new ZELSYPEventHandlersSupport(i_pClass));
  if (_supports.Set(i_pClass, pSupport.get()) != 1)
    return nullptr;
  ForgetChains();
  return pSupport.release();
}

bool ZELSYPClassEventHandlersSupport::FindChain(ZELMetaClass* i_pClass)
{
  const Chain* pChain = _chains.Locate(i_pClass);
  if (!pChain)
    pChain = MakeChain(i_pClass);
  if (!pChain)
    return false;
  _pLastChain = pChain;
  _pLastClass = i_pClass;
  return true;
}

// Null, and nothing is remembered, when there is no memory for the whole of it.
const ZELSYPClassEventHandlersSupport::Chain* ZELSYPClassEventHandlersSupport::MakeChain(ZELMetaClass* i_pClass)
{
  _chains.Set(i_pClass, Chain());
  Chain* const pChain = _chains.Locate(i_pClass);
  for (ZELMetaClass* pClass = i_pClass; pChain && pClass; pClass = pClass->GetBaseClass())
  {
    ZELSYPEventHandlersSupport* const pSupport = GetClassHandlersSupport(pClass);
    if (pSupport && !pChain->Append(pSupport))
    {
      _chains.Remove(i_pClass);
      return nullptr;
    }
  }
  return pChain;
}

ZELSYPEventHandlersSupport* ZELSYPClassEventHandlersSupport::GetNextWithoutChain(ZELMetaClass* i_pClass,
                                                                                 const ZELSYPEventHandlersSupport* i_pBefore)
{
  bool isBehind = !i_pBefore;
  for (ZELMetaClass* pClass = i_pClass; pClass; pClass = pClass->GetBaseClass())
    if (ZELSYPEventHandlersSupport* const pSupport = GetClassHandlersSupport(pClass))
    {
      if (isBehind)
        return pSupport;
      isBehind = pSupport == i_pBefore;
    }
  return nullptr;
}

void ZELSYPClassEventHandlersSupport::ForgetChains()
{
  _chains.RemoveAll();
  _pLastClass = nullptr;
  _pLastChain = nullptr;
}

// The stores go last: a handler that dies with its store may call back, and finds nothing here any more.
void ZELSYPClassEventHandlersSupport::Clear()
{
  ZELSYPArray<ZELSYPEventHandlersSupport*> supports;
  for (SupportsByClass::Iterator it(_supports); !it.IsDone(); it.Next())
  {
    SupportsByClass::Pair* const pEntry = it.CurrentItem();
    // A walk whose map changed gets no further.
    if (!ZELSYP_CHECK_POINTER(pEntry))
      break;
    if (ZELSYP_CHECK_REPORT(pEntry->_value, Check_Pointer_Failed__, "pEntry->value", __LINE__, nullptr))
      supports.Append(pEntry->_value);
  }
  _supports.RemoveAll();
  ForgetChains();
  for (ZELSYPEventHandlersSupport* const pSupport : supports)
    delete pSupport;
  ZELSYP_CHECK_TRUE(_supports.GetSize() == 0);
}
