#include "ZELSYPCommandSimpleEventListener.h"

#include "EventListening.h"

ZELImplementClass(ZELSYPCommandSimpleEventListener, ZELCommand, OPXCoreTools);

template class ZELSYPEventListening<ZELCommand>;

ZELSYPCommandSimpleEventListener::ZELSYPCommandSimpleEventListener() = default;

ZELSYPCommandSimpleEventListener::ZELSYPCommandSimpleEventListener(ZELCommand* i_pFather, const ZELString& i_name)
    : ZELSYPEventListening(i_pFather, i_name)
{
}

ZELSYPCommandSimpleEventListener::~ZELSYPCommandSimpleEventListener() = default;
