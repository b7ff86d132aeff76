// Writes JSON text without making the values first, character for character as the JSON library's dump() does.
// ZELSYPJSONTextWriter writer(io_text); writer.Begin('['); writer.Separate(); writer.Write(12); writer.End(']'); writer.Finish();
#ifndef ZELSYPJSONTextWriter_H
#define ZELSYPJSONTextWriter_H

#include <nlohmann/json.hpp>

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Text goes through a small buffer that stays in the processor's nearest cache. Not for two threads at a time.
class ZELSYPJSONTextWriter
{
public:
  // Appends to io_text, which must outlive the writer and is not touched by others until then.
  explicit ZELSYPJSONTextWriter(std::string& io_text) : _text(io_text), _start(io_text.size()) {}
  // Without Finish, the text is what it was: half a message is never left behind.
  ~ZELSYPJSONTextWriter();
  ZELSYPJSONTextWriter(const ZELSYPJSONTextWriter&) = delete;
  ZELSYPJSONTextWriter& operator=(const ZELSYPJSONTextWriter&) = delete;

  void Begin(char i_bracket) { Put(i_bracket); }
  void End(char i_bracket) { Put(i_bracket); }
  // Before each element of an array: a comma, except before the first.
  void Separate();
  // Before each value of an object, its separator included.
  void WriteKey(std::string_view i_key);

  void WriteString(std::string_view i_text);
  // Type error 316, as of dump(), for a text that is not UTF-8.
  void Write(const std::string& i_text) { WriteString(i_text); }
  void Write(int i_number) { WriteInteger(i_number); }
  void Write(bool i_value) { Put(i_value ? std::string_view("true") : std::string_view("false")); }
  // Nested as deep as memory allows.
  void Write(const nlohmann::json& i_value);
  template <typename Element>
  void Write(const std::vector<Element>& i_list);

  // The text is complete. Nothing may be written after it.
  void Finish();

private:
  static constexpr std::size_t s_capacity = 4096;
  // More than any number needs.
  static constexpr std::size_t s_longestNumber = 64;

  // Makes room for i_size characters, at most s_capacity, and answers where they go.
  char* Reserve(std::size_t i_size);
  void Advance(const char* i_pEnd) { _size = static_cast<std::size_t>(i_pEnd - _buffer.data()); }
  void Flush();
  void Put(char i_char) { *Reserve(1) = i_char, ++_size; }
  void Put(std::string_view i_text);
  char GetLast() const { return _size != 0 ? _buffer[_size - 1] : _text.back(); }

  std::size_t WriteSpecial(std::string_view i_text, std::size_t i_position);
  void WriteEscaped(char i_char);
  template <typename Integer>
  void WriteInteger(Integer i_number);
  void WriteFloat(double i_number);
  void WritePrimitive(const nlohmann::json& i_value);
  void WriteStructured(const nlohmann::json& i_value);

  std::string& _text;
  const std::size_t _start;
  std::size_t _size = 0;
  bool _finished = false;
  std::array<char, s_capacity> _buffer;
};

template <typename Element>
void ZELSYPJSONTextWriter::Write(const std::vector<Element>& i_list)
{
  Begin('[');
  for (const Element& element : i_list)
  {
    Separate();
    Write(element);
  }
  End(']');
}

#endif
