// The second of the library's two ios_base::Init objects.
#include <__lorb/standard_streams_hold.h>

namespace {
__vel::standard_streams_hold __trelk_ios_init;
struct holder {
  holder() { __vel::hold_standard_streams(__trelk_ios_init); }
} holds_standard_streams;
} // namespace
