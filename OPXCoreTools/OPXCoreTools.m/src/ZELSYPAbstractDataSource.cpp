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

struct ZELSYPAbstractDataSource::Events
{
  ZELSYPEvent* const pModelChanged =
      DeclareEvent(GetEventFactory(), "ModelChanged", ZELSYPModelChangedEventArgs::MetaObject(), MetaObject());
  ZELSYPEvent* const pSelectionChanged =
      DeclareEvent(GetEventFactory(), "SelectionChanged", ZELSYPSelectionChangedEventArgs::MetaObject(), MetaObject());
  ZELSYPEvent* const pViewUpdated = DeclareEvent(GetEventFactory(), "ViewUpdated", ZELSYPViewUpdatedEventArgs::MetaObject(), MetaObject());
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
