// std::bitset: every member against a bool-per-bit model over generated operations, the storage
// and its cleared top bits, the kept right-shift behaviour of the word algorithm (and the written
// expectation of the differential program that shows it), the stream operators, and every error.
#include "../differential/bitset_shift_cases.h"
#include "bitset_model.h"
#include "lorb_test.h"
#include <bitset>
#include <sstream>
#include <stdio.h>
#include <string>

namespace {

const char range_error[] = "out_of_range: Out of range exception occured.\n";
const char invalid_error[] = "invalid_argument: Invalid value in the string\n";
const char overflow_error[] = "overflow_error: Bitset can not be converted\n";

struct generator {
  unsigned seed;
  explicit generator(unsigned s) : seed(s) {}
  unsigned next() {
    seed = seed * 1103515245u + 12345u;
    return seed >> 8;
  }
  unsigned below(unsigned n) { return n ? next() % n : 0; }
};

std::string random_text(generator& g, unsigned n) {
  std::string text;
  for (unsigned i = 0; i < n; ++i)
    text += g.next() % 2 ? '1' : '0';
  return text;
}

template <size_t N> bool same(const std::bitset<N>& b, const bit_model& m) {
  return b.to_string() == m.text() && b.count() == m.count() && b.any() == (m.count() != 0);
}

// Random operations on a bitset and on the model side by side, checked after every step.
template <size_t N> void follow_the_model(unsigned seed, int steps) {
  generator g(seed);
  std::bitset<N> b;
  bit_model m(N);
  for (int step = 0; step < steps; ++step) {
    unsigned pos = g.below(N);
    unsigned shift = g.below(N + 3);
    std::string other_text = random_text(g, N);
    std::bitset<N> other(other_text);
    bit_model o = bit_model::from_text(N, other_text);
    unsigned op = g.below(14);
    switch (op) {
    case 0:
      b.set();
      for (unsigned i = 0; i < N; ++i)
        m.bits[i] = true;
      break;
    case 1:
      b.reset();
      m.clear();
      break;
    case 2:
      b.flip();
      for (unsigned i = 0; i < N; ++i)
        m.bits[i] = !m.bits[i];
      break;
    case 3:
      if (N) {
        int value = int(g.below(3));
        b.set(pos, value);
        m.bits[pos] = value != 0;
      }
      break;
    case 4:
      if (N) {
        b.reset(pos);
        m.bits[pos] = false;
      }
      break;
    case 5:
      if (N) {
        b.flip(pos);
        m.bits[pos] = !m.bits[pos];
      }
      break;
    case 6:
      b &= other;
      for (unsigned i = 0; i < N; ++i)
        m.bits[i] = m.bits[i] && o.bits[i];
      break;
    case 7:
      b |= other;
      for (unsigned i = 0; i < N; ++i)
        m.bits[i] = m.bits[i] || o.bits[i];
      break;
    case 8:
      b ^= other;
      for (unsigned i = 0; i < N; ++i)
        m.bits[i] = m.bits[i] != o.bits[i];
      break;
    case 9:
      b <<= shift;
      m = m.shifted_left(shift);
      break;
    case 10:
      b >>= shift;
      m = m.shifted_right_as_words(shift);
      break;
    case 11:
      b = ~b;
      for (unsigned i = 0; i < N; ++i)
        m.bits[i] = !m.bits[i];
      break;
    case 12:
      if (N) {
        b[pos] = other[pos];
        m.bits[pos] = o.bits[pos];
      }
      break;
    default:
      b = other;
      m = o;
      break;
    }
    if (!CHECK(same(b, m))) {
      printf("  N=%u step %d op %u pos %u shift %u\n  got  %s\n  want %s\n", unsigned(N), step, op,
             pos, shift, b.to_string().c_str(), m.text().c_str());
      return;
    }
  }
}

} // namespace

