// LineMaker: random lines for a tree session, the same in every run: requests with a few bytes changed, cut out or doubled,
// and plain noise. LineMaker maker; std::string line = maker.Make();
#ifndef LineMaker_H
#define LineMaker_H

#include <cstddef>
#include <iterator>
#include <random>
#include <string>

class LineMaker
{
public:
  std::string Make()
  {
    std::string line = Pick(4) == 0 ? MakeNoise() : std::string(requests[Pick(std::size(requests))]);
    for (std::size_t changes = Pick(4); changes > 0; --changes)
      Change(line);
    return line;
  }

private:
  static constexpr const char* requests[] = {
      R"({"jsonrpc":"2.0","id":1,"method":"tree/rows","params":{"startRow":0,"endRow":9,"groupKeys":["a"],"sortModel":[{"dataIndex":"size","sort":"desc"}]}})",
      R"({"jsonrpc":"2.0","id":"x","method":"tree/rows","params":{"groupedRequest":[{"startRow":0,"endRow":3,"groupKeys":[]},{"startRow":1,"endRow":2,"groupKeys":["a","b"]}]}})",
      R"({"jsonrpc":"2.0","id":2,"method":"tree/structure","params":{"groupKeys":[],"expandNLevels":2}})",
      R"({"jsonrpc":"2.0","id":3,"method":"tree/selectionChange","params":{"addedNodes":[[0,1]],"removedNodes":["a"]}})",
      R"({"jsonrpc":"2.0","id":4,"method":"tree/collapseExpand","params":{"nodesToExpand":[["a"],["c"]]}})",
      R"({"jsonrpc":"2.0","method":"tree/pointerEvent","params":{"idsPath":["a"],"modifiers":6}})",
      R"([{"jsonrpc":"2.0","method":"tree/pointerEvent","params":{"idsPath":["a"]}},{"jsonrpc":"2.0","id":5,"method":"nothing"}])",
      R"([{"jsonrpc":"2.0","method":"tree/pointerEvent","params":{"idsPath":["a"]}}])"};

  std::size_t Pick(std::size_t i_count) { return static_cast<std::size_t>(_random() % i_count); }
  // Any byte but those that end a line.
  char PickByte()
  {
    const char byte = static_cast<char>(Pick(2) == 0 ? Pick(256) : static_cast<std::size_t>("[]{}\",:0-.eE\\tu"[Pick(15)]));
    return byte == '\n' || byte == '\r' ? ' ' : byte;
  }
  std::string MakeNoise()
  {
    std::string line(1 + Pick(80), ' ');
    for (char& byte : line)
      byte = PickByte();
    return line;
  }
  void Change(std::string& io_line)
  {
    const std::size_t place = Pick(io_line.size());
    const std::size_t length = 1 + Pick(12);
    if (Pick(3) == 0)
      io_line[place] = PickByte();
    else if (Pick(2) == 0)
      io_line.insert(place, io_line.substr(place, length));
    else if (io_line.size() > length)
      io_line.erase(place, length);
  }

  std::mt19937_64 _random{20240229};
};

#endif
