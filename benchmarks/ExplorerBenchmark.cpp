// Explorer: 1,000 rows of a directory of 100,000 entries, from the request's text to the answer's, against listing that
// directory once by readdir and by std::filesystem: names and kinds, and sizes and times where the order needs them.
//
// ExplorerFirstBlock       The first rows by name asked of a new source: the directory is read, and its entries are sorted.
// ExplorerFirstBlockBySize The same by size, for which each entry is asked for its size and time.
// ExplorerRefreshBySize    The first rows by size asked of the same source again, which asks each entry anew.
// ExplorerSecondBlock      The next rows by name of the same source, while the directory is unchanged.
// ExplorerMemory           The program itself, started and asked for both blocks by a shell: the most memory it ever had
//                          resident, in bytes.
//
// An order by size or time is mostly system calls, one for each entry, which is why all columns of an order share what they
// answer (by size and then by time: 155 ms in place of 307). By time alone it costs what it does by size.
//
// Tried and dropped: asking in the order of the inodes, 8 % less of the calls' time, sorting not included, for which each
// entry would have to keep its number; statx for the two fields alone, without synchronizing, which costs what fstatat does.
#include "OPXExplorerDirectorySource.h"
#include "OPXTreeSession.h"
#include "ZELProcess.h"

#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/stat.h>
#include <thread>

namespace fs = std::filesystem;

namespace
{
constexpr int s_entries = 100'000;

// The directory of all cases, made once and gone with the program.
class Directory
{
public:
  Directory() : _path(fs::temp_directory_path() / ("opx-explorer-" + std::to_string(ZELGetProcessId())))
  {
    fs::create_directories(_path);
    for (int number = 0; number < s_entries; ++number)
      AddFile(number);
    // The source trusts what it remembers only when the directory changed some time ago.
    std::this_thread::sleep_for(std::chrono::seconds(3));
  }
  ~Directory() { fs::remove_all(_path); }

  const std::string& Path() const { return _path.native(); }

private:
  // Sizes are in an order of their own; file 0 is the only one of size 0. No content takes room on the disk.
  void AddFile(int i_number)
  {
    const fs::path file = _path / ("document" + std::to_string(i_number) + ".txt");
    std::ofstream{file};
    fs::resize_file(file, static_cast<std::uintmax_t>(i_number) * 7919 % s_entries);
  }

  fs::path _path;
};

const std::string& ThePath()
{
  static const Directory directory;
  return directory.Path();
}

std::string AskForRows(int i_first, const std::string& i_sort = "name")
{
  return R"({"jsonrpc":"2.0","id":1,"method":"tree/rows","params":{"groupKeys":[],"startRow":)" + std::to_string(i_first) +
         R"(,"endRow":)" + std::to_string(i_first + 1000) + R"(,"sortModel":[{"dataIndex":")" + i_sort + R"(","sort":"asc"}]}})";
}

// What every way must find; a wrong answer is no measurement.
void ExpectRow(benchmark::State& io_state, const std::string& i_answer, int i_row)
{
  if (i_answer.find("\"document" + std::to_string(i_row) + ".txt\"") == std::string::npos)
    io_state.SkipWithError("the answer lacks a row");
}

void ExpectAll(benchmark::State& io_state, int i_files)
{
  if (i_files != s_entries)
    io_state.SkipWithError("found a wrong number of files");
}

ZELSysRootedDirectory OpenDirectory()
{
  return ZELSysRootedDirectory(ZELUnicodeString::FromUTF8(ThePath()));
}

void AnswerFirstBlock(benchmark::State& io_state)
{
  const std::string request = AskForRows(0);
  ThePath();
  for (auto _ : io_state)
  {
    OPXExplorerDirectorySource source(OpenDirectory());
    ExpectRow(io_state, OPXTreeSession(source).Answer(request), 999);
  }
}

// The file with the given size.
int GetNumber(int i_size)
{
  int number = 0;
  while (static_cast<long>(number) * 7919 % s_entries != i_size)
    ++number;
  return number;
}

void AnswerFirstBlockBySize(benchmark::State& io_state)
{
  const std::string request = AskForRows(0, "size");
  const int last = GetNumber(999);
  ThePath();
  for (auto _ : io_state)
  {
    OPXExplorerDirectorySource source(OpenDirectory());
    ExpectRow(io_state, OPXTreeSession(source).Answer(request), last);
  }
}

void AnswerRefreshBySize(benchmark::State& io_state)
{
  OPXExplorerDirectorySource source(OpenDirectory());
  const OPXTreeSession session(source);
  const std::string request = AskForRows(0, "size");
  const int last = GetNumber(999);
  ExpectRow(io_state, session.Answer(request), last);
  for (auto _ : io_state)
    ExpectRow(io_state, session.Answer(request), last);
}

void AnswerSecondBlock(benchmark::State& io_state)
{
  OPXExplorerDirectorySource source(OpenDirectory());
  const OPXTreeSession session(source);
  ExpectRow(io_state, session.Answer(AskForRows(0)), 0);
  const std::string request = AskForRows(1000);
  for (auto _ : io_state)
    ExpectRow(io_state, session.Answer(request), 1999);
}

void ListWithReaddir(benchmark::State& io_state)
{
  const std::string& path = ThePath();
  for (auto _ : io_state)
  {
    int files = 0;
    DIR* const pDirectory = opendir(path.c_str());
    while (const dirent* const pEntry = readdir(pDirectory))
      files += pEntry->d_type == DT_REG && pEntry->d_name[0] != '.' ? 1 : 0;
    closedir(pDirectory);
    ExpectAll(io_state, files);
  }
}

void ListWithStd(benchmark::State& io_state)
{
  const std::string& path = ThePath();
  for (auto _ : io_state)
  {
    int files = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator(path))
      files += entry.is_regular_file() && !entry.path().empty() ? 1 : 0;
    ExpectAll(io_state, files);
  }
}

