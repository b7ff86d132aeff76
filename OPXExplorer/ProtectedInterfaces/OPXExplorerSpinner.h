// OPXExplorerSpinner: while one lives, a person who waits longer than half a second sees that work goes on.
// { OPXExplorerSpinner spinner("reading"); LongWork(); }
//
// It turns on the standard error stream, and only when that is a terminal.
#ifndef OPXExplorerSpinner_H
#define OPXExplorerSpinner_H

#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

class OPXExplorerSpinner
{
public:
  explicit OPXExplorerSpinner(std::string i_text);
  OPXExplorerSpinner(const OPXExplorerSpinner&) = delete;
  OPXExplorerSpinner& operator=(const OPXExplorerSpinner&) = delete;
  // Nothing of it stays on the terminal.
  ~OPXExplorerSpinner();

private:
  void Turn();

  std::string _text;
  std::mutex _mutex;
  std::condition_variable _ended;
  bool _isEnded = false;
  std::thread _thread;
};

#endif
