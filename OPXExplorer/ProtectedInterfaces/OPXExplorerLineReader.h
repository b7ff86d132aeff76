// OPXExplorerLineReader: lines out of a stream of bytes, none of which is held when it is too long.
// OPXExplorerLineReader reader(ZELSysReadStandardInput, 4096); while (reader.Next()) Use(reader.GetLine());
#ifndef OPXExplorerLineReader_H
#define OPXExplorerLineReader_H

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

class OPXExplorerLineReader
{
public:
  // Fills a buffer with what there is: how many bytes, 0 at the end.
  using Source = std::function<int(char* o_buffer, int i_size)>;

  // i_maxLength: of a line in bytes, its end not counted.
  OPXExplorerLineReader(Source i_source, std::size_t i_maxLength);

  // Goes on to the next line; false at the end of the input. A line ends with a line feed, a carriage return before it
  // belongs to the end, and the last line may lack one. An empty rest is no line.
  bool Next();
  // Valid until the next step. Empty when the line is too long.
  std::string_view GetLine() const noexcept { return _line; }
  bool IsTooLong() const noexcept { return _isTooLong; }

private:
  bool Fill();
  void Take(std::string_view i_bytes);
  void EndLine();

  Source _source;
  std::size_t _maxLength;
  std::vector<char> _buffer;
  std::string_view _rest;
  std::string _line;
  bool _isTooLong = false;
};

#endif
