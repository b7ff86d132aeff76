#include "OPXTreeDataSource.h"

#include <vector>

namespace Records = ZELSYPDataSourceParameters;

OPXTreeDataSource::OPXTreeDataSource() = default;

OPXTreeDataSource::~OPXTreeDataSource() = default;

Records::ModelCollapseExpandAnswerParameters OPXTreeDataSource::RequestCollapseExpand(const Records::ModelCollapseExpandParameters&)
{
  std::vector<Records::IdsPath> none;
  return Records::ModelCollapseExpandAnswerParameters(none, none);
}

Records::SelectionChangeParameters OPXTreeDataSource::RequestSelectionChange(const Records::SelectionChangeParameters&)
{
  return Records::SelectionChangeParameters();
}

void OPXTreeDataSource::RequestPointerEvent(const Records::PointerEventParameters&) {}

void OPXTreeDataSource::RequestModelCollapseExpand(const Records::ModelCollapseExpandParameters& i_change,
                                                   ModelCollapseExpandCallback i_callback)
{
  i_callback(RequestCollapseExpand(i_change));
}

void OPXTreeDataSource::RequestPointerEvent(const Records::PointerEventParameters& i_event, PointerEventCallback i_callback)
{
  RequestPointerEvent(i_event);
  i_callback(Records::RequestAnswer());
}

void OPXTreeDataSource::RequestSelectionChange(const Records::SelectionChangeParameters& i_change, SelectionChangeCallback i_callback)
{
  i_callback(RequestSelectionChange(i_change));
}
