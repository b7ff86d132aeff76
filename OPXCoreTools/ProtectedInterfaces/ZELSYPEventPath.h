// ZELSYPEventPath: the whole route of one raised event: its stops, in the order in which they are visited.
// std::unique_ptr<ZELSYPEventPath> pPath(builder.BuildPath(&args)); if (pPath) pPath->Dispatch(&args);
//
// It owns its stops. The route and every handler list are fixed before any handler runs. UI thread only.
#ifndef ZELSYPEventPath_H
#define ZELSYPEventPath_H

#include "OPXCoreToolsExport.h"
#include "ZELSYPArray.h"
#include "ZELSYPCheck.h"
#include "ZELSYPEventPathElt.h"
#include "ZELSYPRecycledBlocks.h"

#include <cstddef>

class ZELSYPEventArgs;

class OPXCORETOOLS_EXPORT ZELSYPEventPath
{
public:
  ZELSYPEventPath() { _elements.UseRoom(_room); }
  ZELSYPEventPath(const ZELSYPEventPath&) = delete;
  ZELSYPEventPath& operator=(const ZELSYPEventPath&) = delete;
  // Deletes the stops. A null one: "pElt".
  virtual ~ZELSYPEventPath();

  // Puts a stop at the end; from now on the path owns it, and without memory for it deletes it at once. Null: "i_pElem", and
  // nothing changes.
  void AddElement(ZELSYPEventPathElt* i_pElem)
  {
    if (ZELSYP_CHECK_POINTER(i_pElem) && !_elements.Append(i_pElem))
      delete i_pElem;
  }
  // Runs the stops in their order, all of them, consumed or not. No arguments: "i_pArgs". A null stop ends the walk: "pElt".
  void Dispatch(ZELSYPEventArgs* i_pArgs);

  // The stops, which stay the path's own. Of an index that has none: what an array says, and null.
  int GetElementCount() const noexcept { return _elements.GetLength(); }
  const ZELSYPEventPathElt* GetElement(int i_index) const { return _elements[i_index]; }

  static void* operator new(std::size_t i_bytes) { return ZELSYPEventPathElt::operator new(i_bytes); }
  static void operator delete(void* i_pMemory) noexcept { ZELSYPRecycledBlocks::GiveBack(i_pMemory); }

private:
  ZELSYPRecycledBlocks::Room<ZELSYPEventPathElt*, 8> _room;

protected:
  ZELSYPArray<ZELSYPEventPathElt*, ZELSYPRecycledBlocks> _elements;

private:
  friend class ZELSYPEventPathBuilder;
  void ReserveElements(int i_count)
  {
    if (i_count > _elements.GetCapacity())
      _elements.SetCapacity(i_count);
  }
};

#endif
