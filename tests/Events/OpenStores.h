// OpenStores: stores, lists and paths whose fields are open to a test, to put into them what no operation would.
// OpenSupport support; support._eventHandlers.Set(nullptr, ZELSYPEventHandlerInfoList());
#ifndef OpenStores_H
#define OpenStores_H

#include "ZELSYPClassEventHandlersSupport.h"
#include "ZELSYPEventHandlersSupport.h"
#include "ZELSYPEventPath.h"

class OpenSupport : public ZELSYPEventHandlersSupport
{
public:
  using ZELSYPEventHandlersSupport::_eventHandlers;
};

class OpenClassSupport : public ZELSYPClassEventHandlersSupport
{
public:
  using ZELSYPClassEventHandlersSupport::_supports;
};

class OpenPath : public ZELSYPEventPath
{
public:
  using ZELSYPEventPath::_elements;
};

// A list that holds what it is given, null included.
class PlantedList : public ZELSYPEventHandlerInfoList
{
public:
  explicit PlantedList(ZELSYPEventHandlerInfo* i_pInfo)
  {
    auto* const pData = new Data;
    pData->_handlers.Append(i_pInfo);
    _pSharedData = pData;
  }

private:
  struct Data : ZELSYPEventHandlerInfoListData
  {
    using ZELSYPEventHandlerInfoListData::_handlers;
  };
};

#endif
