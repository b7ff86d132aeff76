// Explorer: 1,000 rows of a directory of 100,000 entries, sorted by name, from the request's text to the answer's,
// against listing that directory once: names and kinds, by readdir and by std::filesystem.
//
// ExplorerFirstBlock    The first rows asked of a new source: the directory is read, and its entries are sorted.
// ExplorerSecondBlock   The next rows of the same source, while the directory is unchanged.
// ExplorerMemory        The program itself, started and asked for both blocks by a shell: the most memory it ever had
//                       resident, in bytes.
#include "OPXExplorerDirectorySource.h"
#include "OPXTreeSession.h"
#include "ZELProcess.h"

#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <filesystem>
#include <fstream>
#include <string>
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
      std::ofstream(_path / ("document" + std::to_string(number) + ".txt"));
    // The source trusts what it remembers only when the directory changed some time ago.
    std::this_thread::sleep_for(std::chrono::seconds(3));
  }
  ~Directory() { fs::remove_all(_path); }

  const std::string& Path() const { return _path.native(); }

private:
  fs::path _path;
};

const std::string& ThePath()
{
  static const Directory directory;
  return directory.Path();
}

std::string AskForRows(int i_first)
{
  return R"({"jsonrpc":"2.0","id":1,"method":"tree/rows","params":{"groupKeys":[],"startRow":)" + std::to_string(i_first) +
         R"(,"endRow":)" + std::to_string(i_first + 1000) + R"(,"sortModel":[{"dataIndex":"name","sort":"asc"}]}})";
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
BENCHMARK(AnswerSecondBlock)->Name("ExplorerSecondBlock/Project")->Unit(benchmark::kMillisecond);
BENCHMARK(ListWithReaddir)->Name("ExplorerSecondBlock/readdir")->Unit(benchmark::kMillisecond);
BENCHMARK(MeasureMemory)->Name("ExplorerMemory/Project")->Unit(benchmark::kMillisecond)->Iterations(1);
