// ZELSYPCommandSimpleEventListener: a ZELSYPSimpleEventListener that is a command of the host's command tree.
// class Save : public ZELSYPCommandSimpleEventListener { ... }; pSave->AddHandler(Save::Done(), pHandler, 0);
//
// Its operations are those of ZELSYPEventListening; class handlers and events are this class's own. UI thread only.
#ifndef ZELSYPCommandSimpleEventListener_H
#define ZELSYPCommandSimpleEventListener_H

#include "OPXCoreToolsExport.h"
#include "ZELCommand.h"
#include "ZELSYPEventListening.h"

extern template class ZELSYPEventListening<ZELCommand>;

class OPXCORETOOLS_EXPORT ZELSYPCommandSimpleEventListener : public ZELSYPEventListening<ZELCommand>
{
  ZELDeclareClass;

protected:
  // A command without father and name, or with those.
  ZELSYPCommandSimpleEventListener();
  ZELSYPCommandSimpleEventListener(ZELCommand* i_pFather, const ZELString& i_name);
  ~ZELSYPCommandSimpleEventListener() override;
};

#endif
