// faulty_host CASE ARGUMENT: fails checks in a program that stands in for the parts of the host, of the C library and of
// the debugger services that the checks call, so that one of them can be out of order.
//
// A library's calls reach a function of the same name in the program only where the loader looks names up in the program
// first. On Windows each call is bound to the library that it was linked with.
#include "FailureHandlerInstaller.h"
#include "OPXCoreServices.h"
#include "ZELBasicStackTrace.h"
#include "ZELEvent.h"
#include "ZELGetFunctionAddress.h"
#include "ZELSYPCheck.h"
#include "ZELSYPCheckFailureHandler.h"
#include "ZELSysSimpleHashTable.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>

namespace
{
bool anythingGetsMemory = true;
bool objectsGetMemory = true;
bool arraysGetMemory = true;
bool textsAreFormatted = true;
bool eventsAreMade = true;
bool lookUpFindsMemory = true;
// 0: the element is in the table already.
int insertAnswer = -1;
bool tablesPassNullKeys = false;
bool tablesPrintHashes = false;
// Below 0: there is no panel.
int panelAnswer = -1;

int AnswerAsThePanel(const char*, const char*, int, const char*)
{
  return panelAnswer;
}
} // namespace

void* operator new(std::size_t i_bytes)
{
  void* const pMemory = anythingGetsMemory ? std::malloc(i_bytes) : nullptr;
  return pMemory ? pMemory : throw std::bad_alloc();
}

void* operator new[](std::size_t i_bytes)
{
  return ::operator new(i_bytes);
}

void operator delete(void* i_pMemory) noexcept
{
  std::free(i_pMemory);
}

void operator delete(void* i_pMemory, std::size_t) noexcept
{
  std::free(i_pMemory);
}

void operator delete[](void* i_pMemory) noexcept
{
  std::free(i_pMemory);
}

void operator delete[](void* i_pMemory, std::size_t) noexcept
{
  std::free(i_pMemory);
}

void* operator new(std::size_t i_bytes, const std::nothrow_t&) noexcept
{
  return anythingGetsMemory && objectsGetMemory ? std::malloc(i_bytes) : nullptr;
}

void* operator new[](std::size_t i_bytes, const std::nothrow_t&) noexcept
{
  return anythingGetsMemory && arraysGetMemory ? std::malloc(i_bytes) : nullptr;
}

// Out of order, it has written a part of the text when it fails.
extern "C" int snprintf(char* o_text, std::size_t i_size, const char* i_format, ...) noexcept
{
  std::va_list values;
  va_start(values, i_format);
  const int length = std::vsnprintf(o_text, textsAreFormatted ? i_size : 12, i_format, values);
  va_end(values);
  return textsAreFormatted ? length : -1;
}

ZELEvent* CreateZELEvent(int i_signalled)
{
  return eventsAreMade ? new ZELEvent(i_signalled != 0) : nullptr;
}

// The tables of this program take nothing and find nothing.
int ZELSysSimpleHashTable::Insert(void*)
{
  return insertAnswer;
}

void* ZELSysSimpleHashTable::Locate(const void* i_element) const
{
  if (tablesPassNullKeys)
    std::printf("%d, %d, %d, %d\n", _hash(nullptr), _compare(i_element, nullptr), _compare(nullptr, i_element), _compare(nullptr, nullptr));
  if (tablesPrintHashes)
    std::printf("%d\n", _hash(i_element));
  return nullptr;
}

ZELFunctionAddress ZELGetFunctionAddress(const char* i_function, const char* i_library, const char* i_alias, int i_version, int i_load,
                                         int i_report)
{
  std::printf("looked up %s, %s, %s, %d, %d, %d\n", i_function, i_library, i_alias ? i_alias : "null", i_version, i_load, i_report);
  if (!lookUpFindsMemory)
    throw std::bad_alloc();
  return panelAnswer < 0 ? nullptr : reinterpret_cast<ZELFunctionAddress>(&AnswerAsThePanel);
}

// The frames of this program are what was asked for.
void ZELBasicStackTrace::Print(std::FILE* io_stream, int i_maximum, int i_skip) const
{
  if (GetFrameCount() > 0)
    std::fprintf(io_stream, " 0# at most %d without the first %d\n", i_maximum, i_skip);
}

// A debugger that always continues, so that no failure ends the process.
bool OPXCoreServices::IsDebuggerPresent()
{
  return true;
}

void OPXCoreServices::DebugBreak()
{
  std::puts("break");
}