TEST(storage_is_one_word_per_32_bits_and_one_word_for_no_bits) {
  CHECK_EQ(sizeof(std::bitset<0>), 4u);
  CHECK_EQ(sizeof(std::bitset<1>), 4u);
  CHECK_EQ(sizeof(std::bitset<32>), 4u);
  CHECK_EQ(sizeof(std::bitset<33>), 8u);
  CHECK_EQ(sizeof(std::bitset<100>), 16u);
  CHECK_EQ(std::bitset<0>().size(), 0u);
  CHECK_EQ(std::bitset<100>().size(), 100u);
}

TEST(a_default_bitset_is_all_zero) {
  std::bitset<100> b;
  CHECK_EQ(b.count(), 0u);
  CHECK(b.none());
  CHECK(!b.any());
  CHECK_STR(std::bitset<5>().to_string().c_str(), "00000");
  CHECK(std::bitset<0>().none());
  CHECK_STR(std::bitset<0>().to_string().c_str(), "");
}

TEST(the_unsigned_long_constructor_keeps_the_bits_that_fit) {
  CHECK_STR(std::bitset<8>(0x1A5ul).to_string().c_str(), "10100101");
  CHECK_EQ(std::bitset<8>(0x1A5ul).to_ulong(), 0xA5ul);
  std::bitset<40> wide(0xFFFFFFFFul);
  CHECK_EQ(wide.count(), 32u);
  CHECK(!wide.test(32));
  CHECK_EQ(wide.to_ulong(), 0xFFFFFFFFul);
  CHECK_EQ(std::bitset<32>(0x80000001ul).to_ulong(), 0x80000001ul);
  CHECK_EQ(std::bitset<0>(7ul).count(), 0u);
  CHECK_EQ(std::bitset<0>(7ul).to_ulong(), 0ul);
}

TEST(the_string_constructor_reads_the_last_character_as_bit_0) {
  std::bitset<8> b(std::string("1101"));
  CHECK_EQ(b.to_ulong(), 13ul);
  CHECK_STR(b.to_string().c_str(), "00001101");
  std::bitset<70> wide(std::string("1") + std::string(69, '0'));
  CHECK(wide.test(69));
  CHECK_EQ(wide.count(), 1u);
}

TEST(the_string_constructor_takes_a_position_and_a_length) {
  std::string text("xx10110yy");
  CHECK_EQ(std::bitset<8>(text, 2, 5).to_ulong(), 22ul);
  CHECK_EQ(std::bitset<8>(std::string("0110"), 1).to_ulong(), 6ul);
  CHECK_EQ(std::bitset<8>(std::string("0110"), 1, 100).to_ulong(), 6ul);
  CHECK_EQ(std::bitset<8>(std::string("0110"), 4).to_ulong(), 0ul); // pos == size: no characters
  CHECK_EQ(std::bitset<8>(std::string("0110"), 0, 0).to_ulong(), 0ul);
}

TEST(the_string_constructor_uses_only_the_first_n_characters) {
  // Longer than the set: the leftmost N characters give the bits.
  CHECK_STR(std::bitset<4>(std::string("110100")).to_string().c_str(), "1101");
  CHECK_STR(std::bitset<0>(std::string("101")).to_string().c_str(), "");
}

TEST(set_reset_and_flip_return_the_set_itself) {
  std::bitset<40> b;
  CHECK(&b.set() == &b);
  CHECK_EQ(b.count(), 40u);
  CHECK(&b.reset(3) == &b);
  CHECK(!b.test(3));
  CHECK(&b.flip(3) == &b);
  CHECK(b.test(3));
  CHECK(&b.set(39, 0) == &b);
  CHECK(!b.test(39));
  CHECK(&b.flip() == &b);
  CHECK_EQ(b.count(), 1u);
  CHECK(b.test(39));
  CHECK(&b.reset() == &b);
  CHECK(b.none());
  b.set(5); // the value defaults to true
  b.set(6, 2);
  CHECK_EQ(b.to_ulong(), 0x60ul);
}

