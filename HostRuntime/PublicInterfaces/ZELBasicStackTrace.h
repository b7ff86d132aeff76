// ZELBasicStackTrace: a captured list of frames, and how it is printed.
// ZELStackTrace trace; trace.GetTrace(); if (trace.GetFrameCount() > 0) Tell(trace.Describe(0));
//
// Captured by ZELStackTrace.
#ifndef ZELBasicStackTrace_H
#define ZELBasicStackTrace_H

#include "OPXHostRuntimeExport.h"

#include <cstdio>
#include <string>
#include <vector>

class OPXHOSTRUNTIME_EXPORT ZELBasicStackTrace
{
public:
  // One return address on the stack.
  typedef const void* Frame;

  int GetFrameCount() const noexcept { return static_cast<int>(_frames.size()); }
  // One frame as text: function, then file and line (or the library that holds it). Empty for a bad index (from 0).
  std::string Describe(int i_index) const;
  // One line a frame, numbered from 0. i_maximum: print at most so many frames (0: all). i_skip: leave out the first.
  void Print(std::FILE* io_stream, int i_maximum, int i_skip) const;

protected:
  std::vector<Frame> _frames;
};

#endif
