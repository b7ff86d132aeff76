#include "ChildProcess.h"

#include <cerrno>
#include <chrono>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace
{
// One end for this process, one for the child. Both are closed when it goes, unless they were before.
struct Channel
{
  Channel()
  {
    // A socket, not a pipe: writing to a child that has gone can then be kept from raising a signal here.
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
      throw std::runtime_error("no channel to the child");
    fcntl(ends[0], F_SETFL, O_NONBLOCK);
  }
  Channel(const Channel&) = delete;
  Channel& operator=(const Channel&) = delete;
  ~Channel()
  {
    Close(0);
    Close(1);
  }

  int Own() const { return ends[0]; }
  int Child() const { return ends[1]; }
  void Close(int i_end)
  {
    if (ends[i_end] >= 0)
      close(ends[i_end]);
    ends[i_end] = -1;
  }

  int ends[2];
};

// Reads what is there; closes the channel at its end.
void ReadAvailable(Channel& io_channel, std::string& io_text)
{
  char block[65536];
  for (;;)
  {
    const ssize_t length = read(io_channel.Own(), block, sizeof(block));
    if (length == 0)
      io_channel.Close(0);
    if (length <= 0)
      return;
    io_text.append(block, static_cast<std::size_t>(length));
  }
}

// Writes what is taken now; closes the channel when nothing is left or nobody reads.
void WriteAvailable(Channel& io_channel, std::string_view& io_rest)
{
  while (!io_rest.empty())
  {
    const ssize_t length = send(io_channel.Own(), io_rest.data(), io_rest.size(), MSG_NOSIGNAL);
    if (length < 0 && errno == EAGAIN)
      return;
    io_rest.remove_prefix(length < 0 ? io_rest.size() : static_cast<std::size_t>(length));
  }
  io_channel.Close(0);
}

std::vector<std::string> Environment(const std::map<std::string, std::optional<std::string>>& i_changes)
{
  std::vector<std::string> texts;
  for (char** variable = environ; *variable; ++variable)
    if (i_changes.count(std::string(*variable, std::strcspn(*variable, "="))) == 0)
      texts.push_back(*variable);
  for (const auto& [name, value] : i_changes)
    if (value)
      texts.push_back(name + "=" + *value);
  return texts;
}

std::vector<char*> Pointers(std::vector<std::string>& io_texts)
{
  std::vector<char*> pointers;
  for (std::string& text : io_texts)
    pointers.push_back(text.data());
  pointers.push_back(nullptr);
  return pointers;
}

pid_t Start(const std::string& i_program, std::vector<std::string> i_arguments, std::vector<std::string> i_environment, int i_in, int i_out,
            int i_err)
{
  i_arguments.insert(i_arguments.begin(), i_program);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, i_in, STDIN_FILENO);
  posix_spawn_file_actions_adddup2(&actions, i_out, STDOUT_FILENO);
  posix_spawn_file_actions_adddup2(&actions, i_err, STDERR_FILENO);
  pid_t child = -1;
  const int failure =
      posix_spawn(&child, i_program.c_str(), &actions, nullptr, Pointers(i_arguments).data(), Pointers(i_environment).data());
  posix_spawn_file_actions_destroy(&actions);
  if (failure != 0)
    throw std::runtime_error(i_program + ": " + std::strerror(failure));
  return child;
}

class Deadline
{
public:
  explicit Deadline(double i_seconds)
      : _end(std::chrono::steady_clock::now() + std::chrono::milliseconds(static_cast<long long>(i_seconds * 1000)))
  {
  }

  int MillisecondsLeft() const
  {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(_end - std::chrono::steady_clock::now()).count();
    return left > 0 ? static_cast<int>(left) : 0;
  }

private:
  std::chrono::steady_clock::time_point _end;
};

void TakeEnd(pid_t i_child, ChildResult& io_result)
{
  int status = 0;
  waitpid(i_child, &status, 0);
  io_result.ended = WIFEXITED(status) && !io_result.timedOut;
  io_result.code = WIFEXITED(status) ? WEXITSTATUS(status) : WTERMSIG(status);
}
} // namespace

ChildProcess& ChildProcess::SearchLibrariesIn(const std::string& i_folder)
{
  const char* before = std::getenv("LD_LIBRARY_PATH");
  return Set("LD_LIBRARY_PATH", before ? i_folder + ":" + before : i_folder);
}

ChildResult ChildProcess::Run() const
{
  ChildResult result;
  Channel in, out, err;
  const pid_t child = Start(_program, _arguments, Environment(_environment), in.Child(), out.Child(), err.Child());
  for (Channel* pChannel : {&in, &out, &err})
    pChannel->Close(1);
  // The C library's own declaration (2.36) has no C linkage.
  const int end = static_cast<int>(syscall(SYS_pidfd_open, child, 0));
  const Deadline deadline(_seconds);
  std::string_view rest = _input;
  for (bool running = true; running;)
  {
    WriteAvailable(in, rest);
    pollfd watched[] = {{in.Own(), POLLOUT, 0}, {out.Own(), POLLIN, 0}, {err.Own(), POLLIN, 0}, {end, POLLIN, 0}};
    result.timedOut = poll(watched, 4, deadline.MillisecondsLeft()) == 0;
    // Its end comes first: what it wrote before is then read to the last byte.
    running = !result.timedOut && watched[3].revents == 0;
    ReadAvailable(out, result.out);
    ReadAvailable(err, result.err);
  }
  if (result.timedOut)
    kill(child, SIGKILL);
  close(end);
  TakeEnd(child, result);
  return result;
}

std::string ChildProcess::GetProgram()
{
  char path[PATH_MAX];
  const ssize_t length = readlink("/proc/self/exe", path, sizeof(path));
  return std::string(path, length > 0 ? static_cast<std::size_t>(length) : 0);
}

std::string ChildProcess::Beside(const std::string& i_name)
{
  return GetProgramFolder() + "/" + i_name;
}
