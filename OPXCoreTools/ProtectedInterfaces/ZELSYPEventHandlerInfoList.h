// ZELSYPEventHandlerInfoList: registrations in their order; a copy is a snapshot that later changes do not reach.
// ZELSYPEventHandlerInfoList list; list.AddHandler(pHandler, 0); const ZELSYPEventHandlerInfoList snapshot(list);
//
// A copy costs one reference, whatever the length; the first write to a list that shares its registrations copies them.
// Reading never copies. One thread, that of the user interface.
#ifndef ZELSYPEventHandlerInfoList_H
#define ZELSYPEventHandlerInfoList_H

#include "OPXCoreToolsExport.h"
#include "ZELSYPEventHandlerInfoListData.h"

#include <utility>

class ZELMetaClass;
class ZELSYPEventHandler;
class ZELSYPEventHandlerInfo;

class OPXCORETOOLS_EXPORT ZELSYPEventHandlerInfoList
{
public:
  ZELSYPEventHandlerInfoList() noexcept = default;
  ZELSYPEventHandlerInfoList(const ZELSYPEventHandlerInfoList& i_other) noexcept;
  // What is moved from is empty.
  ZELSYPEventHandlerInfoList(ZELSYPEventHandlerInfoList&& io_other) noexcept : _pSharedData(std::exchange(io_other._pSharedData, nullptr))
  {
  }
  ZELSYPEventHandlerInfoList& operator=(const ZELSYPEventHandlerInfoList& i_other);
  ZELSYPEventHandlerInfoList& operator=(ZELSYPEventHandlerInfoList&& io_other) noexcept;
  virtual ~ZELSYPEventHandlerInfoList()
  {
    if (_pSharedData)
      _pSharedData->Detach();
  }

  int GetSize() const noexcept { return _pSharedData ? _pSharedData->_handlers.GetLength() : 0; }
  // The registration at i_index (0 to GetSize() - 1), without a reference. Else null: "_pSharedData" with "List is empty!"
  // for a list that was never written to, otherwise "i_index >= 0 && i_index < _pSharedData->_handlers.GetLength()" with
  // "i_index is out of range".
  ZELSYPEventHandlerInfo* Get(int i_index) const;

  // Puts the registration at the end, with a reference on it. Null: "i_pHandlerInfo", and nothing changes. Nor does anything
  // change when a write finds no memory: "_pSharedData".
  void Add(ZELSYPEventHandlerInfo* i_pHandlerInfo);
  // The same with a new registration that only this list holds. A handler may stand in a list any number of times. Null:
  // "i_pHandler", and nothing changes.
  void AddHandler(ZELSYPEventHandler* i_pHandler, int i_handleConsumedEvents);
  // Takes the registration out; later ones move down. A bad index reports as in Get, and nothing changes.
  void Remove(int i_index);
  // Takes out every registration whose handler answers MustBeRemoved, from the last to the first; they are released once
  // all were asked. A registration without handler ends the walk: "pHandler".
  void AutoRemove();

protected:
  // Null: never written to.
  ZELSYPEventHandlerInfoListData* _pSharedData = nullptr;

private:
  // Loops over a snapshot that nobody can write to while it is held; a registration may be null there.
  friend class ZELSYPEventHandlersSupport;
  friend class ZELSYPEventPathElt;
  ZELSYPEventHandlerInfo* const* begin() const noexcept { return _pSharedData ? _pSharedData->_handlers.begin() : nullptr; }
  ZELSYPEventHandlerInfo* const* end() const noexcept { return _pSharedData ? _pSharedData->_handlers.end() : nullptr; }

  // AddHandler with a registration for a class; null: for none.
  void AddHandler(ZELSYPEventHandler* i_pHandler, int i_handleConsumedEvents, const ZELMetaClass* i_pRegisteredClass);
  // A snapshot of what AutoRemove leaves. What is taken out lives as long as io_removed, since the end of a handler may run
  // code that destroys this list.
  ZELSYPEventHandlerInfoList Prune(ZELSYPEventHandlerInfoList& io_removed);
  // For a snapshot of i_list, most often all of which stays, asked from the last to the first: 0 when it does. Else which one
  // was asked last, from 1 on, which must be removed; or from -1 down, which stays and changed the list.
  int FindEndOfSnapshot(const ZELSYPEventHandlerInfoList& i_list) const;
  // AutoRemove from there down, where i_pAsked has been asked; what was taken out so far, and then all of it. Not inlined, and
  // by value: Prune keeps all it has in registers.
  [[gnu::noinline]] ZELSYPEventHandlerInfoList PruneFrom(int i_last, ZELSYPEventHandlerInfo* i_pAsked,
                                                         ZELSYPEventHandlerInfoList i_removed);
  // AutoRemove of the first i_count.
  void AutoRemove(int i_count, ZELSYPEventHandlerInfoList& io_removed);
  void RemoveInto(ZELSYPEventHandlerInfoList& io_removed, int i_index, ZELSYPEventHandlerInfo* i_pInfo);
  bool HasInfoAt(int i_index) const;
  bool UpdateDataForModification();
};

inline ZELSYPEventHandlerInfoList::ZELSYPEventHandlerInfoList(const ZELSYPEventHandlerInfoList& i_other) noexcept
    : _pSharedData(i_other._pSharedData)
{
  if (_pSharedData)
    _pSharedData->Attach();
}

// By copy and exchange: what the last holder lets go of may run code that looks at this list.
inline ZELSYPEventHandlerInfoList& ZELSYPEventHandlerInfoList::operator=(const ZELSYPEventHandlerInfoList& i_other)
{
  ZELSYPEventHandlerInfoList copy(i_other);
  std::swap(_pSharedData, copy._pSharedData);
  return *this;
}

inline ZELSYPEventHandlerInfoList& ZELSYPEventHandlerInfoList::operator=(ZELSYPEventHandlerInfoList&& io_other) noexcept
{
  ZELSYPEventHandlerInfoList taken(std::move(io_other));
  std::swap(_pSharedData, taken._pSharedData);
  return *this;
}

#endif
