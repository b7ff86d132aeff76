#include "OPXTreeDataSource.h"

#include <string>
#include <vector>

namespace Records = ZELSYPDataSourceParameters;

OPXTreeDataSource::~OPXTreeDataSource() = default;

Records::ModelCollapseExpandAnswerParameters OPXTreeDataSource::RequestCollapseExpand(const Records::ModelCollapseExpandParameters&)
{
  std::vector<std::vector<std::string>> none;
  return Records::ModelCollapseExpandAnswerParameters(none, none);
}

Records::SelectionChangeParameters OPXTreeDataSource::RequestSelectionChange(const Records::SelectionChangeParameters&)
{
  return Records::SelectionChangeParameters();
}

void OPXTreeDataSource::RequestPointerEvent(const Records::PointerEventParameters&) {}
