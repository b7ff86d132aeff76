#include "ZELSYPCheck.h"

#include "ZELSYPDefaultCheckFailureHandler.h"
#include "ZELSYPInstalledHandler.h"

#include <cstdio>
#include <cstring>
#include <memory>
#include <new>

namespace
{
ZELSYPCheckFailureHandler* NewDefaultHandler() noexcept
{
  ZELSYPCheckFailureHandler* pHandler = new (std::nothrow) ZELSYPDefaultCheckFailureHandler;
  if (!pHandler) // Kept: no line end here.
    std::fprintf(stderr, "** INTERNAL ERROR in %s %d, failed to create the default handler", __FILE_NAME__, __LINE__);
  return pHandler;
}

// The installed handler, marked as busy; null when there is none to report to.
ZELSYPCheckFailureHandler* MarkHandler()
{
  ZELSYPInstalledHandler installed(__FILE_NAME__, __LINE__);
  if (!installed.IsLoaded())
    return nullptr;
  if (!installed.Get())
    (void)installed.Exchange(NewDefaultHandler());
  if (installed.Get())
    installed.Get()->AddRefAndMark();
  return installed.Get();
}

// i_format takes one text. An expression that finds no memory for its message is reported as it is.
void FormatAndFail(const char* i_format, const char* i_expression, const char* i_file, int i_line, const char* i_details)
{
  const char* expression = i_expression ? i_expression : "";
  const std::size_t size = std::strlen(expression) + 100;
  const std::unique_ptr<char[]> message(new (std::nothrow) char[size]());
  if (!message || std::snprintf(message.get(), size, i_format, expression) < 0)
    std::fprintf(stderr, "** INTERNAL ERROR in %s %d\n", __FILE_NAME__, __LINE__);
  CheckFailure__(message ? message.get() : expression, i_file, i_line, i_details);
}
} // namespace

void CheckFailure__(const char* i_message, const char* i_file, int i_line, const char* i_details) noexcept
{
  ZELSYPCheckFailureHandler* pHandler = MarkHandler();
  if (!pHandler)
    return;
  pHandler->HandleFailure(i_message, i_file, i_line, i_details);
  pHandler->ReleaseAndUnmark();
}

void Check_TRUE_Failed__(const char* i_expression, const char* i_file, int i_line, const char* i_details) noexcept
{
  FormatAndFail("boolean %s is FALSE", i_expression, i_file, i_line, i_details);
}

void Check_Pointer_Failed__(const char* i_expression, const char* i_file, int i_line, const char* i_details) noexcept
{
  FormatAndFail("pointer %s is NULL", i_expression, i_file, i_line, i_details);
}

void Check_Handler_Failed__(const char* i_expression, const char* i_file, int i_line, const char* i_details) noexcept
{
  FormatAndFail("handler %s is NULL_var", i_expression, i_file, i_line, i_details);
}
