// The library's own users of the standard streams: an ios_base::Init built at start-up and
// recorded for destruction at exit, one in each of the two units that define the streams.
#ifndef __LORB_STANDARD_STREAMS_HOLD_H
#define __LORB_STANDARD_STREAMS_HOLD_H

#include <__lorb/ios_base.h>
#include <__lorb/runtime.h>

namespace __vel {

struct standard_streams_hold {
  union {
    void* alignment;
    char bytes[sizeof(std::ios_base::Init)];
  } storage;
  __lorb_destruction_node destruction;
  static void destroy(void* init, int flags);
};

// Builds the hold's Init and records it for destruction.
void hold_standard_streams(standard_streams_hold& hold);

} // namespace __vel

#endif
