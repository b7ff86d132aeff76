// Runs a fuzz target on every file of a folder and on mutations of them, the same ones each time.
// TreeRecords_corpus fuzz/corpus/TreeRecords
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* i_pData, std::size_t i_size);

namespace
{
constexpr int s_mutations = 10'000;
constexpr std::size_t s_longest = 1 << 16;

using Corpus = std::vector<std::string>;

Corpus ReadCorpus(const char* i_folder)
{
  std::vector<std::filesystem::path> paths;
  for (const auto& entry : std::filesystem::directory_iterator(i_folder))
    paths.push_back(entry.path());
  std::sort(paths.begin(), paths.end());
  Corpus corpus;
  for (const auto& path : paths)
  {
    std::ifstream file(path, std::ios::binary);
    corpus.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }
  return corpus;
}

// Where a value or a word begins at i_begin, the position after it.
std::size_t FindEnd(const std::string& i_text, std::size_t i_begin)
{
  const char first = i_text[i_begin];
  if (first == '"')
    return std::min(i_text.find('"', i_begin + 1), i_text.size() - 1) + 1;
  if (first != '[' && first != '{')
    return std::min(i_text.find_first_of(",:]}", i_begin), i_text.size());
  std::size_t end = i_begin;
  for (int depth = 0; end < i_text.size(); ++end)
  {
    depth += (i_text[end] == '[' || i_text[end] == '{') - (i_text[end] == ']' || i_text[end] == '}');
    if (depth == 0)
      return end + 1;
  }
  return end;
}

// The position of every value in a text that is more or less JSON; names of members are none.
std::vector<std::size_t> FindValues(const std::string& i_text)
{
  std::vector<std::size_t> values;
  for (std::size_t position = i_text.find_first_not_of(",:]} "); position < i_text.size();)
  {
    const bool isOpen = i_text[position] == '[' || i_text[position] == '{';
    const std::size_t end = isOpen ? position + 1 : FindEnd(i_text, position);
    if (end == i_text.size() || i_text[end] != ':')
      values.push_back(position);
    position = i_text.find_first_not_of(",:]} ", std::max(end, position + 1));
  }
  return values;
}

class Mutator
{
public:
  explicit Mutator(const Corpus& i_corpus) : _corpus(i_corpus) {}

  // Mostly a text that is still well formed, with values exchanged; at times one with its bytes broken.
  std::string Draw()
  {
    std::string text = Pick();
    for (std::size_t steps = 1 + Below(3); steps > 0; --steps)
      Below(8) != 0 ? ExchangeValue(text) : BreakBytes(text);
    return text.substr(0, s_longest);
  }

private:
  std::size_t Below(std::size_t i_count) { return _engine() % i_count; }
  const std::string& Pick() { return _corpus[Below(_corpus.size())]; }

  void ExchangeValue(std::string& io_text)
  {
    static const std::string s_values[] = {"null", "true",        "-1",    "1e300", "2.5",     "[]",         "{}",
                                           "\"\"", "\"\\u0000\"", "[[0]]", "[1]",   "[\"a\"]", "{\"a\":[]}", "18446744073709551615"};
    const std::vector<std::size_t> values = FindValues(io_text);
    if (values.empty())
      return;
    const std::size_t begin = values[Below(values.size())];
    io_text.replace(begin, FindEnd(io_text, begin) - begin, Below(8) == 0 ? Pick() : s_values[Below(std::size(s_values))]);
  }

  void BreakBytes(std::string& io_text)
  {
    const std::size_t place = Below(io_text.size() + 1);
    const std::size_t length = Below(std::min<std::size_t>(io_text.size() - place, 32) + 1);
    const std::size_t kind = Below(4);
    if (kind == 0)
      io_text.erase(place, length);
    else if (kind == 1)
      io_text.insert(place, io_text.substr(place, length));
    else if (kind == 2)
      io_text.replace(place, std::string::npos, Pick());
    else
      io_text.replace(place, std::min<std::size_t>(length, 1), 1, static_cast<char>(Below(256)));
  }

  const Corpus& _corpus;
  std::mt19937 _engine{20260314};
};

void Run(const std::string& i_text)
{
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(i_text.data()), i_text.size());
}
} // namespace

int main(int i_count, char** i_arguments)
{
  const Corpus corpus = i_count == 2 ? ReadCorpus(i_arguments[1]) : Corpus();
  if (corpus.empty())
    return std::fputs("usage: NAME_corpus FOLDER (with at least one file)\n", stderr), 2;
  std::for_each(corpus.begin(), corpus.end(), Run);
  Mutator mutator(corpus);
  for (int mutation = 0; mutation < s_mutations; ++mutation)
    Run(mutator.Draw());
  std::printf("%zu files and %d mutations\n", corpus.size(), s_mutations);
  return 0;
}