TEST(set_flip_and_complement_keep_the_bits_above_n_clear) {
  std::bitset<33> b;
  CHECK_EQ(b.set().count(), 33u);
  CHECK_EQ((~std::bitset<33>()).count(), 33u);
  CHECK_EQ(b.flip().count(), 0u);
  CHECK_EQ(b.flip().count(), 33u);
  std::bitset<5> small;
  CHECK_EQ(small.set().to_ulong(), 31ul);
  CHECK_EQ((~std::bitset<5>(2ul)).to_ulong(), 29ul);
  CHECK_EQ((std::bitset<5>(31ul) << 3).to_ulong(), 24ul);
  std::bitset<0> none;
  CHECK_EQ(none.set().count(), 0u);
  CHECK_EQ((~none).count(), 0u);
  CHECK(none.flip() == std::bitset<0>());
}

TEST(the_reference_reads_writes_and_flips_one_bit) {
  std::bitset<50> b;
  b[40] = true;
  CHECK(b.test(40));
  CHECK(b[40]);
  CHECK(!~b[40]);
  CHECK(~b[41]);
  b[41] = b[40];
  CHECK(b.test(41));
  b[40].flip();
  CHECK(!b.test(40));
  std::bitset<50>::reference r = b[41];
  r = false;
  CHECK(!b.test(41));
  CHECK(&(r = true) == &r);
  CHECK(&r.flip() == &r);
  CHECK(!b.test(41));
  const std::bitset<50>& c = b;
  b.set(7);
  CHECK(c[7]);
  CHECK(!c[8]);
}

TEST(to_ulong_returns_the_low_32_bits) {
  std::bitset<64> b(0x89ABCDEFul);
  CHECK_EQ(b.to_ulong(), 0x89ABCDEFul);
  CHECK_EQ(std::bitset<100>(std::string("101")).to_ulong(), 5ul);
  CHECK_EQ(std::bitset<1>(1ul).to_ulong(), 1ul);
}

TEST(to_string_has_every_spelling) {
  std::bitset<6> b(std::string("100110"));
  std::string full = b.to_string<char, std::char_traits<char>, std::allocator<char> >();
  std::string two = b.to_string<char, std::char_traits<char> >();
  std::string one = b.to_string<char>();
  CHECK_STR(full.c_str(), "100110");
  CHECK_STR(two.c_str(), "100110");
  CHECK_STR(one.c_str(), "100110");
  CHECK_STR(b.to_string().c_str(), "100110");
}

TEST(count_any_none_and_equality) {
  std::bitset<65> a(std::string("1") + std::string(63, '0') + "1"), b;
  CHECK_EQ(a.count(), 2u);
  CHECK(a.any());
  CHECK(!a.none());
  CHECK(a != b);
  b.set(64);
  b.set(0);
  CHECK(a == b);
  b.reset(64);
  CHECK(!(a == b));
  CHECK(std::bitset<0>() == std::bitset<0>());
}

TEST(the_non_member_operators_combine_two_sets) {
  std::bitset<40> a(std::string("1100") + std::string(36, '1'));
  std::bitset<40> b(std::string("1010") + std::string(36, '0'));
  CHECK_STR((a & b).to_string().substr(0, 4).c_str(), "1000");
  CHECK_EQ((a & b).count(), 1u);
  CHECK_EQ((a | b).count(), 39u);
  CHECK_EQ((a ^ b).count(), 38u);
  CHECK_EQ(a.count(), 38u); // the operands stay as they were
}

TEST(left_shifts_move_bits_up_and_drop_what_passes_n) {
  std::bitset<100> b(std::string("1011"));
  CHECK_EQ((b << 96).count(), 3u);
  CHECK(b.operator<<(96).test(99));
  CHECK((b << 100).none());
  CHECK((b << 1000).none());
  CHECK((b << 0) == b);
  std::bitset<100> c = b;
  CHECK(&(c <<= 33) == &c);
  CHECK(c.test(33) && c.test(34) && c.test(36) && c.count() == 3);
}

