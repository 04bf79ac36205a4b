// The manipulators: each factory's record (worker and argument), each worker's effect, the
// stream operator that applies a record, and the argument-free flag manipulators.
#include "lorb_test.h"
#include "stream_test_support.h"
#include <iomanip>
#include <ostream>

typedef std::ios_base base;
typedef std::manip_record<long> long_record;
typedef std::manip_record<int> int_record;

TEST(a_record_holds_the_worker_then_the_argument) {
  long_record r = std::setw(3);
  CHECK_EQ(offset_in(r, r.worker), 0L);
  CHECK_EQ(offset_in(r, r.argument), 4L);
  CHECK_EQ(sizeof(long_record), 8u);
  int_record f = std::setfill('*');
  CHECK_EQ(offset_in(f, f.worker), 0L);
  CHECK_EQ(offset_in(f, f.argument), 4L);
  CHECK_EQ(sizeof(int_record), 8u);
}

TEST(setprecision_stores_fprecise_and_its_argument) {
  long_record r = std::setprecision(17);
  CHECK(r.worker == &std::fprecise);
  CHECK_EQ(r.argument, 17L);
}

TEST(setw_stores_fwidth_and_its_argument) {
  long_record r = std::setw(-4);
  CHECK(r.worker == &std::fwidth);
  CHECK_EQ(r.argument, -4L);
}

TEST(setiosflags_stores_fset_and_its_mask) {
  long_record r = std::setiosflags(base::showpos | base::uppercase);
  CHECK(r.worker == &std::fset);
  CHECK_EQ(r.argument, base::showpos | base::uppercase);
}

TEST(resetiosflags_stores_freset_and_its_mask) {
  long_record r = std::resetiosflags(base::skipws);
  CHECK(r.worker == &std::freset);
  CHECK_EQ(r.argument, base::skipws);
}

TEST(setbase_stores_fsetbase_and_the_base) {
  int_record r = std::setbase(16);
  CHECK(r.worker == &std::fsetbase);
  CHECK_EQ(r.argument, 16);
}

TEST(setfill_stores_ffill_and_the_int_unconverted) {
  int_record r = std::setfill(300);
  CHECK(r.worker == &std::ffill);
  CHECK_EQ(r.argument, 300);
}

TEST(fprecise_sets_the_precision_and_returns_the_stream) {
  test_stream s(0);
  CHECK(&std::fprecise(s, 11) == &s);
  CHECK_EQ(s.precision(), 11L);
}

TEST(fwidth_sets_the_width_and_returns_the_stream) {
  test_stream s(0);
  CHECK(&std::fwidth(s, 25) == &s);
  CHECK_EQ(s.width(), 25L);
}

TEST(fset_ors_the_mask_into_the_flags) {
  test_stream s(0);
  CHECK(&std::fset(s, base::hex | base::showbase) == &s);
  // Nothing is cleared: dec stays beside hex.
  CHECK_EQ(s.flags(), base::skipws | base::dec | base::hex | base::showbase);
}

TEST(freset_clears_the_mask_from_the_flags) {
  test_stream s(0);
  s.flags(base::skipws | base::dec | base::left | base::showpoint);
  CHECK(&std::freset(s, base::dec | base::left | base::unitbuf) == &s);
  CHECK_EQ(s.flags(), base::skipws | base::showpoint);
}

TEST(setbase_8_sets_oct_alone_in_basefield) {
  test_stream s(0);
  s.flags(base::basefield | base::showbase);
  CHECK(&std::fsetbase(s, 8) == &s);
  CHECK_EQ(s.flags(), base::oct | base::showbase);
}

TEST(setbase_10_sets_dec_alone_in_basefield) {
  test_stream s(0);
  s.flags(base::hex | base::oct | base::fixed);
  std::fsetbase(s, 10);
  CHECK_EQ(s.flags(), base::dec | base::fixed);
}

TEST(setbase_16_sets_hex_alone_in_basefield) {
  test_stream s(0);
  s.flags(base::basefield | base::left);
  std::fsetbase(s, 16);
  CHECK_EQ(s.flags() & base::basefield, base::hex);
  CHECK_EQ(s.flags(), base::hex | base::left);
}

TEST(setbase_2_leaves_no_bit_of_basefield_set) {
  test_stream s(0);
  s.flags(base::basefield | base::uppercase);
  std::fsetbase(s, 2);
  CHECK_EQ(s.flags() & base::basefield, 0L);
  CHECK_EQ(s.flags(), base::uppercase);
}

TEST(setbase_0_leaves_no_bit_of_basefield_set) {
  test_stream s(0);
  std::fsetbase(s, 0);
  CHECK_EQ(s.flags(), base::skipws);
}

TEST(setfill_300_stores_the_char_300_converts_to) {
  test_stream s(0);
  CHECK(&std::ffill(s, 300) == &s);
  CHECK_EQ(s.fill(), ',');
  CHECK_EQ(static_cast<int>(s.fill()), 44);
}

TEST(ffill_stores_the_character_without_widening_it) {
  test_stream s(0);
  s.imbue(locale_with_ctype(new shifting_ctype));
  CHECK_EQ(s.widen('a'), 'b'); // the stream's locale would widen
  std::ffill(s, 'a');
  CHECK_EQ(s.fill(), 'a');
}

