#include "ZELSYPViewUpdatedEventArgs.h"

#include <utility>

ZELImplementClass(ZELSYPViewUpdatedEventArgs, ZELSYPEventArgs, OPXCoreTools);

ZELSYPViewUpdatedEventArgs::ZELSYPViewUpdatedEventArgs(ZELSYPEvent* i_pEvent, nlohmann::json i_transactions,
                                                       SuccessCallback i_successCallback)
    : ZELSYPEventArgs(i_pEvent), _transactions(std::move(i_transactions)), _successCallback(std::move(i_successCallback))
{
}

ZELSYPViewUpdatedEventArgs::~ZELSYPViewUpdatedEventArgs() = default;