TEST(right_shifts_by_whole_words_agree_with_the_standard) {
  std::bitset<100> b;
  b.set(99);
  b.set(40);
  CHECK(b >> 32 == (std::bitset<100>().set(67).set(8)));
  CHECK(b >> 64 == std::bitset<100>().set(35));
  CHECK((b >> 100).none()); // n or more clears the set
  CHECK((b >> 1000).none());
  CHECK((b >> 0) == b);
}

TEST(right_shifts_by_part_of_a_word_keep_the_word_algorithm) {
  // Kept: a one-word set comes out empty, and the carry from the next word shifts right.
  CHECK((std::bitset<8>(0x80ul) >> 1).none());
  CHECK((std::bitset<32>(0xFFFFFFFFul) >> 4).none());
  std::bitset<64> b;
  b.set(4);  // word 0 = 0x10
  b.set(32); // word 1 = 0x1
  std::bitset<64> shifted = b >> 4;
  CHECK_EQ(shifted.count(), 1u);
  CHECK(shifted.test(0));
  CHECK(&(b >>= 4) == &b);
  CHECK(b == shifted);
  // Bit 99 of 100 shifted by 99 would be bit 0, but it sits in the top word, which is dropped.
  CHECK((std::bitset<100>().set(99) >> 99).none());
}

TEST(generated_operations_follow_the_model) {
  follow_the_model<0>(1, 40);
  follow_the_model<1>(2, 200);
  follow_the_model<31>(3, 200);
  follow_the_model<32>(4, 200);
  follow_the_model<33>(5, 200);
  follow_the_model<63>(6, 200);
  follow_the_model<64>(7, 200);
  follow_the_model<65>(8, 200);
  follow_the_model<100>(9, 200);
  follow_the_model<128>(10, 200);
}

namespace {
template <size_t N> void every_shift_follows_the_model(unsigned seed) {
  generator g(seed);
  for (unsigned shift = 0; shift <= N + 2; ++shift) {
    std::string text = random_text(g, N);
    std::bitset<N> b(text);
    bit_model m = bit_model::from_text(N, text);
    CHECK(same(b << shift, m.shifted_left(shift)));
    CHECK(same(b >> shift, m.shifted_right_as_words(shift)));
    if (shift % 32 == 0 || shift >= N) // there the word algorithm is the standard's shift
      CHECK(same(b >> shift, m.shifted_right(shift)));
  }
}

// Rebuilds what bitset_shift_right_diverges prints, from the model.
struct model_lines {
  std::string text;
  void operator()(unsigned n, unsigned shift, const std::string& in) {
    std::string out = bit_model::from_text(n, in).shifted_right_as_words(shift).text();
    char head[32];
    snprintf(head, sizeof head, "%u >> %u: ", n, shift);
    text += head + in + " -> " + out + "\n";
  }
};

std::string read_file(const char* path) {
  std::string content;
  FILE* f = fopen(path, "rb");
  if (!f)
    return content;
  char chunk[4096];
  size_t got;
  while ((got = fread(chunk, 1, sizeof chunk, f)) > 0)
    content.append(chunk, got);
  fclose(f);
  return content;
}
} // namespace

TEST(every_shift_of_every_size_follows_the_model) {
  every_shift_follows_the_model<1>(11);
  every_shift_follows_the_model<31>(12);
  every_shift_follows_the_model<32>(13);
  every_shift_follows_the_model<33>(14);
  every_shift_follows_the_model<63>(15);
  every_shift_follows_the_model<64>(16);
  every_shift_follows_the_model<65>(17);
  every_shift_follows_the_model<100>(18);
  every_shift_follows_the_model<128>(19);
}

