// ZELSYPAbstractDataSource: the native object behind a tree view: it answers the view's requests and tells of changes.
// class Countries : public ZELSYPAbstractDataSource { void RequestPointerEvent(..., PointerEventCallback) override; };
//
// A request is answered through its callback, once, at once or later. A change is told by dispatching one of the three
// events on the data source, with arguments of the event's class; these may carry a callback for the view's answer.
// It has no data of its own. UI thread only, but for making the events.
#ifndef ZELSYPAbstractDataSource_H
#define ZELSYPAbstractDataSource_H

#include "OPXCoreToolsExport.h"
#include "ZELSYPDataSourceParameters.h"
#include "ZELSYPEventSubscriberEventListener.h"

#include <functional>

class ZELSYPEvent;
class ZELSYPEventFactory;

class OPXCORETOOLS_EXPORT ZELSYPAbstractDataSource : public ZELSYPEventSubscriberEventListener
{
  ZELDeclareClass;

public:
  using ModelCollapseExpandCallback = std::function<void(const ZELSYPDataSourceParameters::ModelCollapseExpandAnswerParameters&)>;
  using PointerEventCallback = std::function<void(const ZELSYPDataSourceParameters::RequestAnswer&)>;
  using SelectionChangeCallback = std::function<void(const ZELSYPDataSourceParameters::SelectionChangeParameters&)>;

  ZELSYPAbstractDataSource();
  ~ZELSYPAbstractDataSource() override;

  // The events, which do not propagate; their arguments are a ZELSYPModelChangedEventArgs, a
  // ZELSYPSelectionChangedEventArgs, a ZELSYPViewUpdatedEventArgs. They live as long as the library. Null when they could
  // not be made, which was reported then. Any thread.
  static ZELSYPEvent* ModelChanged();
  static ZELSYPEvent* SelectionChanged();
  static ZELSYPEvent* ViewUpdated();

  // The view collapsed and expanded nodes. By default nothing is to be collapsed or expanded in return, answered at once.
  // This default and the next two throw std::bad_function_call for an empty callback.
  virtual void RequestModelCollapseExpand(const ZELSYPDataSourceParameters::ModelCollapseExpandParameters& i_change,
                                          ModelCollapseExpandCallback i_callback);
  // A click or another pointer event on a node. By default a plain answer, at once.
  virtual void RequestPointerEvent(const ZELSYPDataSourceParameters::PointerEventParameters& i_event, PointerEventCallback i_callback);
  // The user changed the selection. By default nothing is to be selected in return, answered at once.
  virtual void RequestSelectionChange(const ZELSYPDataSourceParameters::SelectionChangeParameters& i_change,
                                      SelectionChangeCallback i_callback);

protected:
  // An event of the class i_pOwnerClass that does not propagate, for data sources that tell of more. Null for what
  // ZELSYPEventFactory::NewEvent refuses, and when there is no factory: "pEventFactory".
  static ZELSYPEvent* DeclareEvent(ZELSYPEventFactory* pEventFactory, const char* i_name, ZELMetaClass* i_pArgumentType,
                                   ZELMetaClass* i_pOwnerClass);

private:
  struct Events;

  static const Events& GetEvents();
};

#endif
