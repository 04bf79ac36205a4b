// The manipulators without an argument: each sets or clears format flags and returns the stream.
#ifndef __LORB_IOS_MANIPULATORS_H
#define __LORB_IOS_MANIPULATORS_H

#include <__lorb/ios_base.h>

namespace std {

#define __LORB_FLAG_MANIPULATOR(name, on, mask)                                                    \
  inline ios_base& name(ios_base& str) {                                                           \
    str.setf(on, mask);                                                                            \
    return str;                                                                                    \
  }
#define __LORB_FLAG_SWITCH(name, flag)                                                             \
  __LORB_FLAG_MANIPULATOR(name, ios_base::flag, ios_base::flag)                                    \
  __LORB_FLAG_MANIPULATOR(no##name, 0, ios_base::flag)

__LORB_FLAG_SWITCH(boolalpha, boolalpha)
__LORB_FLAG_SWITCH(showbase, showbase)
__LORB_FLAG_SWITCH(showpoint, showpoint)
__LORB_FLAG_SWITCH(showpos, showpos)
__LORB_FLAG_SWITCH(skipws, skipws)
__LORB_FLAG_SWITCH(uppercase, uppercase)
__LORB_FLAG_SWITCH(unitbuf, unitbuf)
__LORB_FLAG_MANIPULATOR(internal, ios_base::internal, ios_base::adjustfield)
__LORB_FLAG_MANIPULATOR(left, ios_base::left, ios_base::adjustfield)
__LORB_FLAG_MANIPULATOR(right, ios_base::right, ios_base::adjustfield)
__LORB_FLAG_MANIPULATOR(dec, ios_base::dec, ios_base::basefield)
__LORB_FLAG_MANIPULATOR(hex, ios_base::hex, ios_base::basefield)
__LORB_FLAG_MANIPULATOR(oct, ios_base::oct, ios_base::basefield)
__LORB_FLAG_MANIPULATOR(fixed, ios_base::fixed, ios_base::floatfield)
__LORB_FLAG_MANIPULATOR(scientific, ios_base::scientific, ios_base::floatfield)

#undef __LORB_FLAG_SWITCH
#undef __LORB_FLAG_MANIPULATOR

} // namespace std

#endif
