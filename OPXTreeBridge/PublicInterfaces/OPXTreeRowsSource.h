// OPXTreeRowsSource: what a tree session asks of a data source beside the requests of ZELSYPAbstractDataSource: the rows.
// class Countries : public ZELSYPAbstractDataSource, public OPXTreeRowsSource { TreeNodesAnswerParameters RequestRows(...) override; ... };
//
// Every operation is called on the session's thread, with a record whose message has been found sound. An exception of
// any of them becomes an internal error in the answer and harms nothing else.
#ifndef OPXTreeRowsSource_H
#define OPXTreeRowsSource_H

#include "OPXTreeBridgeExport.h"
#include "ZELSYPDataSourceParameters.h"

class OPXTREEBRIDGE_EXPORT OPXTreeRowsSource
{
public:
  OPXTreeRowsSource() = default;
  OPXTreeRowsSource(const OPXTreeRowsSource&) = delete;
  OPXTreeRowsSource& operator=(const OPXTreeRowsSource&) = delete;
  virtual ~OPXTreeRowsSource();

  // Told before the first request of each message: all requests of one message, a batch too, may be answered by one look
  // at the model. Does nothing by default.
  virtual void StartMessage();

  // The rows of each request, in request order. A request whose parent is unknown is marked as not found.
  virtual ZELSYPDataSourceParameters::TreeNodesAnswerParameters
  RequestRows(const ZELSYPDataSourceParameters::TreeNodesRequestParameters& i_request) = 0;

  // The node tree under the first group-key list, or JSON null when there is no such node.
  virtual ZELSYPDataSourceParameters::TreeNodesModelStructureAnswerParameters
  RequestStructure(const ZELSYPDataSourceParameters::TreeNodesModelStructureParameters& i_request) = 0;
};

#endif
