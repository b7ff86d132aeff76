// ZELSYPInstalledHandler: one visit to the failure handler of the process, with the check lock held as long as it lives.
// ZELSYPInstalledHandler installed(__FILE_NAME__, __LINE__); if (!installed.IsLoaded()) return;
//
// No handler is run or released during a visit: a handler may fail checks, and those come here.
#ifndef ZELSYPInstalledHandler_H
#define ZELSYPInstalledHandler_H

class ZELSYPCheckFailureHandler;

class ZELSYPInstalledHandler
{
public:
  // The place is named when the library turns out to be unloaded, which is printed on the standard error stream.
  ZELSYPInstalledHandler(const char* i_file, int i_line);
  ~ZELSYPInstalledHandler();
  ZELSYPInstalledHandler(const ZELSYPInstalledHandler&) = delete;
  ZELSYPInstalledHandler& operator=(const ZELSYPInstalledHandler&) = delete;

  // False once the library is unloaded; there is no handler then, and none may be set.
  bool IsLoaded() const;
  // Borrowed; null when none is installed.
  ZELSYPCheckFailureHandler* Get() const;
  // Takes over the caller's reference on i_pHandler, gives the caller the one held on the handler that was installed.
  [[nodiscard]] ZELSYPCheckFailureHandler* Exchange(ZELSYPCheckFailureHandler* i_pHandler);
};

#endif
