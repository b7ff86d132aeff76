#include "OPXExplorerLineReader.h"

#include <utility>

namespace
{
constexpr std::size_t bufferSize = 65536;
// A line's memory is kept for the next one unless it was an exception.
constexpr std::size_t keptCapacity = std::size_t{1} << 20;
} // namespace

OPXExplorerLineReader::OPXExplorerLineReader(Source i_source, std::size_t i_maxLength)
    : _source(std::move(i_source)), _maxLength(i_maxLength), _buffer(bufferSize)
{
}

bool OPXExplorerLineReader::Next()
{
  _isTooLong = false;
  _line.clear();
  if (_line.capacity() > keptCapacity)
    _line.shrink_to_fit();
  bool hasBytes = false;
  while (!_rest.empty() || Fill())
  {
    hasBytes = true;
    const std::size_t end = _rest.find('\n');
    Take(_rest.substr(0, end));
    _rest.remove_prefix(end == std::string_view::npos ? _rest.size() : end + 1);
    if (end != std::string_view::npos)
      break;
  }
  EndLine();
  return hasBytes;
}

bool OPXExplorerLineReader::Fill()
{
  const int count = _source(_buffer.data(), static_cast<int>(_buffer.size()));
  _rest = std::string_view(_buffer.data(), count > 0 ? static_cast<std::size_t>(count) : 0);
  return !_rest.empty();
}

// One byte more than a line may have is held: it may be the carriage return of its end.
void OPXExplorerLineReader::Take(std::string_view i_bytes)
{
  if (_isTooLong)
    return;
  _isTooLong = i_bytes.size() > _maxLength + 1 - _line.size();
  if (!_isTooLong)
    _line += i_bytes;
}

void OPXExplorerLineReader::EndLine()
{
  if (!_line.empty() && _line.back() == '\r')
    _line.pop_back();
  _isTooLong = _isTooLong || _line.size() > _maxLength;
  if (_isTooLong)
    _line.clear();
}
