#include "ZELListValZELSYPFilePath.h"

ZELListValZELSYPFilePath::ZELListValZELSYPFilePath(int i_capacity) : _paths(i_capacity) {}

ZELListValZELSYPFilePath::ZELListValZELSYPFilePath(const ZELListValZELSYPFilePath& i_other) : _paths(i_other.Size())
{
  AppendAll(i_other);
}

ZELListValZELSYPFilePath& ZELListValZELSYPFilePath::operator=(const ZELListValZELSYPFilePath& i_other)
{
  if (this == &i_other)
    return *this;
  RemoveAll();
  AppendAll(i_other);
  return *this;
}

ZELListValZELSYPFilePath::~ZELListValZELSYPFilePath()
{
  RemoveAll();
}

void ZELListValZELSYPFilePath::AppendAll(const ZELListValZELSYPFilePath& i_other)
{
  for (int position = 1; position <= i_other.Size(); ++position)
    Append(i_other[position]);
}

void ZELListValZELSYPFilePath::Append(const ZELSYPFilePath& i_path)
{
  _paths.Append(new ZELSYPFilePath(i_path));
}

void ZELListValZELSYPFilePath::RemovePosition(int i_position)
{
  // Null for a position that does not exist, which the collection has reported by then.
  ZELSYPFilePath* const pPath = At(i_position);
  if (!pPath)
    return;
  _paths.RemovePosition(i_position);
  delete pPath;
}

void ZELListValZELSYPFilePath::RemoveAll(MemoryHandling i_memory)
{
  for (int position = Size(); position > 0; --position)
    delete At(position);
  _paths.RemoveAll(i_memory);
}

ZELSYPFilePath& ZELListValZELSYPFilePath::AtOrNowhere(int i_position) const
{
  if (ZELSYPFilePath* const pPath = At(i_position))
    return *pPath;
  static thread_local ZELSYPFilePath nowhere;
  return nowhere = ZELSYPFilePath();
}

ZELSYPFilePath& ZELListValZELSYPFilePath::operator[](int i_position)
{
  return AtOrNowhere(i_position);
}

const ZELSYPFilePath& ZELListValZELSYPFilePath::operator[](int i_position) const
{
  return AtOrNowhere(i_position);
}

void ZELListValZELSYPFilePath::QuickSort(int (*i_compare)(ZELSYPFilePath*, ZELSYPFilePath*))
{
  if (!i_compare)
    return;
  _paths.QuickSort(
      [](void* i_left, void* i_right, void* i_pCompare)
      {
        const auto compare = *static_cast<int (**)(ZELSYPFilePath*, ZELSYPFilePath*)>(i_pCompare);
        return compare(static_cast<ZELSYPFilePath*>(i_left), static_cast<ZELSYPFilePath*>(i_right));
      },
      &i_compare);
}

int ZELListValZELSYPFilePath::operator==(const ZELListValZELSYPFilePath& i_other) const
{
  return !(*this != i_other);
}

int ZELListValZELSYPFilePath::operator!=(const ZELListValZELSYPFilePath& i_other) const
{
  if (this == &i_other)
    return 0;
  if (Size() != i_other.Size())
    return 1;
  for (int position = 1; position <= Size(); ++position)
    if ((*this)[position] != i_other[position])
      return 1;
  return 0;
}