TEST(the_written_right_shift_expectation_is_the_models) {
  model_lines lines;
  shift_cases::for_each_case(lines);
  std::string path = __FILE__;
  path = path.substr(0, path.rfind("/containers/")) +
         "/differential/bitset_shift_right_diverges.expected";
  std::string written = read_file(path.c_str());
  CHECK(written.size() > 0);
  CHECK(written == lines.text + "exit 0\n");
}

TEST(reading_takes_up_to_n_binary_digits) {
  std::istringstream in("  1011x");
  std::bitset<8> b(0xFFul);
  in >> b;
  CHECK_EQ(b.to_ulong(), 11ul);
  CHECK(!in.fail());
  CHECK(!in.eof());
  CHECK_EQ(in.get(), 'x');

  std::istringstream many("111111111");
  std::bitset<4> four;
  many >> four;
  CHECK_EQ(four.to_ulong(), 15ul);
  CHECK(!many.eof());
  std::string rest;
  many >> rest;
  CHECK_STR(rest.c_str(), "11111");
}

TEST(reading_to_the_end_sets_eofbit) {
  std::istringstream in("101");
  std::bitset<8> b;
  in >> b;
  CHECK_EQ(b.to_ulong(), 5ul);
  CHECK(in.eof());
  CHECK(!in.fail());
}

TEST(reading_no_digit_sets_failbit_and_keeps_the_set) {
  std::istringstream in("abc");
  std::bitset<8> b(3ul);
  in >> b;
  CHECK(in.fail());
  CHECK_EQ(b.to_ulong(), 3ul);
  in.clear();
  CHECK_EQ(in.get(), 'a');

  std::istringstream blank("   ");
  blank >> b;
  CHECK(blank.fail());
  CHECK(blank.eof());

  std::istringstream any("1");
  std::bitset<0> nothing;
  any >> nothing;
  CHECK(!any.fail()); // a set of no bits reads nothing and is done
}

TEST(writing_prints_the_string_form) {
  std::ostringstream out;
  out << std::bitset<6>(5ul) << ' ' << std::bitset<0>() << '|' << std::bitset<3>(7ul);
  CHECK_STR(out.str().c_str(), "000101 |111");
}

TEST(positions_out_of_range_end_the_program) {
  std::bitset<10> b;
  EXPECT_ABORT(b.set(10), range_error);
  EXPECT_ABORT(b.set(1000, 0), range_error);
  EXPECT_ABORT(b.reset(10), range_error);
  EXPECT_ABORT(b.flip(10), range_error);
  EXPECT_ABORT(b.test(10), range_error);
  std::bitset<0> empty;
  EXPECT_ABORT(empty.test(0), range_error);
  EXPECT_ABORT(empty.set(0), range_error);
}

TEST(a_string_position_past_the_end_ends_the_program) {
  EXPECT_ABORT(std::bitset<8>(std::string("01"), 3), range_error);
  EXPECT_ABORT(std::bitset<8>(std::string(""), 1, 0), range_error);
}

TEST(a_character_other_than_0_or_1_ends_the_program) {
  EXPECT_ABORT(std::bitset<8>(std::string("0120")), invalid_error);
  EXPECT_ABORT(std::bitset<8>(std::string("x1"), 0, 1), invalid_error);
  // Every character of the range is checked, also those past the N that are used.
  EXPECT_ABORT(std::bitset<2>(std::string("11 ")), invalid_error);
  // Characters outside [pos, pos + n) are not looked at.
  CHECK_EQ(std::bitset<4>(std::string("a10b"), 1, 2).to_ulong(), 2ul);
}

TEST(to_ulong_of_a_bit_from_32_up_ends_the_program) {
  EXPECT_ABORT(std::bitset<33>().set(32).to_ulong(), overflow_error);
  EXPECT_ABORT(std::bitset<64>().set(63).to_ulong(), overflow_error);
  EXPECT_ABORT(std::bitset<100>().set().to_ulong(), overflow_error);
}
