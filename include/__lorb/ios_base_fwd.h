// The part of std::ios_base that must exist before the class: its event type and callback type.
#ifndef __LORB_IOS_BASE_FWD_H
#define __LORB_IOS_BASE_FWD_H

#include <__lorb/config.h>

namespace std {
class __LORB_EXPORT ios_base;
}

namespace __vel {
// std::ios_base derives from this holder, so std::ios_base::event, erase_event and imbue_event
// name these; a nested enum cannot be declared ahead of its class any other way.
struct __LORB_EXPORT ios_base_events {
  enum event { erase_event = 0, imbue_event = 1 };
};

// The type of a callback given to std::ios_base::register_callback.
typedef void (*ios_event_callback)(ios_base_events::event, std::ios_base&, int);
} // namespace __vel

#endif
