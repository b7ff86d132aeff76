#include "Door.h"

ZELImplementClass(OpenedArgs, ZELSYPEventArgs, MyLibrary);
ZELImplementClass(Door, ZELSYPSimpleEventListener, MyLibrary);

std::string& Diary()
{
  static std::string s_diary;
  return s_diary;
}

std::string TakeDiary()
{
  return std::exchange(Diary(), std::string());
}
