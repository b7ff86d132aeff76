// OPXTreeDataSource: what a tree session asks of the object that knows the tree.
// class Countries : public OPXTreeDataSource { TreeNodesAnswerParameters RequestRows(...) override; ... };
//
// Every operation is called on the session's thread, with a record whose message has been found sound. An exception of
// any of them becomes an internal error in the answer and harms nothing else.
#ifndef OPXTreeDataSource_H
#define OPXTreeDataSource_H

#include "OPXTreeBridgeExport.h"
#include "ZELSYPDataSourceParameters.h"

class OPXTREEBRIDGE_EXPORT OPXTreeDataSource
{
public:
  OPXTreeDataSource() = default;
  OPXTreeDataSource(const OPXTreeDataSource&) = delete;
  OPXTreeDataSource& operator=(const OPXTreeDataSource&) = delete;
  virtual ~OPXTreeDataSource();

  // The rows of each request, in request order. A request whose parent is unknown is marked as not found.
  virtual ZELSYPDataSourceParameters::TreeNodesAnswerParameters
  RequestRows(const ZELSYPDataSourceParameters::TreeNodesRequestParameters& i_request) = 0;

  // The node tree under the first group-key list, or JSON null when there is no such node.
  virtual ZELSYPDataSourceParameters::TreeNodesModelStructureAnswerParameters
  RequestStructure(const ZELSYPDataSourceParameters::TreeNodesModelStructureParameters& i_request) = 0;

  // The paths that the source wants collapsed and expanded in return; by default none.
  virtual ZELSYPDataSourceParameters::ModelCollapseExpandAnswerParameters
  RequestCollapseExpand(const ZELSYPDataSourceParameters::ModelCollapseExpandParameters& i_change);

  // The change of selection that the source wants in return; by default none.
  virtual ZELSYPDataSourceParameters::SelectionChangeParameters
  RequestSelectionChange(const ZELSYPDataSourceParameters::SelectionChangeParameters& i_change);

  // Told of a click or another pointer event; by default nothing happens.
  virtual void RequestPointerEvent(const ZELSYPDataSourceParameters::PointerEventParameters& i_event);
};

#endif
