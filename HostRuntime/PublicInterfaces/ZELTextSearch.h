// ZELTextSearch: the direction of a search in a text.
// text.Search("\\", 0, ZELTextSearch::Backward) answers the last place of a backslash.
#ifndef ZELTextSearch_H
#define ZELTextSearch_H

enum class ZELTextSearch
{
  Forward,
  Backward
};

#endif
