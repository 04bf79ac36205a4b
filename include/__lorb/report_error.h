// The plain error report: the text and a newline on standard error, then exit(1).
#ifndef __LORB_REPORT_ERROR_H
#define __LORB_REPORT_ERROR_H

#include <__lorb/config.h>

namespace std {
__LORB_EXPORT __LORB_NORETURN void __trelk_report_error(const char* text);
} // namespace std

#endif
