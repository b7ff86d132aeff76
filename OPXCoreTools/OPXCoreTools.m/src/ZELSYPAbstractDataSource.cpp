#include "ZELSYPAbstractDataSource.h"

#include "ZELSYPCheck.h"
#include "ZELSYPEventFactory.h"
#include "ZELSYPModelChangedEventArgs.h"
#include "ZELSYPSelectionChangedEventArgs.h"
#include "ZELSYPViewUpdatedEventArgs.h"

#include <string>
#include <vector>

namespace Records = ZELSYPDataSourceParameters;

ZELImplementClass(ZELSYPAbstractDataSource, ZELSYPEventSubscriberEventListener, OPXCoreTools);

// Each with a reference that is never given back: a static object that was made before the factory goes after it, and may
// still ask for its events then.
struct ZELSYPAbstractDataSource::Events
{
  ZELSYPEvent* const pModelChanged = Declare("ModelChanged", ZELSYPModelChangedEventArgs::MetaObject());
  ZELSYPEvent* const pSelectionChanged = Declare("SelectionChanged", ZELSYPSelectionChangedEventArgs::MetaObject());
  ZELSYPEvent* const pViewUpdated = Declare("ViewUpdated", ZELSYPViewUpdatedEventArgs::MetaObject());

  static ZELSYPEvent* Declare(const char* i_name, ZELMetaClass* i_pArgumentType)
  {
    ZELSYPEvent* const pEvent = DeclareEvent(GetEventFactory(), i_name, i_pArgumentType, MetaObject());
    if (pEvent)
      pEvent->AddRef();
    return pEvent;
  }
};

ZELSYPAbstractDataSource::ZELSYPAbstractDataSource() = default;

ZELSYPAbstractDataSource::~ZELSYPAbstractDataSource() = default;

// One guard for all three: threads that ask for different events at once would otherwise meet in the factory, which takes no lock.
const ZELSYPAbstractDataSource::Events& ZELSYPAbstractDataSource::GetEvents()
{
  static const Events s_events;
  return s_events;
}

ZELSYPEvent* ZELSYPAbstractDataSource::ModelChanged()
{
  return GetEvents().pModelChanged;
}

ZELSYPEvent* ZELSYPAbstractDataSource::SelectionChanged()
{
  return GetEvents().pSelectionChanged;
}

ZELSYPEvent* ZELSYPAbstractDataSource::ViewUpdated()
{
  return GetEvents().pViewUpdated;
}

ZELSYPEvent* ZELSYPAbstractDataSource::DeclareEvent(ZELSYPEventFactory* pEventFactory, const char* i_name, ZELMetaClass* i_pArgumentType,
                                                    ZELMetaClass* i_pOwnerClass)
{
  if (!ZELSYP_CHECK_POINTER(pEventFactory))
    return nullptr;
  return pEventFactory->NewEvent(i_name, ZELSYPEvent::NoPropagation, i_pArgumentType, i_pOwnerClass);
}

void ZELSYPAbstractDataSource::RequestModelCollapseExpand(const Records::ModelCollapseExpandParameters&,
                                                          ModelCollapseExpandCallback i_callback)
{
  std::vector<Records::IdsPath> none;
  i_callback(Records::ModelCollapseExpandAnswerParameters(none, none));
}

void ZELSYPAbstractDataSource::RequestPointerEvent(const Records::PointerEventParameters&, PointerEventCallback i_callback)
{
  i_callback(Records::RequestAnswer());
}

void ZELSYPAbstractDataSource::RequestSelectionChange(const Records::SelectionChangeParameters&, SelectionChangeCallback i_callback)
{
  const std::vector<Records::IndexPath> none;
  i_callback(Records::SelectionChangeParameters(none, none));
}
