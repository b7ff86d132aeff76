#include "ZELSharedText.h"
#include "ZELTextBuffer.h"

#include <algorithm>
#include <climits>
#include <cstring>

namespace
{
// An empty view may hold a null pointer, which memcpy must not see.
char* Copy(std::string_view i_bytes, char* o_bytes) noexcept
{
  if (!i_bytes.empty())
    std::memcpy(o_bytes, i_bytes.data(), i_bytes.size());
  return o_bytes + i_bytes.size();
}

// Half as much again, so that a loop of appends copies each byte a constant number of times.
std::size_t GrownCapacity(std::size_t i_needed) noexcept
{
  return std::max<std::size_t>(i_needed, std::min<std::size_t>(i_needed + i_needed / 2, INT_MAX));
}
} // namespace

ZELSharedText::ZELSharedText(std::size_t i_length)
{
  if (i_length == 0)
    return;
  char* const bytes = ZELTextBuffer::Make(i_length)->GetBytes();
  bytes[i_length] = '\0';
  _pText = bytes;
  _length = static_cast<int>(i_length);
}

ZELSharedText ZELSharedText::MakeRoom(std::size_t i_length, char*& o_bytes)
{
  ZELSharedText text(i_length);
  o_bytes = const_cast<char*>(text._pText);
  return text;
}

ZELSharedText::ZELSharedText(std::string_view i_first, std::string_view i_second, std::string_view i_third)
    : ZELSharedText(i_first.size() + i_second.size() + i_third.size())
{
  Copy(i_third, Copy(i_second, Copy(i_first, const_cast<char*>(_pText))));
}

bool ZELSharedText::HasRoomFor(std::size_t i_length) const noexcept
{
  return _length != 0 && !ZELTextBuffer::Of(_pText)->IsShared() && i_length <= ZELTextBuffer::Of(_pText)->GetCapacity();
}

ZELSharedText ZELSharedText::MoveToRoomFor(std::size_t i_length)
{
  char* const bytes = ZELTextBuffer::Make(GrownCapacity(i_length))->GetBytes();
  Copy(GetView(), bytes);
  ZELSharedText old;
  Swap(old);
  _pText = bytes;
  return old;
}

void ZELSharedText::Append(std::string_view i_bytes)
{
  if (i_bytes.empty())
    return;
  const std::size_t oldLength = static_cast<std::size_t>(_length);
  const std::size_t newLength = oldLength + i_bytes.size();
  // Kept until the end: the new bytes may lie in it.
  const ZELSharedText old = HasRoomFor(newLength) ? ZELSharedText() : MoveToRoomFor(newLength);
  *Copy(i_bytes, ZELTextBuffer::Of(_pText)->GetBytes() + oldLength) = '\0';
  ZELTextBuffer::Of(_pText)->ForgetForm();
  _length = static_cast<int>(newLength);
  _characters = 0;
}

char* ZELSharedText::MakeWritable()
{
  if (ZELTextBuffer::Of(_pText)->IsShared())
    *this = ZELSharedText(GetView());
  ZELTextBuffer::Of(_pText)->ForgetForm();
  _characters = 0;
  return ZELTextBuffer::Of(_pText)->GetBytes();
}

const char* ZELSharedText::GetKeptForm() const noexcept
{
  return ZELTextBuffer::Of(_pText)->GetKeptForm();
}

const char* ZELSharedText::KeepForm(std::string_view i_form) const
{
  return ZELTextBuffer::Of(_pText)->KeepForm(i_form);
}

void ZELSharedText::Attach() const noexcept
{
  ZELTextBuffer::Of(_pText)->AddRef();
}

void ZELSharedText::Detach() noexcept
{
  ZELTextBuffer::Of(_pText)->Release();
}
