// OPXTreeDataSource: a data source with its rows that answers every request at once, by what its operations return.
// class Countries : public OPXTreeDataSource { TreeNodesAnswerParameters RequestRows(...) override; ... };
//
// What is said of OPXTreeRowsSource's operations holds for the ones added here.
#ifndef OPXTreeDataSource_H
#define OPXTreeDataSource_H

#include "OPXTreeBridgeExport.h"
#include "OPXTreeRowsSource.h"
#include "ZELSYPAbstractDataSource.h"

class OPXTREEBRIDGE_EXPORT OPXTreeDataSource : public ZELSYPAbstractDataSource, public OPXTreeRowsSource
{
public:
  OPXTreeDataSource();
  ~OPXTreeDataSource() override;

  // The paths that the source wants collapsed and expanded in return; by default none.
  virtual ZELSYPDataSourceParameters::ModelCollapseExpandAnswerParameters
  RequestCollapseExpand(const ZELSYPDataSourceParameters::ModelCollapseExpandParameters& i_change);

  // The change of selection that the source wants in return; by default none.
  virtual ZELSYPDataSourceParameters::SelectionChangeParameters
  RequestSelectionChange(const ZELSYPDataSourceParameters::SelectionChangeParameters& i_change);

  // Told of a click or another pointer event; by default nothing happens.
  virtual void RequestPointerEvent(const ZELSYPDataSourceParameters::PointerEventParameters& i_event);

  // Hand what the operations above return to the callback.
  void RequestModelCollapseExpand(const ZELSYPDataSourceParameters::ModelCollapseExpandParameters& i_change,
                                  ModelCollapseExpandCallback i_callback) final;
  void RequestPointerEvent(const ZELSYPDataSourceParameters::PointerEventParameters& i_event, PointerEventCallback i_callback) final;
  void RequestSelectionChange(const ZELSYPDataSourceParameters::SelectionChangeParameters& i_change,
                              SelectionChangeCallback i_callback) final;
};

#endif
