// ZELSYPEventHandlerInfoListData: the registrations that several ZELSYPEventHandlerInfoList share until one is written.
// ZELSYPEventHandlerInfoList copy(list); // copy and list hold the same ZELSYPEventHandlerInfoListData
//
// It holds one reference on each registration, in the order of registration. One thread, that of the user interface.
#ifndef ZELSYPEventHandlerInfoListData_H
#define ZELSYPEventHandlerInfoListData_H

#include "OPXCoreToolsExport.h"
#include "ZELSYPArray.h"
#include "ZELSYPImplicitSharedData.h"
#include "ZELSYPRecycledBlocks.h"

class ZELSYPEventHandlerInfo;

class OPXCORETOOLS_EXPORT ZELSYPEventHandlerInfoListData : public ZELSYPImplicitSharedData
{
public:
  ZELSYPEventHandlerInfoListData() { _handlers.UseRoom(_room); }
  ZELSYPEventHandlerInfoListData(const ZELSYPEventHandlerInfoListData&) = delete;
  ZELSYPEventHandlerInfoListData& operator=(const ZELSYPEventHandlerInfoListData&) = delete;
  // Releases every registration. A null one: "NULL handler info?".
  ~ZELSYPEventHandlerInfoListData() override;
  // The same registrations in the same order, with a reference more on each. A null one: "NULL handler info?", and it is
  // left out. Without memory: null.
  ZELSYPEventHandlerInfoListData* Clone() override;

protected:
  friend class ZELSYPEventHandlerInfoList;
  // Puts the registration at the end, with a reference more on it; without memory nothing changes, and false.
  bool Append(ZELSYPEventHandlerInfo* i_pInfo);

  ZELSYPArray<ZELSYPEventHandlerInfo*, ZELSYPRecycledBlocks::Lasting> _handlers;

private:
  // For a list of one, which most are.
  ZELSYPRecycledBlocks::Room<ZELSYPEventHandlerInfo*, 1> _room;
};

#endif