namespace
{
class PrintingHandler : public ZELSYPCheckFailureHandler
{
public:
  void HandleFailure(const char* i_message, const char* i_file, int i_line, const char*) override
  {
    std::printf("%s, %s, %d\n", i_message, i_file, i_line);
  }
};

void InstallPrintingHandler()
{
  ZELSYPCheckFailureHandler* const pHandler = new PrintingHandler;
  FailureHandlerInstaller::SetFailureHandler(pHandler);
  pHandler->Release();
}

void FailOnce(const char*)
{
  CheckFailure__("message", "Some.cpp", 12, nullptr);
}

// Tells whether this program's operators are the ones that are called: a sanitizer's runtime may keep its own.
void AskForMemory(const char*)
{
  // Not by name: the compiler would put the operator above in the call's place.
  void* (*volatile allocate)(std::size_t, const std::nothrow_t&) = &::operator new;
  objectsGetMemory = false;
  void* const pMemory = allocate(1, std::nothrow);
  objectsGetMemory = true;
  std::puts(pMemory ? "granted" : "refused");
  ::operator delete(pMemory);
}

void FailWithoutMemoryForTheHandler(const char*)
{
  objectsGetMemory = false;
  FailOnce(nullptr);
  objectsGetMemory = true;
}

void FailAnExpression(const char*)
{
  InstallPrintingHandler();
  Check_Pointer_Failed__("i_pNode", "Some.cpp", 12, nullptr);
}

void FailWithoutMemoryForTheMessage(const char*)
{
  arraysGetMemory = false;
  FailAnExpression(nullptr);
  arraysGetMemory = true;
}

// The handler is there already: a panel answered its first failure.
void FailWithoutAnyMemory(const char* i_panelAnswer)
{
  panelAnswer = 1;
  FailOnce(nullptr);
  panelAnswer = std::atoi(i_panelAnswer);
  anythingGetsMemory = false;
  FailOnce(nullptr);
  anythingGetsMemory = true;
}

void FailToLookThePanelUp(const char*)
{
  lookUpFindsMemory = false;
  FailOnce(nullptr);
  FailOnce(nullptr);
}

void FailWithoutFormatting(const char*)
{
  textsAreFormatted = false;
  FailAnExpression(nullptr);
}

void FailWithoutAnEvent(const char*)
{
  eventsAreMade = false;
  InstallPrintingHandler();
  FailOnce(nullptr);
}

void WaitWithoutAnEvent(const char*)
{
  eventsAreMade = false;
  PrintingHandler* const pHandler = new PrintingHandler;
  pHandler->WaitForFreeEvent();
  pHandler->Release();
}

void HideTwice(const char*)
{
  panelAnswer = 2;
  FailOnce(nullptr);
  FailOnce(nullptr);
}

void HideWhatIsHiddenMeanwhile(const char*)
{
  insertAnswer = 0;
  panelAnswer = 2;
  FailOnce(nullptr);
}

void PassNullKeys(const char*)
{
  tablesPassNullKeys = true;
  panelAnswer = 1;
  FailOnce(nullptr);
}

void HashTheKeyOfLineTwelve(const char* i_file)
{
  tablesPrintHashes = true;
  panelAnswer = 1;
  CheckFailure__("message", i_file, 12, nullptr);
}

void FailInThreeHandlers(const char* i_panelAnswer)
{
  panelAnswer = std::atoi(i_panelAnswer);
  for (int handler = 0; handler < 3; ++handler)
  {
    FailOnce(nullptr);
    FailureHandlerInstaller::SetFailureHandler(nullptr);
  }
}

struct Case
{
  const char* name;
  void (*run)(const char* i_argument);
};
const Case cases[] = {{"AskForMemory", &AskForMemory},
                      {"FailOnce", &FailOnce},
                      {"FailWithoutMemoryForTheHandler", &FailWithoutMemoryForTheHandler},
                      {"FailWithoutMemoryForTheMessage", &FailWithoutMemoryForTheMessage},
                      {"FailWithoutAnyMemory", &FailWithoutAnyMemory},
                      {"FailToLookThePanelUp", &FailToLookThePanelUp},
                      {"FailWithoutFormatting", &FailWithoutFormatting},
                      {"FailWithoutAnEvent", &FailWithoutAnEvent},
                      {"WaitWithoutAnEvent", &WaitWithoutAnEvent},
                      {"HideTwice", &HideTwice},
                      {"HideWhatIsHiddenMeanwhile", &HideWhatIsHiddenMeanwhile},
                      {"PassNullKeys", &PassNullKeys},
                      {"HashTheKeyOfLineTwelve", &HashTheKeyOfLineTwelve},
                      {"FailInThreeHandlers", &FailInThreeHandlers}};
} // namespace

int main(int argc, char** argv)
{
  for (const Case& known : cases)
    if (argc == 3 && std::strcmp(known.name, argv[1]) == 0)
    {
      known.run(argv[2]);
      std::puts("went on");
      return 0;
    }
  return 127;
}
