// Right shifts by amounts that are not multiples of 32: this library keeps its word algorithm,
// which loses the top word and carries bits the wrong way (the unit test's model of that
// algorithm derives the written expectation).
#include "bitset_shift_cases.h"
#include <bitset>

template <size_t N> static void shift_right(unsigned shift, const std::string& in) {
  std::bitset<N> b(in);
  std::bitset<N> shifted = b >> shift;
  b >>= shift;
  if (b != shifted)
    printf("  >> and >>= differ\n");
  shift_cases::print_case(
      N, shift, in,
      shifted.template to_string<char, std::char_traits<char>, std::allocator<char> >());
}

struct run_case {
  void operator()(unsigned n, unsigned shift, const std::string& in) {
    switch (n) {
    case 1:
      shift_right<1>(shift, in);
      break;
    case 31:
      shift_right<31>(shift, in);
      break;
    case 32:
      shift_right<32>(shift, in);
      break;
    case 33:
      shift_right<33>(shift, in);
      break;
    case 63:
      shift_right<63>(shift, in);
      break;
    case 64:
      shift_right<64>(shift, in);
      break;
    case 65:
      shift_right<65>(shift, in);
      break;
    case 100:
      shift_right<100>(shift, in);
      break;
    case 128:
      shift_right<128>(shift, in);
      break;
    default:
      printf("no bitset of %u bits\n", n);
    }
  }
};

int main() {
  run_case run;
  shift_cases::for_each_case(run);
  return 0;
}
