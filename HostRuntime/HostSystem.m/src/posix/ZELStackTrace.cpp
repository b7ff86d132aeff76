#include "ZELStackTrace.h"

#define BOOST_STACKTRACE_LINK
#include <boost/stacktrace.hpp>

void ZELStackTrace::GetTrace()
{
  _frames.clear();
  for (const boost::stacktrace::frame& frame : boost::stacktrace::stacktrace(1, SIZE_MAX))
    _frames.push_back(frame.address());
}

std::string ZELBasicStackTrace::Describe(int i_index) const
{
  if (i_index < 0 || i_index >= GetFrameCount())
    return std::string();
  // A frame holds the address behind its call, which may be the next line's.
  const char* call = static_cast<const char*>(_frames[static_cast<std::size_t>(i_index)]) - 1;
  return boost::stacktrace::to_string(boost::stacktrace::frame(call));
}
