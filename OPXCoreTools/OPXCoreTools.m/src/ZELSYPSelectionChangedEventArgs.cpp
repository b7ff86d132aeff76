#include "ZELSYPSelectionChangedEventArgs.h"

#include <utility>

ZELImplementClass(ZELSYPSelectionChangedEventArgs, ZELSYPEventArgs, OPXCoreTools);

ZELSYPSelectionChangedEventArgs::ZELSYPSelectionChangedEventArgs(ZELSYPEvent* i_pEvent,
                                                                 ZELSYPDataSourceParameters::SelectionChangeParameters i_parameters,
                                                                 SuccessCallback i_successCallback)
    : ZELSYPEventArgs(i_pEvent), _parameters(std::move(i_parameters)), _successCallback(std::move(i_successCallback))
{
}

ZELSYPSelectionChangedEventArgs::~ZELSYPSelectionChangedEventArgs() = default;
