// The value and its names; what touches the disk is in ZELSYPFilePathSystem.cpp.
#include "ZELSYPFilePath.h"

#include "CaseFolding.h"

#include <string_view>
#include <utility>

static const std::size_t NOWHERE = std::string_view::npos;

ZELSYPFilePath::ZELSYPFilePath() noexcept = default;

ZELSYPFilePath::ZELSYPFilePath(const char* i_path) : _path(i_path)
{
  Normalize();
}

ZELSYPFilePath::ZELSYPFilePath(ZELString i_path) : _path(i_path)
{
  Normalize();
}

ZELSYPFilePath::ZELSYPFilePath(const ZELUnicodeString& i_path) : _path(i_path)
{
  Normalize();
}

ZELSYPFilePath::ZELSYPFilePath(const ZELSYPFilePath& i_other) noexcept = default;

ZELSYPFilePath& ZELSYPFilePath::operator=(const ZELSYPFilePath& i_other) noexcept = default;

ZELSYPFilePath& ZELSYPFilePath::operator=(const char* i_path)
{
  return *this = ZELSYPFilePath(i_path);
}

ZELSYPFilePath& ZELSYPFilePath::operator=(ZELString i_path)
{
  return *this = ZELSYPFilePath(std::move(i_path));
}

ZELSYPFilePath& ZELSYPFilePath::operator=(const ZELUnicodeString& i_path)
{
  return *this = ZELSYPFilePath(i_path);
}

ZELSYPFilePath::~ZELSYPFilePath() = default;

ZELSYPFilePath::operator const char*() const
{
  return _path.GetNarrow();
}

ZELSYPFilePath ZELSYPFilePath::FromView(std::string_view i_utf8)
{
  return ZELSYPFilePath(ZELUnicodeString::FromUTF8(i_utf8));
}

void ZELSYPFilePath::Normalize()
{
  _path.Replace('/', '\\');
}

ZELSYPFilePath ZELSYPFilePath::operator+(const ZELSYPFilePath& i_path) const
{
  return *this + i_path._path;
}

ZELSYPFilePath ZELSYPFilePath::operator+(const ZELString& i_path) const
{
  return *this + ZELUnicodeString(i_path);
}

// Kept: one backslash is put in, whatever stands on its two sides.
ZELSYPFilePath ZELSYPFilePath::operator+(const ZELUnicodeString& i_path) const
{
  return ZELSYPFilePath(ZELUnicodeString::Join(_path.GetUTF8(), "\\", i_path.GetUTF8()));
}

ZELSYPFilePath ZELSYPFilePath::operator+(const char* i_path) const
{
  return *this + ZELUnicodeString(i_path);
}

ZELSYPFilePath& ZELSYPFilePath::operator+=(const char* i_path)
{
  return *this = *this + i_path;
}

int ZELSYPFilePath::operator==(const ZELSYPFilePath& i_path) const
{
  return *this == i_path._path.GetNarrow();
}

int ZELSYPFilePath::operator!=(const ZELSYPFilePath& i_path) const
{
  return !(*this == i_path);
}

int ZELSYPFilePath::operator==(const char* i_path) const
{
  return i_path && EqualIgnoringCase(_path.GetNarrow(), i_path);
}

int ZELSYPFilePath::operator!=(const char* i_path) const
{
  return !(*this == i_path);
}

int ZELSYPFilePath::IsEqual(const ZELSYPFilePath& i_path) const
{
  return std::string_view(_path.GetNarrow()) == std::string_view(i_path._path.GetNarrow());
}

int ZELSYPFilePath::Compare(ZELSYPFilePath* i_pLeft, ZELSYPFilePath* i_pRight)
{
  // Kept: a null pointer goes first, whichever side it is on.
  if (!i_pLeft || !i_pRight)
    return -1;
  const int order = std::string_view(i_pLeft->_path.GetNarrow()).compare(i_pRight->_path.GetNarrow());
  return (order > 0) - (order < 0);
}

int ZELSYPFilePath::IsNull() const
{
  return _path.IsEmpty();
}

// The place of the separator before the n-th component from the end, or NOWHERE. io_text is cut to what ends with the
// component. What is cut off once may hold slashes that an extension brought in: they count from then on.
static std::size_t FindSeparator(std::string_view& io_text, int n)
{
  std::size_t separator = io_text.rfind('\\');
  for (; n > 1 && separator != NOWHERE; --n)
  {
    io_text = io_text.substr(0, separator);
    separator = io_text.find_last_of("\\/");
  }
  return separator;
}

ZELSYPFilePath ZELSYPFilePath::basename(int n) const
{
  std::string_view text = _path.GetUTF8();
  if (text.find('\\') == NOWHERE)
    return *this;
  const std::size_t separator = FindSeparator(text, n);
  return FromView(separator == NOWHERE ? text : text.substr(separator + 1));
}

ZELSYPFilePath ZELSYPFilePath::dirname(int n) const
{
  std::string_view text = _path.GetUTF8();
  const std::size_t separator = FindSeparator(text, n);
  return separator == NOWHERE ? ZELSYPFilePath() : FromView(text.substr(0, separator));
}

// Kept: the dot may stand in the name of a directory.
static std::size_t FindDot(const ZELUnicodeString& i_path)
{
  return i_path.GetUTF8().rfind('.');
}

ZELString ZELSYPFilePath::GetExtension() const
{
  const std::size_t dot = FindDot(_path);
  return dot == NOWHERE ? ZELString() : ZELUnicodeString::FromUTF8(_path.GetUTF8().substr(dot + 1)).ToNarrow();
}

int ZELSYPFilePath::HasExtension(const char* i_extension) const
{
  return i_extension && GetExtension() == i_extension;
}

// Kept: no dot is put before it and no slash is turned.
void ZELSYPFilePath::AddExtension(ZELString i_extension)
{
  _path += i_extension;
}

void ZELSYPFilePath::SetExtension(ZELString i_extension)
{
  const std::size_t dot = FindDot(_path);
  const ZELUnicodeString extension(i_extension);
  _path = ZELUnicodeString::Join(_path.GetUTF8().substr(0, dot), ".", extension.GetUTF8());
  // Kept: slashes are turned only where an extension is replaced.
  if (dot != NOWHERE)
    Normalize();
}