// What both detailed listings must add up.
void ExpectSizes(benchmark::State& io_state, std::uintmax_t i_sizes)
{
  if (i_sizes != std::uintmax_t{s_entries} * (s_entries - 1) / 2)
    io_state.SkipWithError("found wrong sizes");
}

void ListDetailsWithReaddir(benchmark::State& io_state)
{
  const std::string& path = ThePath();
  for (auto _ : io_state)
  {
    std::uintmax_t sizes = 0;
    DIR* const pDirectory = opendir(path.c_str());
    while (const dirent* const pEntry = readdir(pDirectory))
    {
      struct stat status;
      if (fstatat(dirfd(pDirectory), pEntry->d_name, &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISREG(status.st_mode))
        sizes += static_cast<std::uintmax_t>(status.st_size);
    }
    closedir(pDirectory);
    ExpectSizes(io_state, sizes);
  }
}

void ListDetailsWithStd(benchmark::State& io_state)
{
  const std::string& path = ThePath();
  for (auto _ : io_state)
  {
    std::uintmax_t sizes = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator(path))
    {
      if (entry.is_regular_file())
        sizes += entry.file_size();
      benchmark::DoNotOptimize(entry.last_write_time());
    }
    ExpectSizes(io_state, sizes);
  }
}

// What the system counted for the running program after it answered, in bytes; 0 when it did not.
double ReadPeak()
{
  const std::string script = "coproc exec '" OPX_EXPLORER_PROGRAM "' --stdio '" + ThePath() + "'; for request in '" + AskForRows(0) +
                             "' '" + AskForRows(1000) + "'; do echo \"$request\" >&${COPROC[1]}; read -r answer <&${COPROC[0]}; done; " +
                             "[[ $answer == *document1999.txt* ]] && awk '/VmHWM/ { print $2 }' /proc/$COPROC_PID/status";
  setenv("OPX_SCRIPT", script.c_str(), 1);
  std::FILE* const pShell = popen("exec bash -c \"$OPX_SCRIPT\"", "r");
  double peak = 0;
  const bool isRead = std::fscanf(pShell, "%lf", &peak) == 1;
  pclose(pShell);
  return isRead ? peak * 1024 : 0;
}

void MeasureMemory(benchmark::State& io_state)
{
  double peak = 0;
  ThePath();
  for (auto _ : io_state)
    peak = ReadPeak();
  if (peak == 0)
    io_state.SkipWithError("the program did not answer");
  io_state.counters["bytes_each"] = peak;
}
} // namespace

BENCHMARK(AnswerFirstBlock)->Name("ExplorerFirstBlock/Project")->Unit(benchmark::kMillisecond);
BENCHMARK(ListWithReaddir)->Name("ExplorerFirstBlock/readdir")->Unit(benchmark::kMillisecond);
BENCHMARK(ListWithStd)->Name("ExplorerFirstBlock/std::filesystem")->Unit(benchmark::kMillisecond);
BENCHMARK(AnswerFirstBlockBySize)->Name("ExplorerFirstBlockBySize/Project")->Unit(benchmark::kMillisecond);
BENCHMARK(ListDetailsWithReaddir)->Name("ExplorerFirstBlockBySize/readdir and fstatat")->Unit(benchmark::kMillisecond);
BENCHMARK(ListDetailsWithStd)->Name("ExplorerFirstBlockBySize/std::filesystem")->Unit(benchmark::kMillisecond);
BENCHMARK(AnswerRefreshBySize)->Name("ExplorerRefreshBySize/Project")->Unit(benchmark::kMillisecond);
BENCHMARK(ListDetailsWithReaddir)->Name("ExplorerRefreshBySize/readdir and fstatat")->Unit(benchmark::kMillisecond);
BENCHMARK(AnswerSecondBlock)->Name("ExplorerSecondBlock/Project")->Unit(benchmark::kMillisecond);
BENCHMARK(ListWithReaddir)->Name("ExplorerSecondBlock/readdir")->Unit(benchmark::kMillisecond);
BENCHMARK(MeasureMemory)->Name("ExplorerMemory/Project")->Unit(benchmark::kMillisecond)->Iterations(1);
