// ZELSharedText: some bytes whose copies share one buffer. What ZELString and ZELUnicodeString are made of.
// ZELSharedText text("C:\\data", "\\", "x"); ZELSharedText copy = text; copy.GetText() == text.GetText();
//
// Reading costs no more than reading a pointer and a length that stand in the value itself; a copy costs one atomic
// increment. One value belongs to one thread at a time; copies of it may live on other threads. A text longer than an
// int can count is refused with std::length_error.
#ifndef ZELSharedText_H
#define ZELSharedText_H

#include "OPXHostRuntimeExport.h"

#include <cstddef>
#include <string_view>
#include <utility>

class OPXHOSTRUNTIME_EXPORT ZELSharedText
{
public:
  ZELSharedText() noexcept = default;
  // The parts one after the other, with one allocation; none when they are empty.
  explicit ZELSharedText(std::string_view i_first, std::string_view i_second = {}, std::string_view i_third = {});
  ZELSharedText(const ZELSharedText& i_other) noexcept : _pText(i_other._pText), _length(i_other._length), _characters(i_other._characters)
  {
    if (_length != 0)
      Attach();
  }
  ZELSharedText(ZELSharedText&& io_other) noexcept { Swap(io_other); }
  ZELSharedText& operator=(ZELSharedText i_other) noexcept
  {
    Swap(i_other);
    return *this;
  }
  ~ZELSharedText()
  {
    if (_length != 0)
      Detach();
  }

  // A new text of i_length bytes, which the caller writes through o_bytes before anybody copies the text.
  static ZELSharedText MakeRoom(std::size_t i_length, char*& o_bytes);

  // The bytes, zero-terminated; never null. Valid while this value lives and is unchanged.
  const char* GetText() const noexcept { return _pText; }
  std::string_view GetView() const noexcept { return std::string_view(_pText, static_cast<std::size_t>(_length)); }
  int GetLength() const noexcept { return _length; }

  // The number of characters, for an owner that counts them. It goes with copies; any other change sets it to 0.
  int GetCharacters() const noexcept { return _characters; }
  void SetCharacters(int i_characters) noexcept { _characters = i_characters; }

  // Adds bytes at the end, which may be this text's own. Repeated, it costs a constant time a byte.
  void Append(std::string_view i_bytes);
  // The bytes for writing, after they were copied if they were shared. Only for a text that is not empty.
  char* MakeWritable();

  // A second form of the text that lives as long as its buffer: null before it was kept, and after a change. Copies on
  // several threads may keep theirs at the same time: all get the form that was first. Only for a text that is not
  // empty.
  const char* GetKeptForm() const noexcept;
  const char* KeepForm(std::string_view i_form) const;

private:
  explicit ZELSharedText(std::size_t i_length);
  void Attach() const noexcept;
  void Detach() noexcept;
  bool HasRoomFor(std::size_t i_length) const noexcept;
  // Moves the bytes to an own buffer with room for i_length and answers the text that they stood in.
  ZELSharedText MoveToRoomFor(std::size_t i_length);
  void Swap(ZELSharedText& io_other) noexcept
  {
    std::swap(_pText, io_other._pText);
    std::swap(_length, io_other._length);
    std::swap(_characters, io_other._characters);
  }

  // Behind the counted head of its buffer. An empty text has no buffer.
  const char* _pText = "";
  int _length = 0;
  int _characters = 0;
};

#endif
