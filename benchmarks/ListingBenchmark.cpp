// Listing: directories read through a pattern with stars, against std::filesystem with the same filter, which collects
// paths too, and glob(3) without its sorting.
//
// Filter: 10,000 files of one directory, half of which end in .txt, through *.txt. TwoLevels: 100 directories of 100
// files, through *\*.txt.
//
// Where the time goes, by instructions counted with callgrind: about a third into allocating and freeing the two blocks
// that a path of the list costs, a seventh into upper-casing the name, a seventh into matching it.
#include "ZELListValZELSYPFilePath.h"
#include "ZELProcess.h"
#include "ZELSYPFilePath.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>
#include <glob.h>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace
{
// The files of all cases, made once and gone with the program.
class Files
{
public:
  Files() : _root(fs::temp_directory_path() / ("opx-listing-" + std::to_string(ZELGetProcessId())))
  {
    AddFiles("filter", 10000);
    for (int directory = 0; directory < 100; ++directory)
      AddFiles("levels/directory" + std::to_string(directory), 100);
  }
  ~Files() { fs::remove_all(_root); }

  std::string operator/(const char* i_inside) const { return _root / i_inside; }

private:
  void AddFiles(const std::string& i_directory, int i_count)
  {
    fs::create_directories(_root / i_directory);
    for (int number = 0; number < i_count; ++number)
      std::ofstream(_root / i_directory / ("document" + std::to_string(number) + (number % 2 ? ".txt" : ".dat")));
  }

  fs::path _root;
};

const Files& TheFiles()
{
  static const Files files;
  return files;
}

// What every way must find; a wrong count is no measurement.
void Expect(benchmark::State& io_state, std::size_t i_found)
{
  if (i_found != 5000)
    io_state.SkipWithError("found a wrong number of files");
}

void ListWithProject(benchmark::State& io_state, const char* i_pattern)
{
  std::string text = "C:" + TheFiles() / i_pattern;
  std::replace(text.begin(), text.end(), '/', '\\');
  const ZELSYPFilePath pattern(text.c_str());
  for (auto _ : io_state)
  {
    ZELListValZELSYPFilePath found;
    pattern.ReadDirectory(found);
    Expect(io_state, static_cast<std::size_t>(found.Size()));
  }
}

void AddTexts(const fs::path& i_directory, std::vector<fs::path>& o_found)
{
  for (const fs::directory_entry& entry : fs::directory_iterator(i_directory))
    if (entry.path().extension() == ".txt")
      o_found.push_back(entry.path());
}

void FilterWithStd(benchmark::State& io_state)
{
  const fs::path directory = TheFiles() / "filter";
  for (auto _ : io_state)
  {
    std::vector<fs::path> found;
    AddTexts(directory, found);
    Expect(io_state, found.size());
  }
}

void TwoLevelsWithStd(benchmark::State& io_state)
{
  const fs::path root = TheFiles() / "levels";
  for (auto _ : io_state)
  {
    std::vector<fs::path> found;
    for (const fs::directory_entry& directory : fs::directory_iterator(root))
      AddTexts(directory.path(), found);
    Expect(io_state, found.size());
  }
}

void ListWithGlob(benchmark::State& io_state, const char* i_pattern)
{
  const std::string pattern = TheFiles() / i_pattern;
  for (auto _ : io_state)
  {
    glob_t found = {};
    glob(pattern.c_str(), GLOB_NOSORT, nullptr, &found);
    Expect(io_state, found.gl_pathc);
    globfree(&found);
  }
}
} // namespace

BENCHMARK_CAPTURE(ListWithProject, filter, "filter/*.txt")->Name("ListingFilter/Project")->Unit(benchmark::kMicrosecond);
BENCHMARK(FilterWithStd)->Name("ListingFilter/std::filesystem")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ListWithGlob, filter, "filter/*.txt")->Name("ListingFilter/glob")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ListWithProject, levels, "levels/*/*.txt")->Name("ListingTwoLevels/Project")->Unit(benchmark::kMicrosecond);
BENCHMARK(TwoLevelsWithStd)->Name("ListingTwoLevels/std::filesystem")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ListWithGlob, levels, "levels/*/*.txt")->Name("ListingTwoLevels/glob")->Unit(benchmark::kMicrosecond);
