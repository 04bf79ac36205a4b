// The manipulators with an argument: their workers and the records that carry them.
#include <__lorb/manipulators.h>

namespace std {

basic_ios<char>& fprecise(basic_ios<char>& ios, long n) {
  ios.precision(n);
  return ios;
}

basic_ios<char>& fwidth(basic_ios<char>& ios, long n) {
  ios.width(n);
  return ios;
}

basic_ios<char>& fset(basic_ios<char>& ios, long mask) {
  ios.flags(ios.flags() | mask);
  return ios;
}

basic_ios<char>& freset(basic_ios<char>& ios, long mask) {
  ios.flags(ios.flags() & ~mask);
  return ios;
}

// Any base but 8, 10 and 16 clears the base bits and sets none.
basic_ios<char>& fsetbase(basic_ios<char>& ios, int base) {
  ios_base::fmtflags bits = base == 8    ? ios_base::oct
                            : base == 10 ? ios_base::dec
                            : base == 16 ? ios_base::hex
                                         : 0;
  ios.setf(bits, ios_base::basefield);
  return ios;
}

// The fill is stored as the char the argument converts to, not widened.
basic_ios<char>& ffill(basic_ios<char>& ios, int c) {
  ios.fill(static_cast<char>(c));
  return ios;
}

namespace {
template <class _Arg>
manip_record<_Arg> record(basic_ios<char>& (*worker)(basic_ios<char>&, _Arg), _Arg argument) {
  manip_record<_Arg> r = {worker, argument};
  return r;
}
} // namespace

manip_record<long> setprecision(long n) { return record(fprecise, n); }
manip_record<long> setw(long n) { return record(fwidth, n); }
manip_record<long> setiosflags(long mask) { return record(fset, mask); }
manip_record<long> resetiosflags(long mask) { return record(freset, mask); }
manip_record<int> setbase(int base) { return record(fsetbase, base); }
manip_record<int> setfill(int c) { return record(ffill, c); }

} // namespace std