TEST(inserting_a_record_calls_its_worker_on_the_stream_and_returns_the_stream) {
  counting_buffer buffer;
  std::basic_ostream<char> os(&buffer);
  CHECK(&(os << std::setw(9)) == &os);
  CHECK_EQ(os.width(), 9L);
  os << std::setprecision(3) << std::setfill(300) << std::setbase(8);
  CHECK_EQ(os.precision(), 3L);
  CHECK_EQ(os.fill(), ',');
  CHECK_EQ(os.flags(), base::skipws | base::oct);
  os << std::setiosflags(base::showpos) << std::resetiosflags(base::skipws);
  CHECK_EQ(os.flags(), base::oct | base::showpos);
  CHECK_EQ(buffer.virtual_calls(), 0); // nothing written
}

TEST(a_record_applies_even_to_a_stream_that_is_not_good) {
  std::basic_ostream<char> os(0);
  CHECK(os.bad());
  os << std::setw(4) << std::setfill('#');
  CHECK_EQ(os.width(), 4L);
  CHECK_EQ(os.fill(), '#');
}

// The switches: each sets or clears its own bit and nothing else.
static void check_switch(std::ios_base& (*on)(std::ios_base&),
                         std::ios_base& (*off)(std::ios_base&), base::fmtflags bit, int line) {
  test_stream s(0);
  const base::fmtflags others = 0x7FFF & ~bit;
  s.flags(others);
  bool ok = CHECK(&on(s) == &s);
  ok = CHECK_EQ(s.flags(), others | bit) && ok;
  s.flags(0x7FFF);
  ok = CHECK(&off(s) == &s) && ok;
  ok = CHECK_EQ(s.flags(), others) && ok;
  if (!ok)
    printf("  switch checked at line %d\n", line);
}

TEST(boolalpha_and_noboolalpha_switch_their_bit_alone) {
  check_switch(std::boolalpha, std::noboolalpha, base::boolalpha, __LINE__);
}

TEST(showbase_and_noshowbase_switch_their_bit_alone) {
  check_switch(std::showbase, std::noshowbase, base::showbase, __LINE__);
}

TEST(showpoint_and_noshowpoint_switch_their_bit_alone) {
  check_switch(std::showpoint, std::noshowpoint, base::showpoint, __LINE__);
}

TEST(showpos_and_noshowpos_switch_their_bit_alone) {
  check_switch(std::showpos, std::noshowpos, base::showpos, __LINE__);
}

TEST(skipws_and_noskipws_switch_their_bit_alone) {
  check_switch(std::skipws, std::noskipws, base::skipws, __LINE__);
}

TEST(unitbuf_and_nounitbuf_switch_their_bit_alone) {
  check_switch(std::unitbuf, std::nounitbuf, base::unitbuf, __LINE__);
}

TEST(uppercase_and_nouppercase_switch_their_bit_alone) {
  check_switch(std::uppercase, std::nouppercase, base::uppercase, __LINE__);
}

// The field choices: each sets its bit and clears the rest of its field, nothing else.
static void check_field_choice(std::ios_base& (*choose)(std::ios_base&), base::fmtflags bit,
                               base::fmtflags field, int line) {
  test_stream s(0);
  s.flags(0x7FFF);
  bool ok = CHECK(&choose(s) == &s);
  ok = CHECK_EQ(s.flags(), (0x7FFF & ~field) | bit) && ok;
  s.flags(0);
  choose(s);
  ok = CHECK_EQ(s.flags(), bit) && ok;
  if (!ok)
    printf("  field choice checked at line %d\n", line);
}

TEST(left_clears_the_rest_of_adjustfield) {
  check_field_choice(std::left, base::left, base::adjustfield, __LINE__);
}

TEST(right_clears_the_rest_of_adjustfield) {
  check_field_choice(std::right, base::right, base::adjustfield, __LINE__);
}

TEST(internal_clears_the_rest_of_adjustfield) {
  check_field_choice(std::internal, base::internal, base::adjustfield, __LINE__);
}

TEST(dec_clears_the_rest_of_basefield) {
  check_field_choice(std::dec, base::dec, base::basefield, __LINE__);
}

TEST(hex_clears_the_rest_of_basefield) {
  check_field_choice(std::hex, base::hex, base::basefield, __LINE__);
}

TEST(oct_clears_the_rest_of_basefield) {
  check_field_choice(std::oct, base::oct, base::basefield, __LINE__);
}

TEST(fixed_clears_the_rest_of_floatfield) {
  check_field_choice(std::fixed, base::fixed, base::floatfield, __LINE__);
}

TEST(scientific_clears_the_rest_of_floatfield) {
  check_field_choice(std::scientific, base::scientific, base::floatfield, __LINE__);
}

TEST(flag_manipulators_apply_through_the_output_operator) {
  std::basic_ostream<char> os(0);
  os << std::hex << std::left << std::uppercase << std::noskipws;
  CHECK_EQ(os.flags(), base::hex | base::left | base::uppercase);
}
