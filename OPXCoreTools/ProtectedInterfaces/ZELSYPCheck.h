// Checks: preconditions in one line, reported to the installed failure handler when they do not hold.
// if (!ZELSYP_CHECK_POINTER(i_pEvent)) return 0;
//
// Each macro is an expression of type bool: true when the check holds, which costs one predicted branch. The report
// names the expression as written, the bare file name and the line. The _DETAILS forms add a text; the _AT forms take
// the line, for checks whose line users rely on when they hide a check.
#ifndef ZELSYPCheck_H
#define ZELSYPCheck_H

#include "OPXCoreToolsExport.h"

// The targets of the macros. Any thread. They return nothing and never throw. i_details may be null. Marked as cold, so
// that compilers move the report out of the way of a check that holds.
// Reports i_message as it is.
[[gnu::cold]] OPXCORETOOLS_EXPORT void CheckFailure__(const char* i_message, const char* i_file, int i_line,
                                                      const char* i_details) noexcept;
// Reports "boolean %s is FALSE".
[[gnu::cold]] OPXCORETOOLS_EXPORT void Check_TRUE_Failed__(const char* i_expression, const char* i_file, int i_line,
                                                           const char* i_details) noexcept;
// Reports "pointer %s is NULL".
[[gnu::cold]] OPXCORETOOLS_EXPORT void Check_Pointer_Failed__(const char* i_expression, const char* i_file, int i_line,
                                                              const char* i_details) noexcept;
// Reports "handler %s is NULL_var".
[[gnu::cold]] OPXCORETOOLS_EXPORT void Check_Handler_Failed__(const char* i_expression, const char* i_file, int i_line,
                                                              const char* i_details) noexcept;

#define ZELSYP_CHECK_REPORT(holds, report, text, line, details)                                                                            \
  (__builtin_expect(static_cast<bool>(holds), true) || (report(text, __FILE_NAME__, line, details), false))

#define ZELSYP_CHECK_TRUE(expr) ZELSYP_CHECK_REPORT(expr, Check_TRUE_Failed__, #expr, __LINE__, nullptr)
#define ZELSYP_CHECK_TRUE_DETAILS(expr, details) ZELSYP_CHECK_REPORT(expr, Check_TRUE_Failed__, #expr, __LINE__, details)
#define ZELSYP_CHECK_TRUE_AT(expr, line) ZELSYP_CHECK_REPORT(expr, Check_TRUE_Failed__, #expr, line, nullptr)

#define ZELSYP_CHECK_POINTER(p) ZELSYP_CHECK_REPORT((p) != nullptr, Check_Pointer_Failed__, #p, __LINE__, nullptr)
#define ZELSYP_CHECK_POINTER_DETAILS(p, details) ZELSYP_CHECK_REPORT((p) != nullptr, Check_Pointer_Failed__, #p, __LINE__, details)
#define ZELSYP_CHECK_POINTER_AT(p, line) ZELSYP_CHECK_REPORT((p) != nullptr, Check_Pointer_Failed__, #p, line, nullptr)

// A handler is a smart pointer that compares with null.
#define ZELSYP_CHECK_HANDLER(h) ZELSYP_CHECK_REPORT((h) != nullptr, Check_Handler_Failed__, #h, __LINE__, nullptr)
#define ZELSYP_CHECK_HANDLER_DETAILS(h, details) ZELSYP_CHECK_REPORT((h) != nullptr, Check_Handler_Failed__, #h, __LINE__, details)
#define ZELSYP_CHECK_HANDLER_AT(h, line) ZELSYP_CHECK_REPORT((h) != nullptr, Check_Handler_Failed__, #h, line, nullptr)

#endif
