// The decimal point of the C library's current locale: the one sprintf writes and sscanf reads.
#ifndef __LORB_C_DECIMAL_POINT_H
#define __LORB_C_DECIMAL_POINT_H

#include <__lorb/config.h>

namespace __vel {
__LORB_EXPORT char c_decimal_point();
}

#endif
