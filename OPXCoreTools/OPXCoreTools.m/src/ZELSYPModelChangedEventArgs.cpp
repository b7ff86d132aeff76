#include "ZELSYPModelChangedEventArgs.h"

#include <utility>

ZELImplementClass(ZELSYPModelChangedEventArgs, ZELSYPEventArgs, OPXCoreTools);

ZELSYPModelChangedEventArgs::ZELSYPModelChangedEventArgs(ZELSYPEvent* i_pEvent, nlohmann::json i_transactions,
                                                         SuccessCallback i_successCallback)
    : ZELSYPEventArgs(i_pEvent), _transactions(std::move(i_transactions)), _successCallback(std::move(i_successCallback))
{
}

ZELSYPModelChangedEventArgs::~ZELSYPModelChangedEventArgs() = default;
