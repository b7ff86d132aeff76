#include "ZELSYPEventMap.h"

#include "ZELSYPCheck.h"
#include "ZELSYPEvent.h"

namespace
{
void ReleaseEvent(ZELSYPEvent* i_pEvent)
{
  if (i_pEvent)
    i_pEvent->Release();
  else
    CheckFailure__("NULL event in the map?", __FILE_NAME__, __LINE__, nullptr);
}
} // namespace

ZELSYPEventMap::ZELSYPEventMap(const ZELSYPEventMap& i_other)
{
  PutEventsOf(i_other);
}

ZELSYPEventMap& ZELSYPEventMap::operator=(const ZELSYPEventMap& i_other)
{
  if (this != &i_other)
  {
    Clear();
    PutEventsOf(i_other);
  }
  return *this;
}

ZELSYPEventMap::~ZELSYPEventMap()
{
  Clear();
}

ZELSYPEvent* ZELSYPEventMap::Get(const char* i_name) const
{
  const char* const nameError = ZELSYPEvent::CheckEventName(i_name);
  if (!ZELSYP_CHECK_TRUE_DETAILS(nameError == NULL, nameError))
    return nullptr;
  ZELSYPEvent* const* const ppEvent = _events.Locate(i_name);
  if (!ppEvent)
    return nullptr;
  ZELSYPEvent* const pEvent = *ppEvent;
  ZELSYP_CHECK_POINTER(pEvent);
  return pEvent;
}

void ZELSYPEventMap::Put(ZELSYPEvent* i_pEvent)
{
  if (!ZELSYP_CHECK_POINTER(i_pEvent))
    return;
  const char* const name = i_pEvent->GetName();
  // Cannot fail: an event that was made without a name has an empty one.
  // Kept: an event that stood under the name is overwritten without being released.
  if (ZELSYP_CHECK_POINTER(name) && _events.Set(name, i_pEvent) >= 0)
    i_pEvent->AddRef();
}

void ZELSYPEventMap::AppendEventsTo(ZELSYPArray<ZELSYPEvent*>& io_events) const
{
  for (Events::Iterator it(_events); !it.IsDone(); it.Next())
    io_events.Append(*it.GetValue());
}

void ZELSYPEventMap::Clear()
{
  for (Events::Iterator it(_events); !it.IsDone(); it.Next())
  {
    const Events::Pair* const pEntry = it.CurrentItem();
    // A walk whose map changed gets no further.
    if (!ZELSYP_CHECK_POINTER(pEntry))
      break;
    ReleaseEvent(pEntry->_value);
  }
  _events.RemoveAll();
  // Cannot fail: nobody else's code runs once the events are released.
  ZELSYP_CHECK_TRUE(_events.GetSize() == 0);
}

void ZELSYPEventMap::PutEventsOf(const ZELSYPEventMap& i_other)
{
  for (Events::Iterator it(i_other._events); !it.IsDone(); it.Next())
  {
    const Events::Pair* const pEntry = it.CurrentItem();
    if (!ZELSYP_CHECK_POINTER(pEntry))
      break;
    ZELSYPEvent* const pEvent = pEntry->_value;
    if (ZELSYP_CHECK_POINTER(pEvent))
      Put(pEvent);
  }
}
