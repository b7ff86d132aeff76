#include "OPXExplorerSpinner.h"

#include "ZELSysStandardStreams.h"

#include <chrono>
#include <utility>

namespace
{
constexpr std::chrono::milliseconds patience(500);
constexpr std::chrono::milliseconds step(100);
} // namespace

OPXExplorerSpinner::OPXExplorerSpinner(std::string i_text) : _text(std::move(i_text))
{
  if (ZELSysIsStandardErrorTerminal())
    _thread = std::thread(&OPXExplorerSpinner::Turn, this);
}

OPXExplorerSpinner::~OPXExplorerSpinner()
{
  if (!_thread.joinable())
    return;
  {
    const std::lock_guard<std::mutex> lock(_mutex);
    _isEnded = true;
  }
  _ended.notify_one();
  _thread.join();
}

void OPXExplorerSpinner::Turn()
{
  const auto isEnded = [this] { return _isEnded; };
  std::unique_lock<std::mutex> lock(_mutex);
  if (_ended.wait_for(lock, patience, isEnded))
    return;
  std::size_t turns = 0;
  do
    ZELSysWriteStandardError(std::string("\r") + "|/-\\"[turns++ % 4] + " " + _text);
  while (!_ended.wait_for(lock, step, isEnded));
  ZELSysWriteStandardError("\r" + std::string(_text.size() + 2, ' ') + "\r");
}
